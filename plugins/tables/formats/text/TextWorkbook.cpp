#include "plugins/tables/formats/text/TextWorkbook.h"

#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/formats/text/EncodingGuess.h"
#include "plugins/tables/formats/text/TextRows.h"
#include "plugins/tables/formats/text/Utf8Check.h"

#include <algorithm>
#include <atomic>

namespace vlt::driver {

namespace {

/// Passes bytes on and checks whether they are UTF-8, in the thread that fetches them.
class WatchedSource : public ByteSource
{
public:
    WatchedSource(std::unique_ptr<ByteSource> source, std::atomic<bool> &notUtf8)
        : m_source(std::move(source))
        , m_notUtf8(notUtf8)
    {}

    std::size_t read(char *to, std::size_t size) override
    {
        const std::size_t got = m_source->read(to, size);
        if (!m_notUtf8.load(std::memory_order_relaxed) && !goesOnAsUtf8({to, got}))
            m_notUtf8.store(true, std::memory_order_relaxed);
        return got;
    }

private:
    /// A character may be divided between two blocks; the second one then has to complete it.
    bool goesOnAsUtf8(std::string_view piece)
    {
        const std::string seam = m_tail + (piece.empty() ? "\n" : std::string(piece.substr(0, 3)));
        const std::string_view end = piece.size() < 3 ? std::string_view(seam) : piece;
        m_tail = end.substr(end.size() - std::min<std::size_t>(end.size(), 3));
        return isUtf8Piece(piece) && isUtf8Piece(seam);
    }

    std::string m_tail; ///< the last bytes of the previous block
    std::unique_ptr<ByteSource> m_source;
    std::atomic<bool> &m_notUtf8;
};

class TextSheet : public Sheet
{
public:
    TextSheet(std::shared_ptr<const InputFile> file, std::string name, const TextFormat &format,
              bool isWatched)
        : m_file(std::move(file))
        , m_name(std::move(name))
        , m_format(format)
        , m_isWatched(isWatched)
    {}

    const std::string &name() const override { return m_name; }

    TextEncoding encoding() const override
    {
        return {m_format.encoding, !m_format.isStated && !m_format.isUtf8()};
    }

    char delimiter() const override { return m_format.delimiter; }

    std::unique_ptr<RowReader> rows() const override
    {
        return rowsAt(m_format.start, m_format.firstRow);
    }

    std::unique_ptr<RowReader> rowsFrom(uint64_t position, int64_t rowNumber) const override
    {
        return m_format.isUtf8() ? rowsAt(position, rowNumber) : nullptr;
    }

    bool settleEncoding() override
    {
        if (!m_isWatched || !m_notUtf8)
            return true;
        m_isWatched = false;
        m_format.encoding = guessEncoding(m_file);
        return m_format.isUtf8();
    }

private:
    std::unique_ptr<RowReader> rowsAt(uint64_t position, int64_t number) const
    {
        std::unique_ptr<ByteSource> source = std::make_unique<FileSource>(
            m_file, std::vector<Extent>{{position, m_file->size() - position}});
        if (m_isWatched)
            source = std::make_unique<WatchedSource>(std::move(source), m_notUtf8);
        else if (!m_format.isUtf8())
            source = std::make_unique<RecodeSource>(std::move(source), m_format.encoding);
        return std::make_unique<TextRows>(std::move(source), m_format, number, position);
    }

    std::shared_ptr<const InputFile> m_file;
    std::string m_name;
    TextFormat m_format;
    bool m_isWatched; ///< the start is UTF-8, so the other bytes have to be checked
    mutable std::atomic<bool> m_notUtf8 = false;
};

class TextWorkbook : public Workbook
{
public:
    explicit TextWorkbook(std::shared_ptr<Sheet> sheet) : m_sheet(std::move(sheet)) {}

    std::shared_ptr<Sheet> nextSheet() override { return std::move(m_sheet); }

private:
    std::shared_ptr<Sheet> m_sheet;
};

} // namespace

std::unique_ptr<Workbook> openText(std::shared_ptr<const InputFile> file, const std::string &name,
                                   const TextHints &hints)
{
    const TextFormat format = findTextFormat(file, hints);
    const bool isWatched = !format.isStated && format.isUtf8();
    return std::make_unique<TextWorkbook>(
        std::make_shared<TextSheet>(std::move(file), name, format, isWatched));
}

} // namespace vlt::driver
