#include "plugins/tables/cells/ByteScan.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vlt::driver {

namespace {

const char *findPairPlain(const char *begin, const char *end, char first, char second)
{
    while (end - begin >= 2) {
        const void *found = std::memchr(begin, first, static_cast<std::size_t>(end - begin - 1));
        if (!found)
            break;
        begin = static_cast<const char *>(found);
        if (begin[1] == second)
            return begin;
        ++begin;
    }
    return end;
}

const char *findAnyOfPlain(const char *begin, const char *end, char a, char b, char c)
{
    while (begin < end && *begin != a && *begin != b && *begin != c)
        ++begin;
    return begin;
}

#if defined(__x86_64__)

__attribute__((target("avx2,bmi"))) const char *findAnyOfAvx2(const char *begin, const char *end,
                                                              char a, char b, char c)
{
    const __m256i wantA = _mm256_set1_epi8(a);
    const __m256i wantB = _mm256_set1_epi8(b);
    const __m256i wantC = _mm256_set1_epi8(c);
    constexpr std::ptrdiff_t Width = 32;
    for (; end - begin >= Width; begin += Width) {
        const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(begin));
        const __m256i found = _mm256_or_si256(
            _mm256_cmpeq_epi8(bytes, wantA),
            _mm256_or_si256(_mm256_cmpeq_epi8(bytes, wantB), _mm256_cmpeq_epi8(bytes, wantC)));
        if (const auto mask = static_cast<uint32_t>(_mm256_movemask_epi8(found)))
            return begin + std::countr_zero(mask);
    }
    return findAnyOfPlain(begin, end, a, b, c);
}

__attribute__((target("avx2,bmi"))) const char *findPairAvx2(const char *begin, const char *end,
                                                             char first, char second)
{
    const __m256i a = _mm256_set1_epi8(first);
    const __m256i b = _mm256_set1_epi8(second);
    constexpr std::ptrdiff_t Width = 32;
    for (; end - begin > 2 * Width; begin += 2 * Width) {
        const auto at = [begin](std::ptrdiff_t offset) __attribute__((target("avx2")))
        {
            return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(begin + offset));
        };
        const __m256i low =
            _mm256_and_si256(_mm256_cmpeq_epi8(at(0), a), _mm256_cmpeq_epi8(at(1), b));
        const __m256i high =
            _mm256_and_si256(_mm256_cmpeq_epi8(at(Width), a), _mm256_cmpeq_epi8(at(Width + 1), b));
        const __m256i either = _mm256_or_si256(low, high);
        if (_mm256_testz_si256(either, either))
            continue;
        const uint64_t mask =
            static_cast<uint32_t>(_mm256_movemask_epi8(low)) |
            static_cast<uint64_t>(static_cast<uint32_t>(_mm256_movemask_epi8(high))) << Width;
        return begin + std::countr_zero(mask);
    }
    return findPairPlain(begin, end, first, second);
}

using PairFinder = const char *(*)(const char *, const char *, char, char);
using AnyFinder = const char *(*)(const char *, const char *, char, char, char);

const PairFinder BestPairFinder = __builtin_cpu_supports("avx2") ? findPairAvx2 : findPairPlain;
const AnyFinder BestAnyFinder = __builtin_cpu_supports("avx2") ? findAnyOfAvx2 : findAnyOfPlain;

#else

constexpr auto BestPairFinder = findPairPlain;
constexpr auto BestAnyFinder = findAnyOfPlain;

#endif

} // namespace

const char *findPair(const char *begin, const char *end, char first, char second)
{
    return BestPairFinder(begin, end, first, second);
}

const char *findAnyOf(const char *begin, const char *end, char a, char b, char c)
{
    return BestAnyFinder(begin, end, a, b, c);
}

const char *findText(const char *begin, const char *end, std::string_view text)
{
    for (;;) {
        begin = findPair(begin, end, text[0], text[1]);
        if (begin == end || static_cast<std::size_t>(end - begin) < text.size())
            return end;
        if (std::memcmp(begin, text.data(), text.size()) == 0)
            return begin;
        ++begin;
    }
}

} // namespace vlt::driver
