#include "plugins/tables/formats/text/TextFormat.h"

#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/formats/text/EncodingGuess.h"
#include "plugins/tables/formats/text/Utf8Check.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace vlt::driver {

namespace {

constexpr std::size_t SampleLines = 200;
/// By priority: the comma is the last one because it is a decimal mark too.
constexpr std::string_view Delimiters = ";\t|,";
/// A text has at most this number of control characters, or one among 200 characters.
constexpr std::size_t FewControls = 3;
constexpr std::size_t CharactersPerControl = 200;

/// Encoding of a text without a byte order mark whose characters have two or four bytes. It is
/// found by a regular pattern of zero bytes. Empty for other texts.
std::string wideEncoding(std::string_view text)
{
    std::size_t zeros[4] = {};
    const std::size_t units = text.size() / 4;
    for (std::size_t at = 0; at < units * 4; ++at)
        zeros[at % 4] += text[at] == '\0' ? 1 : 0;
    const auto most = [units](std::size_t count) { return units > 0 && count * 10 >= units * 7; };
    if (most(zeros[1]) && most(zeros[2]) && most(zeros[3]) && !most(zeros[0]))
        return "UTF-32LE";
    if (most(zeros[0]) && most(zeros[1]) && most(zeros[2]) && !most(zeros[3]))
        return "UTF-32BE";
    const auto few = [units](std::size_t count) { return count * 10 <= units; };
    if (most(zeros[1]) && most(zeros[3]) && few(zeros[0]) && few(zeros[2]))
        return "UTF-16LE";
    if (most(zeros[0]) && most(zeros[2]) && few(zeros[1]) && few(zeros[3]))
        return "UTF-16BE";
    return {};
}

/// Counts the fields of each line and respects quotes.
class FieldCounter
{
public:
    explicit FieldCounter(char delimiter) : m_delimiter(delimiter) {}

    /// Whether a character opens a quoted field.
    bool opens(char c) const { return c == '"' && m_state.fieldStart && !m_state.quoted; }

    /// Adds a character; with `isPlain` a quotation mark is an ordinary character.
    void add(char c, bool isPlain = false)
    {
        const bool reopens = m_state.closed && c == '"';
        m_state.closed = m_state.quoted && c == '"';
        if (m_state.quoted)
            m_state.quoted = c != '"';
        else if (reopens || (opens(c) && !isPlain))
            m_state.quoted = true;
        else if (c == '\n' || c == '\r')
            return endLine();
        m_state.lineStart = false;
        m_state.fieldStart = c == m_delimiter && !m_state.quoted;
        m_state.fields += m_state.fieldStart ? 1 : 0;
    }
    void endLine()
    {
        if (!m_state.lineStart)
            m_counts.push_back(m_state.fields);
        m_state = {};
        m_state.lines = m_counts.size();
    }

