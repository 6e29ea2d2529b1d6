#include "buildings/CountedBuildings.h"

#include "city/CityValues.h"
#include "contract/BadLayer.h"
#include "language/ReaderText.h"

namespace vlt::buildings {

Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress)
{
    CountedBuildings counted;
    city::CityValues read;
    try {
        read = city::readCityValues(document, {"/"}, city::ClassCounts::Ignored, progress);
    } catch (const contract::BadLayer &fault) {
        return Error::asIs(language::readerText(QString::fromStdString(fault.what())),
                           QString::fromStdString(document.footprints.file));
    }
    counted.counts = read.city.counts;
    for (const std::string &notice : read.notices)
        counted.notices << language::readerText(QString::fromStdString(notice));
    return counted;
}

} // namespace vlt::buildings
