#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// A window over a byte stream that slides forward: whole records lie in it side by side.
///
/// A second thread fetches (reads, inflates, recodes) the next chunk while the caller works on this
/// one; it starts only when the stream is longer than one chunk.
class ChunkedInput
{
public:
    explicit ChunkedInput(std::unique_ptr<ByteSource> source);
    ~ChunkedInput();
    ChunkedInput(const ChunkedInput &) = delete;
    ChunkedInput &operator=(const ChunkedInput &) = delete;

    const char *begin() const { return m_begin; }
    const char *end() const { return m_end; }

    /// Drops what lies before `keepFrom` and appends the next chunk behind end(). Pointers into the
    /// window move: keepFrom is then begin(). False at the end of the stream, with the window as it
    /// was. Throws RefusedFile where the stream is damaged or a record outgrows the limit of one
    /// row.
    bool more(const char *keepFrom);

private:
    struct Buffer;
    class Fetcher;

    void takeOver(std::unique_ptr<Buffer> next, const char *keepFrom);

    std::unique_ptr<Fetcher> m_fetcher;
    std::unique_ptr<Buffer> m_current;
    std::unique_ptr<Buffer> m_spare;
    /// Holds the window while a record is longer than a chunk's headroom.
    std::vector<char> m_spill;
    const char *m_begin = nullptr;
    const char *m_end = nullptr;
};

} // namespace vlt::driver
