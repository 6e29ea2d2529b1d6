#include "plugins/tables/table/SheetChoice.h"

#include "plugins/tables/bytes/Refusal.h"

#include <tuple>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxSheetsRead = 64;

bool isConvincing(const Header &header)
{
    return header.wordCount >= 2 && header.names.size() >= 2 && header.hasRowsBelow;
}

bool isBetter(const ChosenSheet &candidate, const ChosenSheet &best)
{
    const auto rank = [](const ChosenSheet &of) {
        const bool convinces = isConvincing(of.header);
        const int words = of.header.wordCount >= 2 ? of.header.wordCount : 0;
        return std::make_tuple(!of.sheet->hidden(), of.suitability, of.header.hasRowsBelow,
                               convinces, convinces ? 0 : words);
    };
    return rank(candidate) > rank(best);
}

/// Finds the best one of several sheets.
class Search
{
public:
    explicit Search(const TableHints &hints) : m_hints(hints) {}

    void offer(const std::shared_ptr<Sheet> &sheet)
    {
        try {
            std::optional<Header> header =
                findHeader(*sheet, m_hints.kind, *m_hints.vocabulary, m_hints.headerRows, widest);
            if (!header)
                return;
            ChosenSheet candidate = {sheet, std::move(*header), 0};
            if (m_hints.mustSuit) {
                offerRated(std::move(candidate));
                return;
            }
            if (!best.sheet) { // with a single sheet there is no choice
                best = std::move(candidate);
                return;
            }
            if (!m_isFirstRated)
                rate(best);
            m_isFirstRated = true;
            rate(candidate);
            if (isBetter(candidate, best))
                best = std::move(candidate);
        } catch (const RefusedFile &) { // a damaged sheet matters only if it may be the wanted one
            if (!best.sheet || !isConvincing(best.header))
                throw;
        }
    }

    bool isSettled() const
    {
        // whether a sheet is hidden may take a search
        return best.sheet &&
               (m_hints.suitability ? best.suitability >= m_hints.highestSuitability
                                    : isConvincing(best.header)) &&
               !best.sheet->hidden();
    }

    ChosenSheet best;
    std::size_t widest = 0; ///< number of cells of the widest row

private:
    void offerRated(ChosenSheet candidate)
    {
        rate(candidate);
        if (candidate.suitability > 0 && (!best.sheet || isBetter(candidate, best)))
            best = std::move(candidate);
    }

    void rate(ChosenSheet &candidate) const
    {
        if (candidate.header.hasRowsBelow && m_hints.suitability)
            candidate.suitability =
                m_hints.suitability(*readStart(*candidate.sheet, candidate.header, m_hints));
    }

    const TableHints &m_hints;
    bool m_isFirstRated = false;
};

} // namespace

ChosenSheet chooseSheet(Workbook &workbook, const TableHints &hints,
                        const std::function<void(const ChosenSheet &)> &readRows)
{
    Search search(hints);
    bool anySheet = false;
    bool mayReadRows = workbook.searchesSheets();
    for (std::size_t seen = 0; seen < MaxSheetsRead && !search.isSettled(); ++seen) {
        const std::shared_ptr<Sheet> sheet = workbook.nextSheet();
        if (!sheet)
            break;
        if ((!hints.sheet.empty() && sheet->name() != hints.sheet) ||
            (!hints.otherThan.empty() && sheet->name() == hints.otherThan))
            continue;
        anySheet = true;
        search.offer(sheet);
        if (mayReadRows && search.best.sheet) {
            readRows(search.best);
            mayReadRows = false;
        }
        if (!hints.sheet.empty() && search.best.sheet)
            break;
    }
    if (search.best.sheet)
        return search.best;
    if (!hints.sheet.empty() && !anySheet)
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_NO_SHEET", {hints.sheet});
    if (search.widest == 0)
        throw RefusedFile(Refusal::Empty, "MESS_TAB_NO_VALUE");
    if (search.widest == 1)
        throw RefusedFile(Refusal::OneColumn, "MESS_TAB_FILE_OF_ONE_COLUMN");
    throw RefusedFile(Refusal::NoHeader, "MESS_TAB_NO_HEADER");
}

std::vector<std::string> sheetsWithColumns(Workbook &workbook, const Header &header,
                                           const TableHints &hints)
{
    std::vector<std::string> names;
    for (std::size_t seen = 0; seen < MaxSheetsRead; ++seen) {
        try {
            const std::shared_ptr<Sheet> sheet = workbook.nextSheet();
            if (!sheet)
                break;
            if (sheet->name() == hints.otherThan || sheet->hidden())
                continue;
            std::size_t widest = 0;
            const auto other =
                findHeader(*sheet, hints.kind, *hints.vocabulary, std::nullopt, widest);
            if (other && other->hasRowsBelow && !other->rows.empty() &&
                other->names == header.names)
                names.push_back(sheet->name());
        } catch (const RefusedFile &) {
            continue;
        }
    }
    return names;
}

} // namespace vlt::driver
