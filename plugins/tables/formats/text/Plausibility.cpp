#include "plugins/tables/formats/text/Plausibility.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace vlt::driver {

namespace {

/// Small letters above ASCII of one language, or of the languages of one country. Icelandic lacks
/// two letters (ý, þ), which have the same codes as two Turkish ones.
constexpr std::array<std::u32string_view, 16> Alphabets = {
    U"àâæçéèêëîïôœùûüÿäöß",  // French, German, Luxembourgish
    U"àèéìíîòóùúäöüßâêôç",   // Italian, Rhaeto-Romance, German
    U"áéíñóúüçàèïò",         // Spanish, Catalan, Galician
    U"ãáàâçéêíõóôúü",        // Portuguese
    U"åäöæøéèüóà",           // Danish, Norwegian, Swedish, Finnish
    U"áéíóúæöð",             // Icelandic
    U"ëïéèüöóáäêç",          // Dutch, Afrikaans
    U"ąćęłńóśźż",            // Polish
    U"áčďéěíňóřšťúůýžäľĺôŕ", // Czech, Slovak
    U"áéíóöőúüű",            // Hungarian
    U"ăâîșțşţ",              // Romanian
    U"čćđšž",                // Slovene, Croatian, Bosnian
    U"çğıöşüâîû",            // Turkish
    U"ąčęėįšųūž",            // Lithuanian
    U"āčēģīķļņšūžõäöü",      // Latvian, Estonian
    U"ăâđêôơưáàảãạéèẻẽẹíìỉĩịóòỏõọúùủũụýỳỷỹỵấầẩẫậắằẳẵặếềểễệốồổỗộớờởỡợứừửữự"};

/// Signs that can occur between two letters.
constexpr std::u32string_view SignsInWords = U"’‘–—·´°\u00A0\u00AD";

enum class Kind { Ascii, SmallAscii, Latin, OtherLetter, Sign, Unreadable };

bool isBetween(char32_t code, char32_t first, char32_t last)
{
    return code >= first && code <= last;
}

Kind kindOf(char32_t code)
{
    if (code < 0x80)
        return isBetween(code, 'a', 'z') ? Kind::SmallAscii : Kind::Ascii;
    if (code < 0xA0 || code == 0xFFFD)
        return Kind::Unreadable;
    if ((isBetween(code, 0xC0, 0x24F) && code != 0xD7 && code != 0xF7) ||
        isBetween(code, 0x1E00, 0x1EFF))
        return Kind::Latin;
    // Greek to Georgian, and the East Asian scripts with their punctuation and wide forms
    return isBetween(code, 0x370, 0x10FF) || isBetween(code, 0x3000, 0xD7AF) ||
                   isBetween(code, 0xF900, 0xFAFF) || isBetween(code, 0xFF00, 0xFFEF)
               ? Kind::OtherLetter
               : Kind::Sign;
}

bool isLetter(char32_t code)
{
    const Kind kind = kindOf(code);
    return kind == Kind::SmallAscii || kind == Kind::Latin || kind == Kind::OtherLetter ||
           isBetween(code, 'A', 'Z');
}

/// The small letter, for the letters of the alphabets above.
char32_t smallLetter(char32_t code)
{
    if (isBetween(code, 0xC0, 0xDE))
        return code + 0x20;
    if (code == 0x178)
        return 0xFF;
    const bool oddIsCapital = isBetween(code, 0x139, 0x148) || isBetween(code, 0x179, 0x17E) ||
                              isBetween(code, 0x1AF, 0x1B0);
    const bool isPaired = isBetween(code, 0x100, 0x177) || isBetween(code, 0x1A0, 0x1A1) ||
                          isBetween(code, 0x218, 0x21B) || isBetween(code, 0x1E00, 0x1EFF);
    if (oddIsCapital)
        return code + (code & 1);
    return isPaired && code != 0x131 ? code | 1 : code;
}

/// The code points of a text in UTF-8.
std::u32string codesOf(std::string_view text)
{
    std::u32string codes;
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at++]);
        char32_t code = lead < 0x80   ? lead
                        : lead < 0xE0 ? lead & 0x1FU
                        : lead < 0xF0 ? lead & 0x0FU
                                      : lead & 7U;
        for (; at < text.size() && (text[at] & 0xC0) == 0x80; ++at)
            code = code << 6 | (text[at] & 0x3FU);
        codes += code;
    }
    return codes;
}

/// The number of letters that the best fitting alphabet contains.
std::size_t inOneAlphabet(const std::map<char32_t, std::size_t> &letters)
{
    std::size_t most = 0;
    for (const std::u32string_view alphabet : Alphabets) {
        std::size_t known = 0;
        for (const auto &[letter, count] : letters)
            known += alphabet.find(letter) != std::u32string_view::npos ? count : 0;
        most = std::max(most, known);
    }
    return most;
}

} // namespace

double plausibility(std::string_view text)
{
    const std::u32string codes = codesOf(text);
    std::map<char32_t, std::size_t> latin;
    std::size_t good = 0;
    std::size_t all = 0;
    for (std::size_t at = 0; at < codes.size(); ++at) {
        const char32_t code = codes[at];
        const char32_t before = at > 0 ? codes[at - 1] : U' ';
        const char32_t after = at + 1 < codes.size() ? codes[at + 1] : U' ';
        const Kind kind = kindOf(code);
        if (kind == Kind::Ascii || kind == Kind::SmallAscii)
            continue;
        if (kind == Kind::Sign && (SignsInWords.find(code) != std::u32string_view::npos ||
                                   !isLetter(before) || !isLetter(after)))
            continue; // no evidence
        ++all;
        if (kind == Kind::Latin)
            ++latin[smallLetter(code)];
        else if (kind == Kind::OtherLetter)
            good += kindOf(before) != Kind::SmallAscii && kindOf(after) != Kind::SmallAscii ? 1 : 0;
    }
    return all > 0 ? static_cast<double>(good + inOneAlphabet(latin)) / static_cast<double>(all)
                   : 1;
}

} // namespace vlt::driver
