#pragma once

#include "plugins/tables/links/LinkLayout.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/values/TransmitterValues.h"

#include <array>
#include <optional>
#include <string>

namespace vlt::driver {

/// The values of one end of a link, without its position.
struct LinkEndValues
{
    std::string identifier;        ///< empty if the table has none
    std::optional<double> heightM; ///< antenna above ground
    std::optional<double> frequencyMHz;
    std::optional<double> azimuthDeg;
    std::optional<double> tiltDeg;
};

/// The values of a link.
struct LinkValues
{
    std::string name; ///< empty if the table has none
    std::array<LinkEndValues, 2> ends;
    std::optional<double> lengthM; ///< as stated; nothing if its unit is not known
};

/// Reads the values of links and reports those that cannot be used.
class LinkValueReader
{
public:
    LinkValueReader(const TableProfile &table, const LinkLayout &layout,
                    const Vocabulary &vocabulary);

    LinkValues read(int64_t row, const std::vector<const Cell *> &cells,
                    std::vector<RowProblem> &problems) const;
    /// Problems of the whole table.
    std::vector<RowProblem> tableProblems() const;

private:
    struct RowContext;
    using ReadAngle = TransmitterValue (*)(std::string_view text, double unitDeg,
                                           const ValueWords &words);
    std::optional<double> frequencyMHz(const RowContext &context, const QuantityField &frequency,
                                       bool &isUnreadable) const;
    void readFrequencies(const RowContext &context, LinkValues &values) const;
    std::optional<double> heightM(const RowContext &context, const QuantityField &height) const;
    std::optional<double> degrees(const RowContext &context, const QuantityField &angle,
                                  ReadAngle readAngle, contract::TableTextId unreadable,
                                  contract::TableTextId outOfRange) const;
    std::optional<double> lengthM(const RowContext &context) const;
    std::string columnsOf(Role role) const;
    const std::string &nameOf(int field) const;

    const TableProfile *m_table;
    const LinkLayout *m_layout;
    ValueWords m_words;
};

} // namespace vlt::driver
