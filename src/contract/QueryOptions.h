#pragma once

#include "contract/ChosenNumber.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

/// The options of the query that a layer of sites or of links carries ("site:key=value,...,path",
/// see ConnectionString.h): their keys, the numbers and words in their values, and the defaults of
/// a first run. The wizard and the command line write them, the scene readers and the table driver
/// read them. The scene readers accept wider ranges of some numbers, because they also read queries
/// that other versions or programs wrote.
namespace vlt::contract {

// Keys, each followed by the numbers of its option. The value of an option with several numbers has
// them in this order, separated by blanks.
namespace query {

inline constexpr char SourceSystem[] = "s_srs"; ///< system of the table; absent if unknown
inline constexpr char TargetSystem[] = "t_srs"; ///< system of the project; absent if unknown
/// Area of the project's terrain, "west south east north" in degrees: sites outside it are
/// problems. Not in layers.
inline constexpr char Extent[] = "extent";
inline constexpr char DataFolder[] = "data_folder"; ///< always PylonFolder of Installation.h
inline constexpr char PylonType[] = "pylon_type";   ///< a type of the pylon catalogue

inline constexpr char PylonWidth[] = "pylon_width";
inline constexpr ChosenNumber<double> PylonWidthM{0.1, 150, 2.5};

/// One or more colours "rrggbbaa", separated by blanks. The transparency determines their alpha.
inline constexpr char SectorColors[] = "sector_colors";
inline constexpr ChosenNumber<int> TransparencyPercent{0, 100, 0};

inline constexpr char SectorProperties[] = "sector_properties";
inline constexpr ChosenNumber<double> SectorRadiusM{0.01, 1e8, 200}; ///< written as an integer
inline constexpr ChosenNumber<double> SectorHeightM{0.01, 1e8, 20};
inline constexpr ChosenNumber<double> SectorSpacingM{0, 1e9, 2}; ///< vertical

/// One of LinkStyleWords: how the line of sight is drawn.
inline constexpr char LinkStyle[] = "link_style";

inline constexpr char LinkWidth[] = "link_width";
inline constexpr ChosenNumber<double> LinkWidthPixelsOrM{0.1, 1000, 2}; ///< unit: see LinkStyle

/// "rrggbbaa". In a layer ClearanceWord follows it if the clearance of each link determines its
/// colour.
inline constexpr char LinkColor[] = "link_color";
inline constexpr char FirstLinkColor[] = "#e0218a";
inline constexpr char ClearanceWord[] = "clearance";

inline constexpr char FresnelZone[] = "fresnel_zone";
inline constexpr ChosenNumber<int> FresnelZoneNumber{1, 10, 1};
inline constexpr int NoFresnelZone = 0; ///< number that is written if no ellipsoid is drawn

/// Share of the zone's radius that is drawn, and that has to be free of terrain.
inline constexpr char FresnelShare[] = "fresnel_share";
inline constexpr ChosenNumber<int> FresnelSharePercent{1, 100, 60};

/// "rrggbbaa"; the transparency determines the alpha.
inline constexpr char FresnelColor[] = "fresnel_color";
inline constexpr char FirstFresnelColor[] = "#ffa500";
inline constexpr ChosenNumber<int> FresnelTransparencyPercent{0, 100, 60};

/// Factor of the earth's radius; that of a standard atmosphere is 4/3 (Rec. ITU-R P.310).
inline constexpr char KFactor[] = "k_factor";
inline constexpr ChosenNumber<double> KFactorNumber{0.1, 100, 1.33333};

// how the table is read; absent if its reader detects it
inline constexpr char Sheet[] = "sheet";
inline constexpr char Encoding[] = "encoding";
inline constexpr char Delimiter[] = "delimiter";
inline constexpr char Axes[] = "axes"; ///< SwappedAxes if the columns of x and y are exchanged
inline constexpr char SwappedAxes[] = "swapped";

/// Path of a table that completes this one, relative to its folder: the transmitters of a table of
/// sites; the sites at the ends of a table of links.
inline constexpr char Sectors[] = "sectors";
inline constexpr char EndSites[] = "sites";

/// Path of the mapping file, see ColumnMapping.h, relative to the folder of the table, or
/// NoMapping; absent if it is the one beside the table, or if there is none.
inline constexpr char Columns[] = "columns";
inline constexpr char NoMapping[] = "none";

inline constexpr char TransmitterScale[] = "transmitter_scale";
inline constexpr ChosenNumber<int> AntennaScalePercent{0, 300, 100};

/// Distances up to which the symbolic and the realistic representation are drawn.
inline constexpr char Lods[] = "lods";
inline constexpr ChosenNumber<int> SymbolicDistanceM{0, 1000000000, 10000};
inline constexpr ChosenNumber<int> RealisticDistanceM{0, 1000000000, 1000};

/// Path of the terrain, relative to the project's directory; links only, absent without a terrain.
inline constexpr char TerrainFile[] = "dem_file";

} // namespace query

/// The subject of an option, which determines its reader.
enum class OptionPurpose {
    Placing,  ///< coordinate systems; read by the table driver
    Checking, ///< what is compared with the table; read by the table driver, not in layers
    Reading,  ///< how the table is read; read by the table driver
    Pylons,   ///< appearance of pylons; read by the scene readers of sites and of links
    Links,    ///< appearance and clearance of links; read by the scene reader of links
    Heights,  ///< the terrain; read by the scene reader of links
};

/// An option of queries.
struct QueryOption
{
    static constexpr std::size_t MaxNumbers = 3;

