#include "plugins/scene/layers/SiteColumns.h"

#include <charconv>
#include <map>
#include <regex>

namespace vlt::scene {

namespace {

constexpr std::size_t LongestName = 200; ///< no pattern needs as much; matching stays cheap

struct Patterns
{
    // "%1" is a slot for the degree sign that two of the table layouts leave open.
    std::regex name = make(R"(site\s*id|name|site\s*name|site)");
    std::regex terrain = make(R"(transmitter-1\s*terrain\s*height\s*(\(m\))?)");
    std::regex transmitter = make(R"(transmitter-(\d{1,6}) ([^]+))");
    std::regex height = make(R"(height\s?(\(m\))?)");
    std::regex azimuth = make("azimuth(\\s?\\((\u00b0|%1)\\)?)?");
    std::regex tilt = make("down-tilt|mech\\S*\\s?\\S*tilt\\s*(\\(\u00b0\\))?|"
                           "mechanical tilt|tilt\\s*(\\(\u00b0\\))?");

    static std::regex make(const char *pattern)
    {
        return std::regex(pattern, std::regex::ECMAScript | std::regex::icase);
    }
};

/// Blanks that do not break are blanks.
std::string withPlainBlanks(std::string text)
{
    constexpr std::string_view NoBreakSpace = "\u00a0";
    for (std::size_t at = text.find(NoBreakSpace); at != std::string::npos;
         at = text.find(NoBreakSpace))
        text.replace(at, NoBreakSpace.size(), " ");
    return text;
}

} // namespace

SiteColumns recogniseSiteColumns(const std::vector<std::string> &fieldNames)
{
    const Patterns patterns;
    SiteColumns columns;
    std::map<int, TransmitterColumns> transmitters;
    const auto keepFirst = [](int &column, int index) {
        if (column < 0)
            column = index;
    };
    for (int index = 0; index < static_cast<int>(fieldNames.size()); ++index) {
        const std::string &raw = fieldNames[static_cast<std::size_t>(index)];
        if (raw.size() > LongestName)
            continue;
        const std::string field = withPlainBlanks(raw);
        if (std::regex_match(field, patterns.name))
            keepFirst(columns.name, index);
        if (std::regex_match(field, patterns.terrain))
            keepFirst(columns.terrainHeight, index);
        std::smatch parts;
        if (!std::regex_match(field, parts, patterns.transmitter))
            continue;
        const std::string digits = parts[1];
        int number = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
        const std::string what = parts[2];
        int TransmitterColumns::*member = nullptr;
        if (std::regex_match(what, patterns.height))
            member = &TransmitterColumns::height;
        else if (std::regex_match(what, patterns.azimuth))
            member = &TransmitterColumns::azimuth;
        else if (std::regex_match(what, patterns.tilt))
            member = &TransmitterColumns::tilt;
        if (!member)
            continue;
        TransmitterColumns &transmitter = transmitters[number];
        transmitter.number = number;
        keepFirst(transmitter.*member, index);
    }
    for (const auto &[number, transmitter] : transmitters)
        columns.transmitters.push_back(transmitter);
    return columns;
}

} // namespace vlt::scene
