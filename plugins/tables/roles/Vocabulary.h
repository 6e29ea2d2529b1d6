#pragma once

#include "plugins/tables/roles/HemisphereWords.h"
#include "plugins/tables/roles/Role.h"

#include <nlohmann/json_fwd.hpp>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vlt::driver {

/// A part of a coordinate that has a column of its own.
enum class CoordinatePart { Whole, Degrees, Minutes, Seconds, Hemisphere };

/// What a word or a phrase in a column name can mean; several may apply.
struct WordMeaning
{
    std::bitset<RoleCount> roles;
    std::optional<CoordinatePart> part;
    bool isEndA = false; ///< of a link
    bool isEndB = false;
    bool isWeakEnd = false;          ///< names an end only if no other word does
    bool isSector = false;           ///< stands beside the number of a sector
    bool isSexagesimal = false;      ///< says that numbers are degrees, minutes and seconds
    bool isSite = false;             ///< may stand beside any role of a site
    bool isAntennaKind = false;      ///< names a column with kinds of antennas
    bool isUnitColumn = false;       ///< names a column with units
    bool isDownNegative = false;     ///< says that tilts below the horizon are negative
    std::optional<double> metres;    ///< per unit of length of that name
    std::optional<double> megahertz; ///< per unit of frequency of that name
    std::optional<double> degrees;   ///< per unit of angle of that name
    bool isOtherUnit = false;        ///< of power, gain, time and the like: no role is one
    std::uint32_t languages = 0;     ///< bits of those in which it names a role

    bool isUnit() const { return metres || megahertz || degrees; }
};

/// What every value of a column must be.
struct ValueTest
{
    std::optional<double> minimum;
    std::optional<double> maximum;
    bool isWhole = false;
    std::unordered_set<std::string> words; ///< folded; empty if the values are no words
};

/// A known table without a header.
struct KnownTable
{
    std::string name;
    bool holdsLinks = false;
    /// The roles of the columns, with the part of a coordinate and the end of a link: latDegrees,
    /// groundHeightA; empty for a column that is not used.
    std::vector<std::string> columns;
    std::map<std::size_t, ValueTest> tests; ///< by column
};

/// Minimum and maximum of both coordinates, in metres.
struct CoordinateRange
{
    std::array<double, 2> easting = {};
    std::array<double, 2> northing = {};

    bool holds(double x, double y) const
    {
        return x >= easting[0] && x <= easting[1] && y >= northing[0] && y <= northing[1];
    }
};

/// A coordinate system that tables name in words.
struct NamedSystem
{
    std::string epsg;                            ///< code
    std::vector<std::vector<std::string>> names; ///< the words of each, as nameWords() gives them
    /// Where the system is used, if its X points to the north; empty for others.
    std::optional<CoordinateRange> northX = {};
};

/// The place of a word in one of the sequences that number columns: I, II, III.
struct SequencePlace
{
    std::size_t sequence = 0;
    int number = 0; ///< from 1
};

/// Words that values of cells may be, whatever their case and accents.
class ValueWordSet
{
public:
    void insert(std::string_view word);
    bool contains(std::string_view text) const;

private:
    std::unordered_set<std::string> m_words; ///< folded
    std::bitset<256> m_firstBytes;           ///< of the words; most values begin with another one
};

/// The words by which columns and values of tables are recognised. They are data, not code: the
/// installation has a file of them, and a user may add one of his own.
class Vocabulary
{
public:
    /// Adds the words of a vocabulary in JSON form. Throws std::invalid_argument with the reason.
    void add(std::string_view json);

    /// The meaning of folded words written together, such as "siteid"; null for unknown words.
    const WordMeaning *find(std::string_view joinedWords) const;
    /// Maximum size of the words that find() knows, in bytes.
    std::size_t longestTogether() const { return m_longestTogether; }
    /// Maximum number of words of a phrase.
    std::size_t longestPhrase() const { return m_longestPhrase; }
    /// Whether a word may stand beside the number of a sector.
    bool isSectorWord(std::string_view word) const
    {
        const WordMeaning *meaning = find(word);
        return meaning && meaning->isSector;
    }
    /// Whether one of the words of a name rules out that it has a role.
    bool forbids(Role role, const std::vector<std::string> &words) const;

