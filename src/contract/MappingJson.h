#pragma once

#include "contract/PositionCorrection.h"
#include "contract/TableTexts.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

/// Parts of a mapping as JSON. The functions that read throw UnusableMapping.
namespace vlt::contract {

/// Why a text is no mapping.
struct UnusableMapping
{
    std::string reason; ///< a text of TableTexts.h
};

/// @param place  name of the entry
[[noreturn]] inline void refuseValue(const std::string &place)
{
    throw UnusableMapping{formatted("MESS_TAB_MAPPING_VALUE", {place})};
}

inline std::string textOf(const nlohmann::json &value, const std::string &place)
{
    if (!value.is_string())
        refuseValue(place);
    return value.get<std::string>();
}

std::vector<PositionCorrection> correctionsOf(const nlohmann::json &value,
                                              const std::string &place);

/// A correction without its rows.
nlohmann::ordered_json headOf(const PositionCorrection &correction);
nlohmann::ordered_json jsonOf(const CorrectedRow &row);

/// The text of a value. Bytes that are not UTF-8 are replaced.
inline std::string dumped(const nlohmann::ordered_json &value, int indent = -1)
{
    return value.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

} // namespace vlt::contract