    std::string_view key;
    OptionPurpose purpose = OptionPurpose::Pylons;
    /// Ranges from which a user chooses the numbers of the value.
    std::array<std::optional<Range>, MaxNumbers> numbers = {};
};

/// All options, in the order in which queries carry them.
inline constexpr auto QueryOptions = std::to_array<QueryOption>({
    {query::SourceSystem, OptionPurpose::Placing},
    {query::TargetSystem, OptionPurpose::Placing},
    {query::Extent, OptionPurpose::Checking},
    {query::DataFolder, OptionPurpose::Pylons},
    {query::PylonType, OptionPurpose::Pylons},
    {query::PylonWidth, OptionPurpose::Pylons, {query::PylonWidthM}},
    {query::SectorColors, OptionPurpose::Pylons},
    {query::SectorProperties,
     OptionPurpose::Pylons,
     {query::SectorRadiusM, query::SectorHeightM, query::SectorSpacingM}},
    {query::LinkStyle, OptionPurpose::Links},
    {query::LinkWidth, OptionPurpose::Links, {query::LinkWidthPixelsOrM}},
    {query::LinkColor, OptionPurpose::Links},
    {query::FresnelZone, OptionPurpose::Links, {query::FresnelZoneNumber}},
    {query::FresnelShare, OptionPurpose::Links, {query::FresnelSharePercent}},
    {query::FresnelColor, OptionPurpose::Links},
    {query::KFactor, OptionPurpose::Links, {query::KFactorNumber}},
    {query::Sheet, OptionPurpose::Reading},
    {query::Encoding, OptionPurpose::Reading},
    {query::Delimiter, OptionPurpose::Reading},
    {query::Axes, OptionPurpose::Reading},
    {query::Sectors, OptionPurpose::Reading},
    {query::EndSites, OptionPurpose::Reading},
    {query::Columns, OptionPurpose::Reading},
    {query::TransmitterScale, OptionPurpose::Pylons, {query::AntennaScalePercent}},
    {query::Lods, OptionPurpose::Pylons, {query::SymbolicDistanceM, query::RealisticDistanceM}},
    {query::TerrainFile, OptionPurpose::Heights},
});

/// How the line of sight of a link is drawn.
enum class LinkStyle {
    Line,      ///< width in pixels, the same at every distance
    Tube,      ///< width in metres, round
    Billboard, ///< width in metres, a flat band that rotates about the link to face the viewer
};

/// The words of the styles in queries, in the order of the enumeration.
inline constexpr auto LinkStyleWords =
    std::to_array<std::string_view>({"LINE", "TUBE", "BILLBOARD"});

constexpr std::string_view linkStyleWord(LinkStyle style)
{
    return LinkStyleWords[static_cast<std::size_t>(style)];
}

/// The style of a word; nothing for any other word.
constexpr std::optional<LinkStyle> linkStyleOf(std::string_view word)
{
    const auto found = std::find(LinkStyleWords.begin(), LinkStyleWords.end(), word);
    if (found == LinkStyleWords.end())
        return std::nullopt;
    return static_cast<LinkStyle>(found - LinkStyleWords.begin());
}

/// Heights above ground of a mast and of an antenna whose heights are unknown.
inline constexpr double DefaultPylonHeightM = 25;
inline constexpr double DefaultAntennaHeightM = 23;

} // namespace vlt::contract
