#include "plugins/tables/formats/text/EncodingGuess.h"

#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/formats/text/Plausibility.h"
#include "plugins/tables/formats/text/Utf8Check.h"

#include <algorithm>
#include <array>
#include <vector>

#include <uchardet.h>

namespace vlt::driver {

namespace {

constexpr char Western[] = "WINDOWS-1252";
constexpr char Cyrillic[] = "WINDOWS-1251";
constexpr std::size_t BlockSize = std::size_t{1} << 20;
constexpr std::size_t SampleSize = std::size_t{64} << 10;
constexpr std::size_t CharactersPerBadByte = 2; ///< minimum for a text in UTF-8
constexpr double ClearlyBetter = 0.1;
constexpr double Negligible = 1e-9;
constexpr std::size_t FewAccents = 8;

struct DetectorRelease
{
    void operator()(uchardet *detector) const { uchardet_delete(detector); }
};

/// The bytes of a file that matter for its encoding.
struct Census
{
    Utf8Count utf8;
    std::string sample; ///< lines that contain bytes above ASCII

    void add(std::string_view lines)
    {
        const Utf8Count count = countUtf8(lines);
        utf8.characters += count.characters;
        utf8.badBytes += count.badBytes;
        for (std::size_t at = skipAscii(lines, 0);
             at < lines.size() && sample.size() < SampleSize;) {
            const std::size_t before = lines.find_last_of("\r\n", at);
            const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
            const std::size_t end = std::min(lines.find_first_of("\r\n", at), lines.size());
            sample.append(lines.substr(begin, std::min(end - begin, SampleSize)));
            sample += '\n';
            at = skipAscii(lines, end);
        }
    }
};

Census censusOf(const std::shared_ptr<const InputFile> &file)
{
    Census census;
    FileSource source(file, {{0, file->size()}});
    std::string block;
    std::size_t kept = 0; ///< bytes of a line that continues in the next block
    for (;;) {
        block.resize(kept + BlockSize);
        const std::size_t got = source.read(block.data() + kept, BlockSize);
        block.resize(kept + got);
        const std::size_t lineEnd = got > 0 ? block.find_last_of("\r\n") : std::string::npos;
        const std::size_t whole = lineEnd == std::string::npos ? block.size() : lineEnd + 1;
        census.add(std::string_view(block).substr(0, whole));
        block.erase(0, whole);
        kept = block.size();
        if (got == 0)
            return census;
    }
}

std::string detected(const std::string &sample)
{
    const std::unique_ptr<uchardet, DetectorRelease> detector(uchardet_new());
    if (uchardet_handle_data(detector.get(), sample.data(), sample.size()) != 0)
        return {};
    uchardet_data_end(detector.get());
    return uchardet_get_charset(detector.get());
}

/// Standard encodings and the similar ones of Windows, which the detector does not distinguish
/// well.
constexpr std::array<std::array<const char *, 2>, 7> Relatives = {{{"ISO-8859-2", "WINDOWS-1250"},
                                                                   {"ISO-8859-7", "WINDOWS-1253"},
                                                                   {"ISO-8859-8", "WINDOWS-1255"},
                                                                   {"ISO-8859-9", "WINDOWS-1254"},
                                                                   {"ISO-8859-13", "WINDOWS-1257"},
                                                                   {"ISO-8859-4", "WINDOWS-1257"},
                                                                   {"TIS-620", "WINDOWS-874"}}};

/// The encodings that an answer of the detector may stand for.
std::vector<std::string> candidates(const std::string &answer)
{
    for (const auto &[standard, windows] : Relatives) {
        if (answer == standard || answer == windows)
            return {windows, standard};
    }
    if (answer.empty())
        return {};
    return {answer};
}

double plausibilityOf(const std::string &sample, const std::string &encoding)
{
    try {
        return plausibility(recoded(sample, encoding));
    } catch (const RefusedFile &) {
        return 0; // the system does not support the encoding
    }
}

} // namespace

std::string guessEncoding(const std::shared_ptr<const InputFile> &file)
{
    const Census census = censusOf(file);
    if (census.utf8.characters >= CharactersPerBadByte * census.utf8.badBytes)
        return Utf8;
    const std::string answer = detected(census.sample);
    const std::vector<std::string> meant = candidates(answer);
    // With several accents, the detector rarely mistakes a western language for another one.
    const bool isSure = meant.size() > 1 && census.utf8.badBytes >= FewAccents;
    std::string best = Western;
    double most = plausibilityOf(census.sample, Western) + (isSure ? -Negligible : ClearlyBetter);
    for (const std::string &candidate : meant) {
        const double plausible = plausibilityOf(census.sample, candidate);
        if (plausible > most) {
            best = candidate;
            most = plausible;
        }
    }
    // The detector does not know every language with Cyrillic letters.
    const bool isCyrillic = answer.empty() && plausibilityOf(census.sample, Cyrillic) > most;
    return isCyrillic ? Cyrillic : best;
}

} // namespace vlt::driver
