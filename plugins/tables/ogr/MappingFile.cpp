#include "plugins/tables/ogr/MappingFile.h"

#include "contract/QueryOptions.h"
#include "contract/TableTexts.h"
#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/bytes/Refusal.h"

#include <filesystem>

namespace vlt::driver {

namespace {

contract::ReadMapping readFile(const std::string &path)
{
    try {
        const auto file = InputFile::open(path);
        return contract::readMapping(file->head(contract::MaxMappingBytes + 1));
    } catch (const RefusedFile &refused) {
        return {{}, refused.what()};
    }
}

} // namespace

MappingFile readMappingFile(const std::string &tablePath, contract::TableKind kind,
                            const std::string &stated)
{
    if (stated == contract::query::NoMapping)
        return {};
    const std::filesystem::path path =
        stated.empty() ? std::filesystem::path(contract::mappingFileOf(tablePath))
                       : std::filesystem::path(tablePath).parent_path() / stated;
    std::error_code error;
    if (stated.empty() && !std::filesystem::exists(path, error))
        return {};
    contract::ReadMapping read = readFile(path);
    if (read.mapping && read.mapping->kind.value_or(kind) != kind) {
        if (stated.empty())
            return {};
        read = {{}, contract::formatted("MESS_TAB_MAPPING_KIND")};
    }
    if (!read.mapping)
        return {{},
                {},
                contract::formatted("MESS_TAB_MAPPING_UNUSED",
                                    {path.filename().string(), read.reason})};
    return {path, std::move(*read.mapping), {}};
}

} // namespace vlt::driver
