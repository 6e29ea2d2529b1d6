#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// A window that moves forward over a byte stream. A record is contiguous in the window, even if it
/// crosses the boundary of a chunk.
///
/// A second thread fetches (reads, inflates, recodes) the next chunk while the caller uses the
/// current one. It starts only if the stream is longer than the first chunks.
class ChunkedInput
{
public:
    explicit ChunkedInput(std::unique_ptr<ByteSource> source);
    ~ChunkedInput();
    ChunkedInput(const ChunkedInput &) = delete;
    ChunkedInput &operator=(const ChunkedInput &) = delete;

    const char *begin() const { return m_begin; }
    const char *end() const { return m_end; }

    /// Drops the bytes before `keepFrom` and appends the next chunk. All pointers into the window
    /// become invalid; the byte at `keepFrom` is then at begin(). Returns false and leaves the
    /// window unchanged at the end of the stream. Throws RefusedFile if the stream is damaged or a
    /// record is larger than the maximum of a row.
    bool more(const char *keepFrom);

private:
    struct Buffer;
    class Fetcher;

    void takeOver(std::unique_ptr<Buffer> next, const char *keepFrom);

    std::unique_ptr<Fetcher> m_fetcher;
    std::unique_ptr<Buffer> m_current;
    std::unique_ptr<Buffer> m_spare;
    /// The window while a record is longer than the headroom of a buffer; empty otherwise.
    std::vector<char> m_spill;
    const char *m_begin = nullptr;
    const char *m_end = nullptr;
};

} // namespace vlt::driver
