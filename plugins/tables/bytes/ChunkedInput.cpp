#include "plugins/tables/bytes/ChunkedInput.h"

#include "plugins/tables/bytes/Refusal.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <exception>
#include <limits>
#include <mutex>
#include <system_error>
#include <thread>

#if defined(__linux__)
#include <sched.h>
#endif

namespace vlt::driver {

namespace {

constexpr std::size_t ChunkSize = std::size_t{256} << 10;
/// Space before a chunk for the unread end of the previous one.
constexpr std::size_t Headroom = std::size_t{32} << 10;
/// Enough to find the header, so that only tables that are read further need larger chunks.
constexpr std::size_t FirstChunkSize = std::size_t{64} << 10;
constexpr std::size_t BuffersAhead = 3;
constexpr int SpinTurns = 2000;
constexpr std::size_t MaxRowSize = std::size_t{256} << 20;

void relax()
{
#if defined(__x86_64__)
    __builtin_ia32_pause();
#else
    std::this_thread::yield();
#endif
}

/// Moves the new thread to another core. The scheduler would otherwise leave both threads on one
/// core for about as long as it takes to read a table. Afterwards the thread may run on any core
/// again.
void leaveCore([[maybe_unused]] int core)
{
#if defined(__linux__)
    cpu_set_t all;
    if (core < 0 || sched_getaffinity(0, sizeof all, &all) != 0)
        return;
    cpu_set_t others = all;
    CPU_CLR(core, &others);
    if (CPU_COUNT(&others) > 0 && sched_setaffinity(0, sizeof others, &others) == 0)
        sched_setaffinity(0, sizeof all, &all);
#endif
}

int currentCore()
{
#if defined(__linux__)
    return sched_getcpu();
#else
    return -1;
#endif
}

} // namespace

struct ChunkedInput::Buffer
{
    std::unique_ptr<char[]> bytes = std::make_unique_for_overwrite<char[]>(Headroom + ChunkSize);
    std::size_t size = 0;
    bool last = false;

    char *data() { return bytes.get() + Headroom; }
};

/// Fills buffers from the source: the first ones in the caller's thread, the others in advance in a
/// second thread.
class ChunkedInput::Fetcher
{
public:
    explicit Fetcher(std::unique_ptr<ByteSource> source) : m_source(std::move(source)) {}

    ~Fetcher()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_stop = true;
        }
        m_roomFreed.notify_all();
        if (m_thread.joinable())
            m_thread.join();
    }

    /// The next buffer; null at the end. `spare` is a used buffer that can be filled again.
    std::unique_ptr<Buffer> next(std::unique_ptr<Buffer> spare)
    {
        if (m_finished)
            return nullptr;
        std::unique_ptr<Buffer> buffer;
        if (m_synchronous > 0) {
            buffer = spare ? std::move(spare) : std::make_unique<Buffer>();
            fill(*buffer, m_synchronous == 2 ? FirstChunkSize : ChunkSize);
            --m_synchronous;
        } else {
            if (!m_thread.joinable() && !startThread())
                return next(std::move(spare));
            buffer = wait(std::move(spare));
        }
        m_finished = buffer->last;
        if (buffer->size == 0)
            return nullptr;
        return buffer;
    }

