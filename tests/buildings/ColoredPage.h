#pragma once

#include "LayerPage.h"
#include "buildings/ui/VltAddTexbColoredPage.h"

#include <gdal_priv.h>

/// Helpers for the tests of the page of buildings with colours.
namespace layerpage {

inline const QString Group = u"AddTexbColoredPage"_s; ///< of the settings

inline const QString OnlyGray =
    u"The image-based coloring mode works only with one-band grey images"_s;

/// The page as it is after the source page.
class ColoredPage : public Page<VltAddTexbColoredPage>
{
public:
    explicit ColoredPage(const QString &installation, const QString &source = {},
                         const QVariantList &fields = {})
        : Page(installation, published(source.isEmpty() ? u"buildings"_s : source, fields))
    {}

private:
    static SharedParameters published(const QString &source, const QVariantList &fields)
    {
        SharedParameters published =
            values(u"Buildings=%1 Layer=layer Height=height Dtm=dtm Nodata=nodata"_s.arg(source));
        published[u"ColorFields"_s] = fields;
        return published;
    }
};

/// Images, colour maps and installations in a folder of their own.
class ColoredPageFiles
{
public:
    QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_dir.path() : m_dir.filePath(name);
    }

    QString installation() const { return path(u"installation"_s); }

    void write() const
    {
        GDALAllRegister();
        writeFile(path(u"grid.asc"_s), Grid);
        writeFile(path(u"other.asc"_s), Grid);
        writeFile(path(u"text.tif"_s), "no raster");
        writeTiff(u"three.tif"_s, 3);
        writeTiff(u"two images.tif"_s, 1);
        writeTiff(u"two images.tif"_s, 3, true);
        for (const QString &map : {u"installation/%1/first.txt"_s, u"installation/%1/second.txt"_s,
                                   u"bare/%1/first.txt"_s})
            writeFile(path(map.arg(u"addons/telecom/colormaps/some"_s)), "0 red\n10 blue\n");
        const QString file = u"/addons/telecom/template/template_texb.lay"_s;
        QVERIFY(QDir().mkpath(QFileInfo(installation() + file).path()));
        QVERIFY(QFile::copy(QStringLiteral(VLT_INSTALLATION) + file, installation() + file));
        writeFile(path(u"own.cmap"_s), "0 red\n");
        writeFile(path(u"bad.cmap"_s), "0 reddish\n");
    }

    /// Resets the settings to those of a first start, but with grid.asc as remembered image.
    void reset() const
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        vlt::platform::wizardSettings()->clear();
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
    }

    QString writeTown(const QByteArrayList &features) const
    {
        return writeFile(path(u"layer.geojson"_s),
                         R"({"type":"FeatureCollection","name":"layer","features":[)" +
                             features.join(',') + "]}");
    }

private:
    /// Writes an image, or adds it to the file.
    void writeTiff(const QString &name, int bandCount, bool append = false) const
    {
        char appending[] = "APPEND_SUBDATASET=YES";
        std::array<char *, 2> options = {append ? appending : nullptr, nullptr};
        const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            path(name).toUtf8(), 2, 2, bandCount, GDT_Byte, options.data()));
    }

    QTemporaryDir m_dir;
};

} // namespace layerpage
