#pragma once

#include "linkpath/PathProfiler.h"

#include <ogrsf_frmts.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace vlt::linkpath {

/// A link with the values of its two rows in the layer of link ends. Texts are as in the layer.
struct PairedLink
{
    struct End
    {
        std::string site;
        LinkEnd place;         ///< valid only if `isPlaced`
        bool isPlaced = false; ///< whether the row has a position
        std::optional<double> frequencyMHz;
    };

    std::int64_t row = 0; ///< row of the file, from 1
    std::string name;     ///< empty if the table has no names of links
    std::optional<double> lengthM;
    std::array<End, 2> ends; ///< A, B

    bool isPlaced() const { return ends[0].isPlaced && ends[1].isPlaced; }

    /// The frequency of end A, else of end B.
    std::optional<double> frequencyMHz() const
    {
        return ends[0].frequencyMHz ? ends[0].frequencyMHz : ends[1].frequencyMHz;
    }
};

/// Combines the rows of the layer of link ends into links. The rows are added from the first to the
/// last.
class LinkEndReader
{
public:
    /// @param siteField  index of the field with the site of an end; negative: there is none
    LinkEndReader(const OGRFeatureDefn &ends, int siteField);

    /// Whether the layer has the fields that assign ends to links.
    bool isComplete() const { return m_row >= 0 && m_end >= 0; }

    /// Indices of the fields that are read; negative for a missing field.
    std::array<int, 7> fields() const;

    /// Adds the next row. @return the previous link, if the row starts another one
    std::optional<PairedLink> add(const OGRFeature &feature);

    /// Returns the last link, after all rows were added.
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
    std::optional<PairedLink> m_link; ///< the link whose ends are being read
};

} // namespace vlt::linkpath