private:
    /// If the system cannot start a thread, the caller's thread continues to fetch.
    bool startThread()
    {
        try {
            m_thread = std::thread([this, core = currentCore()] {
                leaveCore(core);
                run();
            });
        } catch (const std::system_error &) {
            m_synchronous = std::numeric_limits<int>::max();
        }
        return m_thread.joinable();
    }

    void fill(Buffer &buffer, std::size_t size)
    {
        buffer.size = 0;
        while (buffer.size < size) {
            const std::size_t got = m_source->read(buffer.data() + buffer.size, size - buffer.size);
            if (got == 0)
                break;
            buffer.size += got;
        }
        buffer.last = buffer.size < size;
    }

    std::unique_ptr<Buffer> wait(std::unique_ptr<Buffer> spare)
    {
        if (spare) {
            const std::lock_guard lock(m_mutex);
            m_spares.push_back(std::move(spare));
        }
        // Fetching a chunk takes less time than waking a sleeping thread.
        for (int turn = 0; turn < SpinTurns && m_readyCount.load(std::memory_order_acquire) == 0;
             ++turn)
            relax();
        std::unique_lock lock(m_mutex);
        m_filled.wait(lock, [this] { return !m_ready.empty() || m_failure; });
        if (m_ready.empty())
            std::rethrow_exception(m_failure);
        std::unique_ptr<Buffer> buffer = std::move(m_ready.front());
        m_ready.pop_front();
        --m_readyCount;
        m_roomFreed.notify_one();
        return buffer;
    }

    void run()
    {
        try {
            bool last = false;
            while (!last) {
                std::unique_ptr<Buffer> buffer;
                for (int turn = 0; turn < SpinTurns &&
                                   m_readyCount.load(std::memory_order_acquire) >= BuffersAhead;
                     ++turn)
                    relax();
                {
                    std::unique_lock lock(m_mutex);
                    m_roomFreed.wait(lock,
                                     [this] { return m_stop || m_ready.size() < BuffersAhead; });
                    if (m_stop)
                        return;
                    if (!m_spares.empty()) {
                        buffer = std::move(m_spares.back());
                        m_spares.pop_back();
                    }
                }
                if (!buffer)
                    buffer = std::make_unique<Buffer>();
                fill(*buffer, ChunkSize);
                last = buffer->last;
                {
                    const std::lock_guard lock(m_mutex);
                    m_ready.push_back(std::move(buffer));
                    ++m_readyCount;
                }
                m_filled.notify_one();
            }
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            m_failure = std::current_exception();
            m_filled.notify_one();
        }
    }

    std::unique_ptr<ByteSource> m_source;
    int m_synchronous = 2; ///< number of buffers left to fill in the caller's thread
    bool m_finished = false;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_filled;
    std::condition_variable m_roomFreed;
    std::deque<std::unique_ptr<Buffer>> m_ready;
    std::atomic<std::size_t> m_readyCount = 0; ///< size of m_ready, readable without the lock
    std::vector<std::unique_ptr<Buffer>> m_spares;
    std::exception_ptr m_failure;
    bool m_stop = false;
};

ChunkedInput::ChunkedInput(std::unique_ptr<ByteSource> source)
    : m_fetcher(std::make_unique<Fetcher>(std::move(source)))
{
    static const char nothing[1] = {0};
    m_begin = m_end = nothing;
}

ChunkedInput::~ChunkedInput() = default;

bool ChunkedInput::more(const char *keepFrom)
{
    std::unique_ptr<Buffer> next = m_fetcher->next(std::move(m_spare));
    if (!next)
        return false;
    takeOver(std::move(next), keepFrom);
    return true;
}

void ChunkedInput::takeOver(std::unique_ptr<Buffer> next, const char *keepFrom)
{
    const std::size_t tail = static_cast<std::size_t>(m_end - keepFrom);
    if (tail > MaxRowSize)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_LONG_ROW");
    if (tail <= Headroom) {
        char *start = next->data() - tail;
        if (tail > 0)
            std::memcpy(start, keepFrom, tail);
        m_begin = start;
        m_end = next->data() + next->size;
        std::vector<char>().swap(m_spill);
    } else {
        if (m_spill.empty())
            m_spill.assign(keepFrom, m_end);
        else
            m_spill.erase(m_spill.begin(), m_spill.begin() + (keepFrom - m_spill.data()));
        m_spill.insert(m_spill.end(), next->data(), next->data() + next->size);
        m_begin = m_spill.data();
        m_end = m_spill.data() + m_spill.size();
    }
    m_spare = std::move(m_current); // its bytes were copied, so it can be reused
    m_current = std::move(next);
}

} // namespace vlt::driver
