#include "buildings/CountedBuildings.h"

#include "city/CountCity.h"
#include "contract/BadLayer.h"
#include "language/ReaderText.h"

namespace vlt::buildings {

Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress)
{
    CountedBuildings counted;
    city::Notices notices;
    try {
        counted.counts = city::countCity(document, {"/"}, notices, progress);
    } catch (const contract::BadLayer &fault) {
        return Error::asIs(language::readerText(QString::fromStdString(fault.what())),
                           QString::fromStdString(document.footprints.file));
    }
    for (const std::string &notice : notices)
        counted.notices << language::readerText(QString::fromStdString(notice));
    return counted;
}

} // namespace vlt::buildings
