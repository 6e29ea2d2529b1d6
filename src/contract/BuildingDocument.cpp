#include "contract/BuildingDocument.h"

#include <charconv>

namespace vlt::contract::texb {

namespace {

constexpr char HexDigits[] = "0123456789ABCDEF";
constexpr std::string_view Encoded = "\"<>&%\x7f";

} // namespace

std::string percentEncoded(std::string_view text)
{
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || Encoded.find(c) != std::string_view::npos)
            encoded += {'%', HexDigits[byte >> 4], HexDigits[byte & 15]};
        else
            encoded += c;
    }
    return encoded;
}

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const std::string_view digits = text.substr(i + 1, 2);
        if (text[i] == '%' && digits.size() == 2 &&
            std::from_chars(digits.data(), digits.data() + 2, byte, 16).ptr == digits.data() + 2) {
            decoded += static_cast<char>(byte);
            i += 2;
        } else
            decoded += text[i];
    }
    return decoded;
}

} // namespace vlt::contract::texb