    /// Whether a text stands for no value: NA, N/A, -, --, #N/A.
    bool isMissing(std::string_view text) const { return m_missing.contains(text); }
    /// Whether a text marks a row of sums.
    bool isTotal(std::string_view text) const { return m_totals.contains(text); }
    /// Whether a text in a column of azimuths means all directions.
    bool isOmni(std::string_view text) const { return m_omni.contains(text); }
    /// The part of a coordinate for which a letter or sign at the end of a name stands, if the
    /// names beside it end in the others: D, M, S.
    std::optional<CoordinatePart> partOfSign(std::string_view sign) const;
    /// Whether a text answers yes: yes, true, 1.
    bool isYes(std::string_view text) const { return m_yes.contains(text); }
    /// The number of a sector from its name: alpha is 1. 0 for other words.
    int numberOfSectorName(std::string_view word) const;
    /// The places of folded words written together, such as "ii" or "1st", in the sequences that
    /// number columns.
    std::vector<SequencePlace> placesInSequences(std::string_view joinedWords) const;
    /// The systems of countries, those of a user first.
    const std::vector<NamedSystem> &systems() const { return m_systems; }
    /// The systems of longitudes and latitudes, by the names of their datums.
    const std::vector<NamedSystem> &datums() const { return m_datums; }

    /// The words for directions in values and names.
    const HemisphereWords &hemispheres() const { return m_hemispheres; }
    /// The sign of longitudes with the letter O in all of some languages, given as bits: -1 for
    /// west, 1 for east, 0 if these languages differ or have no such letter.
    int signOfO(std::uint32_t languages) const;

    /// The tables that are known without a header, those of the user last.
    const std::vector<KnownTable> &knownTables() const { return m_knownTables; }

    /// The sign of longitudes with the letter O, in the languages to which the most column names
    /// belong: -1 for west, 1 for east, 0 if these languages differ or have no such letter.
    ///
    /// @param names  the folded words of each name
    int signOfO(const std::vector<std::vector<std::string>> &names) const;

private:
    using Phrases = std::unordered_map<std::string, WordMeaning>;

    template<typename Change>
    void addPhrase(const std::string &phrase, Change change);
    std::uint32_t languageBit(const std::string &language);
    void addHemispheres(const nlohmann::json &hemispheres);
    void addRoles(const nlohmann::json &root);
    void addPartsOfNames(const nlohmann::json &root);
    void addWordsOfValues(const nlohmann::json &root);

    Phrases m_phrases;
    std::size_t m_longestTogether = 0; ///< bytes of a phrase without its blanks
    std::vector<KnownTable> m_knownTables;
    std::map<Role, std::unordered_set<std::string>> m_forbidden;
    ValueWordSet m_missing;
    ValueWordSet m_totals;
    ValueWordSet m_omni;
    ValueWordSet m_yes;
    std::unordered_map<std::string, int> m_sectorNames;          ///< folded
    std::unordered_map<std::string, CoordinatePart> m_partSigns; ///< folded
    std::vector<std::vector<std::string>> m_sequences;           ///< folded words written together
    std::vector<std::string> m_languages;                        ///< in the order of their bits
    std::uint32_t m_westO = 0;                                   ///< languages in which O is west
    std::uint32_t m_eastO = 0;
    HemisphereWords m_hemispheres;
    std::vector<NamedSystem> m_systems;
    std::vector<NamedSystem> m_datums;
    std::size_t m_longestPhrase = 1;
};

/// The vocabulary that readers use.
struct InstalledVocabulary
{
    Vocabulary words;
    std::string ownFault; ///< why the user's own file is left out; empty if it is not
};

/// The vocabulary of the installation with that of the user, read once. The latter is the file
/// that the environment variable VLT_TABLE_VOCABULARY names, or else vocabulary.json in
/// veltaro/telecom below the user's folder of data. Throws RefusedFile if the vocabulary of the
/// installation cannot be read.
const InstalledVocabulary &installedVocabulary();

} // namespace vlt::driver
