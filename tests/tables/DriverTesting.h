#pragma once

#include "support/Files.h"

#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <QByteArray>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// Collects the warnings of the library as long as it exists.
class Warnings
{
public:
    Warnings() { CPLPushErrorHandlerEx(take, this); }
    ~Warnings() { CPLPopErrorHandler(); }
    QStringList texts;

private:
    static void CPL_STDCALL take(CPLErr, CPLErrorNum, const char *text)
    {
        static_cast<Warnings *>(CPLGetErrorHandlerUserData())->texts += QString::fromUtf8(text);
    }
};

inline QStringList problemsOf(OGRLayer &layer)
{
    QStringList items;
    char **list = layer.GetMetadata("problems");
    for (char **item = list; item && *item; ++item)
        items += QString::fromUtf8(*item);
    return items;
}

/// A private folder with tables.
class TableFolder
{
public:
    bool isValid() const { return m_folder.isValid(); }
    QByteArray path(const char *name) const
    {
        return QFile::encodeName(m_folder.filePath(QLatin1String(name)));
    }
    void write(const char *name, const QByteArray &text) const
    {
        writeFile(m_folder.filePath(QLatin1String(name)), text);
    }
    /// Opens a table; `prefix` is "site:" or "link:", with or without options.
    GDALDatasetUniquePtr open(const QByteArray &prefix, const char *name) const
    {
        return GDALDatasetUniquePtr(
            GDALDataset::Open((prefix + path(name)).constData(), GDAL_OF_VECTOR));
    }

private:
    QTemporaryDir m_folder;
};
