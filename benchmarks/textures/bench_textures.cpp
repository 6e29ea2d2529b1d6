// Lists texture images as the textured page does, or by opening each of them, and prints
// milliseconds, images and a checksum over their heights. Can also make such images.
#include "buildings/TextureFolders.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <gdal_priv.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using vlt::buildings::DataStructure;

constexpr int HeightEvery = 10;   ///< every tenth image has a metadata file with its height
constexpr int WorldFileEvery = 7; ///< every seventh image has a world file

/// The checksum is equal if the same heights of the same images were found, in any order.
struct Seen
{
    long images = 0;
    double checksum = 0;

    void add(const std::string &stem, double height)
    {
        ++images;
        checksum += height * (1 + number(stem));
    }

    /// "roof_12": 12
    static double number(const std::string &stem)
    {
        return std::stod(stem.substr(stem.rfind('_') + 1));
    }
};

bool make(const fs::path &root, const std::string &suffix, int images, int folders)
{
    GDALDriverManager &drivers = *GetGDALDriverManager();
    const bool isPng = suffix == "png";
    GDALDriver &driver = *drivers.GetDriverByName(isPng ? "PNG" : "GTiff");
    constexpr int Size = 16;
    const GDALDatasetUniquePtr picture(
        drivers.GetDriverByName("MEM")->Create("", Size, Size, 3, GDT_Byte, nullptr));
    for (int band = 1; band <= 3; ++band)
        picture->GetRasterBand(band)->SetColorInterpretation(
            GDALColorInterp(GCI_RedBand + band - 1));
    for (int i = 0; i < images; ++i) {
        const fs::path folder = root / ("wall_" + std::to_string(i % folders));
        fs::create_directories(folder);
        const fs::path file = folder / ("roof_" + std::to_string(i) + '.' + suffix);
        for (int band = 1; band <= 3; ++band)
            picture->GetRasterBand(band)->Fill(i * band % 251);
        const GDALDatasetUniquePtr written(
            driver.CreateCopy(file.c_str(), picture.get(), FALSE, nullptr, nullptr, nullptr));
        if (!written)
            return false;
        if (i % HeightEvery == 0)
            std::ofstream(file.string() + ".aux.xml")
                << "<PAMDataset><Metadata><MDI key=\"HEIGHT\">" << i / 4.0
                << "</MDI></Metadata></PAMDataset>\n";
        if (i % WorldFileEvery == 0)
            std::ofstream(fs::path(file).replace_extension(isPng ? "pgw" : "tfw"))
                << "1\n0\n0\n-1\n0\n0\n";
    }
    return true;
}

Seen listOurs(const fs::path &root, const std::string &suffix)
{
    Seen seen;
    const auto entries =
        findTextures(DataStructure::SiblingFolders, QFile::decodeName((root / "wall_0").c_str()),
                     QString::fromStdString(suffix), {});
    for (const vlt::buildings::FileEntry &entry : *entries)
        seen.add(entry.file.completeBaseName().toStdString(), entry.height);
    return seen;
}

Seen listPlainly(const fs::path &root, const std::string &suffix)
{
    Seen seen;
    for (const fs::directory_entry &folder : fs::directory_iterator(root)) {
        for (const fs::directory_entry &file : fs::directory_iterator(folder.path())) {
            if (file.path().extension() != '.' + suffix)
                continue;
            GDALDatasetH dataset = GDALOpen(file.path().c_str(), GA_ReadOnly);
            const char *height =
                dataset ? GDALGetMetadataItem(dataset, "HEIGHT", nullptr) : nullptr;
            const std::string stem = file.path().stem();
            if (!dataset || !GDALGetMetadata(dataset, "SUBDATASETS"))
                seen.add(stem, height ? std::stod(height) : Seen::number(stem));
            GDALClose(dataset);
        }
    }
    return seen;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string task = argc > 3 ? argv[1] : "";
    const bool isMaking = task == "make" && argc == 6;
    if (!isMaking && ((task != "ours" && task != "plain") || argc != 4)) {
        std::fputs("usage: bench_textures make FOLDER tif|png IMAGES FOLDERS\n"
                   "       bench_textures ours|plain FOLDER tif|png\n",
                   stderr);
        return 2;
    }
    GDALAllRegister();
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    const fs::path root = fs::absolute(argv[2]);
    const std::string suffix = argv[3];
    if (isMaking)
        return make(root, suffix, std::stoi(argv[4]), std::stoi(argv[5])) ? 0 : 1;

    const auto start = std::chrono::steady_clock::now();
    const Seen seen = task == "ours" ? listOurs(root, suffix) : listPlainly(root, suffix);
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - start;
    std::printf("%.3f %ld %.6g\n", spent.count(), seen.images, seen.checksum);
    return 0;
}