    /// The state between two characters, to which goBack() can return.
    struct State
    {
        std::size_t lines = 0; ///< number of complete lines
        std::size_t fields = 1;
        bool quoted = false;
        bool fieldStart = true;
        bool lineStart = true;
        bool closed = false; ///< the previous character closed a quoted field or began a
                             ///< doubled mark
    };
    const State &state() const { return m_state; }
    void goBack(const State &state)
    {
        m_state = state;
        m_counts.resize(state.lines);
    }
    const std::vector<std::size_t> &counts() const { return m_counts; }

private:
    char m_delimiter;
    std::vector<std::size_t> m_counts;
    State m_state;
};

/// Number of fields of each line if cut at `delimiter`. As in TextRows, a quotation mark that is
/// never closed is an ordinary character.
std::vector<std::size_t> fieldCounts(std::string_view text, char delimiter, bool isWhole)
{
    constexpr int MaxUnclosed = 8;
    FieldCounter counter(delimiter);
    FieldCounter::State beforeMark;
    std::size_t mark = 0;
    int unclosed = 0;
    for (std::size_t at = 0; at < text.size() && counter.counts().size() < SampleLines; ++at) {
        if (counter.opens(text[at])) {
            beforeMark = counter.state();
            mark = at;
        }
        counter.add(text[at]);
        const bool isUnclosed = isWhole && at + 1 == text.size() && counter.state().quoted;
        if (isUnclosed && ++unclosed <= MaxUnclosed) {
            counter.goBack(beforeMark);
            counter.add(text[mark], true);
            at = mark;
        }
    }
    if (isWhole || counter.counts().empty())
        counter.endLine();
    return counter.counts();
}

/// The most frequent number of fields above one, and the number of lines with it.
struct CommonCount
{
    std::size_t fields = 0;
    std::size_t lines = 0;
};

CommonCount commonCount(const std::vector<std::size_t> &counts)
{
    std::map<std::size_t, std::size_t> lines;
    for (const std::size_t count : counts)
        ++lines[count];
    CommonCount common;
    for (const auto &[fields, number] : lines) {
        if (fields > 1 && number >= common.lines)
            common = {fields, number};
    }
    return common;
}

/// How well a delimiter fits the lines: the share of lines with the most frequent number of fields
/// above one, slightly increased by that number.
double score(const std::vector<std::size_t> &counts)
{
    const CommonCount common = commonCount(counts);
    if (common.fields < 2)
        return 0;
    // In prose, few lines have a comma; in a table, every line below the titles has delimiters.
    const auto first =
        std::find_if(counts.begin(), counts.end(), [](std::size_t count) { return count > 1; });
    const auto cut =
        std::count_if(first, counts.end(), [](std::size_t count) { return count > 1; });
    if (cut * 10 < (counts.end() - first) * 7)
        return 0;
    return static_cast<double>(common.lines) / static_cast<double>(counts.size()) *
           (1 + 0.1 * std::log2(static_cast<double>(common.fields)));
}

char findDelimiter(std::string_view text, bool isWhole)
{
    char best = 0;
    double bestScore = 0;
    for (const char delimiter : Delimiters) {
        if (const double value = score(fieldCounts(text, delimiter, isWhole));
            value > bestScore + 1e-9) {
            best = delimiter;
            bestScore = value;
        }
    }
    if (best == 0)
        throw RefusedFile(Refusal::OneColumn, "MESS_TAB_NO_DELIMITER");
    return best;
}

bool isNamedUtf8(const std::string &encoding)
{
    std::string name = encoding;
    std::erase(name, '-');
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return name == "utf8";
}

bool looksLikeJson(std::string_view text)
{
    if (text[0] != '{' && text[0] != '[')
        return false;
    const std::size_t inner = text.find_first_not_of(" \t\r\n", 1);
    return inner != std::string_view::npos &&
           std::string_view("{[\"").find(text[inner]) != std::string_view::npos;
}

void refuseOtherKinds(std::string_view text)
{
    const std::string_view start =
        text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    if (start.empty())
        throw RefusedFile(Refusal::Empty, "MESS_TAB_BLANK_FILE");
    if (looksLikeJson(start))
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_JSON");
    if (start.starts_with("ID;P"))
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_SYLK");
    std::size_t controls = 0; // zero bytes are accepted, because some loggers pad with them
    for (const char c : text)
        controls += static_cast<unsigned char>(c) < 0x20 &&
                            std::string_view("\n\r\t\f\0", 5).find(c) == std::string_view::npos
                        ? 1
                        : 0;
    if (controls > FewControls && controls * CharactersPerControl > text.size())
        throw RefusedFile(Refusal::NotATable, "MESS_TAB_BINARY_FILE");
}

} // namespace

TextFormat findTextFormat(const std::shared_ptr<const InputFile> &file, const TextHints &hints)
{
    TextFormat format;
    const std::string head = file->head(TextSampleSize);
    std::size_t markSize = 0;
    format.encoding = encodingOfMark(head, markSize);
    format.start = markSize;
    std::string text = head.substr(markSize);
    if (!hints.encoding.empty())
        format.encoding = isNamedUtf8(hints.encoding) ? Utf8 : hints.encoding;
    else if (format.encoding.empty())
        format.encoding = wideEncoding(text);
    format.isStated = !format.encoding.empty();
    if (!format.isStated) {
        // At the end of the sample a character may be incomplete, but not at the end of the file.
        const bool isWhole = head.size() < TextSampleSize;
        format.encoding = isUtf8(isWhole ? text + '\n' : text) ? Utf8 : guessEncoding(file);
    }
    text = format.isUtf8() ? repairedUtf8(text) : recoded(text, format.encoding);
    refuseOtherKinds(text);
    if ((text.starts_with("sep=") || text.starts_with("SEP=")) && text.size() > 5 &&
        (text[5] == '\r' || text[5] == '\n')) {
        format.delimiter = text[4];
        const std::size_t lineSize = text.substr(5, 2) == "\r\n" ? 7 : 6;
        text.erase(0, lineSize);
        if (format.isUtf8()) { // in wide encodings the line is read as a title row
            format.start += lineSize;
            format.firstRow = 2;
        }
    } else
        format.delimiter =
            hints.delimiter ? hints.delimiter : findDelimiter(text, head.size() < TextSampleSize);
    format.fieldCount =
        commonCount(fieldCounts(text, format.delimiter, head.size() < TextSampleSize)).fields;
    return format;
}

} // namespace vlt::driver
