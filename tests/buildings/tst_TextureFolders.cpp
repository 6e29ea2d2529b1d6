#include "buildings/TextureFolders.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gdal_priv.h>

#include <sys/stat.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;

namespace {

void writeHeight(const QString &path, const QByteArray &height)
{
    writeFile(path, R"(<PAMDataset><Metadata><MDI key="HEIGHT">)" + height +
                        "</MDI></Metadata></PAMDataset>");
}

/// Makes a black image; `height` becomes metadata, in the file or in its side file.
void makeImage(const char *format, const QString &path, const char *height = nullptr,
               CSLConstList options = nullptr, int bands = 1)
{
    GDALDriver *memory = GetGDALDriverManager()->GetDriverByName("MEM");
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName(format);
    const GDALDatasetUniquePtr image(memory->Create("", 4, 4, bands, GDT_Byte, nullptr));
    if (height)
        image->SetMetadataItem("HEIGHT", height);
    const GDALDatasetUniquePtr copy(driver->CreateCopy(
        qPrintable(path), image.get(), FALSE, const_cast<char **>(options), nullptr, nullptr));
    QVERIFY(copy);
}

QList<FileEntry> found(const QString &dir, const QString &suffix,
                       DataStructure structure = DataStructure::SameFolder)
{
    return findTextures(structure, dir, suffix, {}).value();
}

/// Name and height of an image, "wall.png 2.5 m", with the unit if it is metres.
QString stated(const FileEntry &entry)
{
    const QString text = entry.fileName() + u' ' + QString::number(entry.height);
    return entry.unit == FileEntry::Metres ? text + u" m"_s : text;
}

} // namespace

