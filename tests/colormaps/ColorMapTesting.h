#pragma once

#include "colormaps/ColorMap.h"
#include "support/Files.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cpl_error.h>

/// Collects the errors reported to the geodata library as long as it exists.
class ReportedErrors
{
public:
    ReportedErrors() { CPLPushErrorHandlerEx(keep, &m_texts); }
    ~ReportedErrors() { CPLPopErrorHandler(); }
    ReportedErrors(const ReportedErrors &) = delete;
    ReportedErrors &operator=(const ReportedErrors &) = delete;

    /// The texts; failures without the application's number have a mark.
    const QStringList &texts() const { return m_texts; }

private:
    static void CPL_STDCALL keep(CPLErr severity, CPLErrorNum number, const char *message)
    {
        const bool isExpected = severity == CE_Failure && number == CPLE_AppDefined;
        static_cast<QStringList *>(CPLGetErrorHandlerUserData())
            ->append(QLatin1String(isExpected ? "" : "(other kind) ") + QString::fromUtf8(message));
    }

    QStringList m_texts;
};

inline QString written(const vlt::colormaps::Rgba &color)
{
    return QStringLiteral("%1,%2,%3,%4")
        .arg(color.red)
        .arg(color.green)
        .arg(color.blue)
        .arg(color.alpha);
}

/// The associations as "value r,g,b,a; ...".
inline QString written(const vlt::colormaps::ColorMap &map)
{
    QStringList texts;
    for (const vlt::colormaps::ColorAssociation &one : map.associations())
        texts << QString::number(one.value, 'g', 15) + QLatin1Char(' ') + written(one.color);
    return texts.join(QStringLiteral("; "));
}

/// Writes a file and returns its path.
inline std::string fileWith(const QTemporaryDir &dir, const QString &name, const QByteArray &bytes)
{
    return QFile::encodeName(writeFile(dir.filePath(name), bytes)).toStdString();
}
