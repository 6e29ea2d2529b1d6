#pragma once

#include "linkpath/PathProfiler.h"

#include <ogrsf_frmts.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace vlt::linkpath {

/// A link put together from its two rows in the layer of link ends. Texts are as the layer has
/// them.
struct PairedLink
{
    struct End
    {
        std::string site;
        LinkEnd place;         ///< without a meaning unless `isPlaced`
        bool isPlaced = false; ///< whether the row has a position
        std::optional<double> frequencyMHz;
    };

    std::int64_t row = 0; ///< in the file, from 1
    std::string name;     ///< empty where the table names no links
    std::optional<double> lengthM;
    std::array<End, 2> ends; ///< A, B

    bool isPlaced() const { return ends[0].isPlaced && ends[1].isPlaced; }

    /// Of end A, else of end B.
    std::optional<double> frequencyMHz() const
    {
        return ends[0].frequencyMHz ? ends[0].frequencyMHz : ends[1].frequencyMHz;
    }
};

/// Puts links together while the layer of their ends is read from its first row to its last.
class LinkEndReader
{
public:
    /// @param siteField  index of the field that names the site of an end; negative: none does
    LinkEndReader(const OGRFeatureDefn &ends, int siteField);

    /// Whether the layer has the fields by which ends belong together.
    bool isComplete() const { return m_row >= 0 && m_end >= 0; }

    /// The fields that are read, by their index; negative ones are not there.
    std::array<int, 7> fields() const;

    /// Takes the next row. @return the link before it, where the row starts another one
    std::optional<PairedLink> add(const OGRFeature &feature);

    /// The last link, after all rows.
    std::optional<PairedLink> finish();

private:
    PairedLink::End endOf(const OGRFeature &feature) const;

    int m_site;
    int m_row;
    int m_end;
    int m_name;
    int m_height;
    int m_frequency;
    int m_length;
    std::optional<PairedLink> m_link; ///< whose ends are being read
};

} // namespace vlt::linkpath