class tst_TextureFolders : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        CPLPushErrorHandler(CPLQuietErrorHandler);
        for (const char *name :
             {"town/Nord/roof_1.png", "town/Nord/b[1].png", "town/Nord/B.PNG", "town/Nord/.h.png",
              "town/Nord/roof.tif", "town/Nord/png", "town/Nord/p.png.bak",
              "town/Nord/folder.png/x", "town/Sud/s.png", "town/.secret/h.png", "town/loose.png",
              "village/Ost/o.png", "village/Ost/deep/d.png", "loose.png"})
            writeFile(path(u"tree/"_s + QString::fromLatin1(name)));
        writeFile(path(u"outside/x.png"_s));
        QVERIFY(QDir().mkpath(path(u"tree/town/empty"_s)));
        QCOMPARE(mkfifo(qPrintable(path(u"tree/town/Nord/pipe.png"_s)), 0600), 0);
        const auto link = [this](const QString &name, const QString &target) {
            QVERIFY(QFile::link(target, path(u"tree/"_s + name)));
        };
        link(u"town/Again"_s, u"Nord"_s);
        link(u"town/Extern"_s, path(u"outside"_s));
        link(u"town/itself"_s, u"."_s);
        link(u"town/up"_s, u".."_s);
        link(u"town/Nord/back"_s, u"../../town"_s);
        link(u"town/gone"_s, u"nowhere"_s);
        link(u"round"_s, u"village/loop"_s);
        link(u"village/loop"_s, u"../round"_s);
        link(u"village/Sud again"_s, u"../town/Sud"_s);
        link(u"town/Sud/linked.png"_s, u"s.png"_s);
        link(u"town/Sud/broken.png"_s, u"nowhere.png"_s);
    }

    void walksTheFoldersOfAStructure_data()
    {
        using enum DataStructure;
        const Cases<DataStructure, QString, QString> row({"structure", "suffix", "files"});
        row("same folder", SameFolder, "png", "Nord/B.PNG|Nord/b[1].png|Nord/roof_1.png");
        row("capital suffix", SameFolder, "PNG", "Nord/B.PNG|Nord/b[1].png|Nord/roof_1.png");
        row("no suffix", SameFolder, "",
            "Nord/B.PNG|Nord/b[1].png|Nord/p.png.bak|Nord/png|Nord/roof.tif|Nord/roof_1.png");
        row("jokers are letters", SameFolder, "p?g", "");
        row("none of the suffix", SameFolder, "jpg", "");
        row("same level", SiblingFolders, "png",
            "Extern/x.png|Nord/B.PNG|Nord/b[1].png|Nord/roof_1.png|Sud/linked.png|Sud/s.png");
        // Sud is read once, although a link in village leads to it too.
        row("two levels", TwoLevels, "png",
            "town/Extern/x.png|town/Nord/B.PNG|town/Nord/b[1].png|town/Nord/roof_1.png|"
            "town/Sud/linked.png|town/Sud/s.png|village/Ost/o.png");
    }
    void walksTheFoldersOfAStructure()
    {
        QFETCH(const DataStructure, structure);
        QFETCH(const QString, suffix);

        const QList<FileEntry> entries = found(path(u"tree/town/Nord"_s), suffix, structure);

        QStringList files;
        for (const FileEntry &entry : entries) {
            files << entry.shortName + u'/' + entry.fileName();
            QVERIFY(entry.used && entry.description.isEmpty() && entry.file.exists());
        }
        QTEST(files.join(u'|'), "files");
    }

    void anEmptyOrMissingFolderHasNone()
    {
        for (const QString &name : {u"tree/town/empty"_s, u"tree/missing"_s})
            QVERIFY(found(path(name), u"png"_s).isEmpty());
    }

    void takesTheHeightOfMetadataThenOfTheName()
    {
        const QString dir = path(u"heights"_s);
        QVERIFY(QDir().mkpath(dir));
        const auto at = [&dir](const QString &name) { return dir + u'/' + name; };
        makeImage("GTiff", at(u"in the file 3m.t"_s), "2.25");
        makeImage("GTiff", at(u"in the file 4.t"_s));
        makeImage("GTiff", at(u"in the file 5.t"_s));
        const char *const bigEndian[] = {"ENDIANNESS=BIG", nullptr};
        makeImage("GTiff", at(u"in the file 6.t"_s), "2.5", bigEndian);
        makeImage("GTiff", at(u"in the file 6m.t"_s), nullptr, bigEndian);
        const char *const big[] = {"BIGTIFF=YES", nullptr};
        makeImage("GTiff", at(u"in the file 7.t"_s), "2.75", big);
        // A later change moves the description of the image to the end of the file.
        GDALDatasetUniquePtr(
            GDALDataset::Open(qPrintable(at(u"in the file 5.t"_s)), GDAL_OF_UPDATE))
            ->SetMetadataItem("HEIGHT", "1.5");
        makeImage("PNG", at(u"beside 3m.t"_s), "5");
        makeImage("PNG", at(u"no number 3m.t"_s), "3,5");
        makeImage("PNG", at(u"infinite 3.t"_s), "inf");
        makeImage("JPEG", at(u"none 3 m.t"_s));
        writeFile(at(u"broken 4m.t"_s));
        writeHeight(at(u"broken 4m.t.aux.xml"_s), "9"); // ignored without an image
        writeFile(at(u"virtual 6.t"_s), R"(<VRTDataset rasterXSize="1" rasterYSize="1"><Metadata>
              <MDI key="HEIGHT">9</MDI></Metadata><VRTRasterBand band="1"/></VRTDataset>)");
        makeImage("GSAG", at(u"grid 7m.grd"_s), "9");
        makeImage("GSAG", at(u"grid 8.GRC"_s), "9");
        const auto texts = [&dir](const QString &suffix) {
            QStringList list;
            for (const FileEntry &entry : found(dir, suffix))
                list << stated(entry);
            return list;
        };

        QCOMPARE(
            texts(u"t"_s),
            QStringList({u"beside 3m.t 5 m"_s, u"broken 4m.t 4 m"_s, u"in the file 3m.t 2.25 m"_s,
                         u"in the file 4.t 4"_s, u"in the file 5.t 1.5"_s, u"in the file 6.t 2.5"_s,
                         u"in the file 6m.t 6 m"_s, u"in the file 7.t 2.75"_s, u"infinite 3.t 3"_s,
                         u"no number 3m.t 3 m"_s, u"none 3 m.t 3 m"_s, u"virtual 6.t 6"_s}));
        QCOMPARE(texts(u"grd"_s), QStringList(u"grid 7m.grd 7 m"_s));
        QCOMPARE(texts(u"grc"_s), QStringList(u"grid 8.GRC 8"_s));
    }

    void listsTheImagesOfAFileOneByOne()
    {
        const QString file = path(u"pages/pages 6m.tif"_s);
        QVERIFY(QDir().mkpath(path(u"pages"_s)));
        const char *const append[] = {"APPEND_SUBDATASET=YES", nullptr};
        makeImage("GTiff", path(u"pages/one 5.tif"_s));
        makeImage("GTiff", file, "2");
        makeImage("GTiff", file, "7.5", append);
        makeImage("GTiff", file, nullptr, append);

        const QList<FileEntry> entries = found(path(u"pages"_s), u"tif"_s);

        QCOMPARE(entries.size(), 4);
        QCOMPARE(stated(entries.at(0)), u"one 5.tif 5"_s);
        const QList<double> heights = {2, 7.5, 2}; // the last page has no height of its own
        for (int i = 0; i < 3; ++i) {
            const FileEntry &entry = entries.at(i + 1);
            QCOMPARE(entry.file.filePath(), u"GTIFF_DIR:%1:%2"_s.arg(i + 1).arg(file));
            QCOMPARE(entry.height, heights.at(i));
            QCOMPARE(entry.shortName + u'/' + entry.fileName(), u"pages/pages 6m.tif"_s);
            QVERIFY(entry.description.contains(u"Page %1"_s.arg(i + 1)));
        }
    }

    /// The file has one format, its images have another.
    void takesTheHeightsOfPartsOfAnotherFormat()
    {
        const QString dir = path(u"parts"_s);
        QVERIFY(QDir().mkpath(dir));
        const char *const options[] = {"FORMAT=NC4", nullptr};
        makeImage("netCDF", dir + u"/levels.nc"_s, nullptr, options, 2);
        QVERIFY(QFile::rename(dir + u"/levels.nc"_s, dir + u"/levels 6m.h5"_s));
        writeFile(
            dir + u"/levels 6m.h5.aux.xml"_s,
            "<PAMDataset><Subdataset name=\"//Band2\"><PAMDataset><Metadata>"
            "<MDI key=\"HEIGHT\">7.5</MDI></Metadata></PAMDataset></Subdataset></PAMDataset>");

        const QList<FileEntry> entries = found(dir, u"h5"_s);

        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries[0].file.filePath(), u"HDF5:\"%1/levels 6m.h5\"://Band1"_s.arg(dir));
        QCOMPARE(entries[0].height, 6);
        QCOMPARE(entries[1].height, 7.5);
    }

    /// Files with one suffix have different formats and side files in upper and lower case. The
    /// format that is tried first does not change the result.
    void readsWhatOpeningEachFileAloneGives()
    {
        const QString dir = path(u"mixed"_s);
        QVERIFY(QDir().mkpath(dir));
        const char *const formats[] = {"GTiff", "PNG", "PNG", "HFA", "BMP", "GTiff", "JPEG"};
        for (int i = 0; i < 140; ++i) {
            const QString file = u"%1/%2_%3.img"_s.arg(dir, i % 3 ? u"a"_s : u"A.b"_s).arg(i);
            makeImage(formats[i % 7], file);
            if (i % 4 == 0)
                writeHeight(file + (i % 8 ? u".aux.xml"_s : u".AUX.xml"_s), QByteArray::number(-i));
            if (i % 5 == 0)
                writeFile(file.chopped(3) + u"wld"_s, "1\n0\n0\n-1\n0\n0\n");
            if (i % 9 == 0)
                QVERIFY(QFile::resize(file, 20)); // damaged
        }

        const QList<FileEntry> entries = found(dir, u"img"_s);

        QCOMPARE(entries.size(), 140);
        int stated = 0;
        for (const FileEntry &entry : entries) {
            const GDALDatasetUniquePtr alone(
                GDALDataset::Open(qPrintable(entry.file.filePath()), GDAL_OF_RASTER));
            const char *height = alone ? alone->GetMetadataItem("HEIGHT") : nullptr;
            const QString name = entry.file.completeBaseName();
            const double expected =
                height ? QByteArray(height).toDouble() : name.section(u'_', -1).toDouble();
            QVERIFY2(qFuzzyCompare(1 + entry.height, 1 + expected), qPrintable(entry.fileName()));
            stated += height != nullptr;
        }
        QCOMPARE(stated, 15); // 17 are in side files; two of their images are damaged
    }

    void reportsHowFarItIsAndStops_data()
    {
        const Cases<int> row({"callsUntilStop"});
        row("to the end", -1);
        row("at once", 1);
        row("on the way", 2);
    }
    void reportsHowFarItIsAndStops()
    {
        const QString dir = path(u"many"_s);
        for (int i = 0; i < 3000 && !QFile::exists(dir + u"/2999.txt"_s); ++i)
            writeFile(u"%1/%2.txt"_s.arg(dir).arg(i));
        QFETCH(const int, callsUntilStop);
        QList<double> shares;
        bool isThisThread = true;

        const auto entries =
            findTextures(DataStructure::SameFolder, dir, u"txt"_s, [&](double share) {
                shares << share;
                isThisThread &= QThread::currentThread() == thread();
                return shares.size() != callsUntilStop;
            });

        QCOMPARE(entries ? entries->size() : -1, callsUntilStop < 0 ? 3000 : -1);
        QVERIFY(shares.size() == callsUntilStop || callsUntilStop < 0);
        QVERIFY(isThisThread && !shares.empty() && shares.first() >= 0 && shares.last() <= 1);
        QVERIFY(std::is_sorted(shares.cbegin(), shares.cend()));
    }
};

QTEST_GUILESS_MAIN(tst_TextureFolders)
#include "tst_TextureFolders.moc"
