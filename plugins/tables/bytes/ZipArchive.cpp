#include "plugins/tables/bytes/ZipArchive.h"

#include "plugins/tables/bytes/InflateSource.h"
#include "plugins/tables/bytes/LittleEndian.h"
#include "plugins/tables/bytes/Refusal.h"

#include <algorithm>
#include <vector>

namespace vlt::driver {

namespace {

constexpr uint32_t EndSignature = 0x06054b50;
constexpr uint32_t End64Signature = 0x06064b50;
constexpr uint32_t Locator64Signature = 0x07064b50;
constexpr uint32_t MemberSignature = 0x02014b50;
constexpr uint32_t LocalSignature = 0x04034b50;
constexpr std::size_t EndSize = 22;
constexpr std::size_t End64Size = 56;
constexpr std::size_t LocatorSize = 20;
constexpr std::size_t MemberSize = 46;
constexpr std::size_t LocalSize = 30;
constexpr std::size_t MaxCommentSize = 65535;
constexpr uint64_t MaxDirectorySize = uint64_t{64} << 20;
constexpr uint16_t EncryptedFlag = 1;
constexpr uint32_t Marker32 = 0xffffffff;
constexpr uint16_t Zip64Field = 1;

[[noreturn]] void refuse(TableTextId text)
{
    throw RefusedFile(Refusal::Malformed, text);
}

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return text;
}

} // namespace

ZipArchive::ZipArchive(std::shared_ptr<const InputFile> file) : m_file(std::move(file))
{
    const uint64_t fileSize = m_file->size();
    const std::size_t tailSize =
        static_cast<std::size_t>(std::min<uint64_t>(fileSize, EndSize + MaxCommentSize));
    std::string tail(tailSize, '\0');
    m_file->readExactly(fileSize - tailSize, tail.data(), tailSize);
    for (std::size_t at = tailSize < EndSize ? 0 : tailSize - EndSize + 1; at-- > 0;) {
        const char *end = tail.data() + at;
        if (u32(end) != EndSignature)
            continue;
        uint64_t size = u32(end + 12);
        uint64_t offset = u32(end + 16);
        const uint64_t endOffset = fileSize - tailSize + at;
        if (endOffset >= LocatorSize && (offset == Marker32 || size == Marker32)) {
            char locator[LocatorSize];
            m_file->readExactly(endOffset - LocatorSize, locator, LocatorSize);
            char end64[End64Size];
            if (u32(locator) != Locator64Signature || u64(locator + 8) > fileSize)
                refuse("MESS_TAB_DIRECTORY_DAMAGED");
            m_file->readExactly(u64(locator + 8), end64, End64Size);
            if (u32(end64) != End64Signature)
                refuse("MESS_TAB_DIRECTORY_DAMAGED");
            size = u64(end64 + 40);
            offset = u64(end64 + 48);
        }
        if (offset > fileSize || size > fileSize - offset)
            continue; // the bytes of the signature occur in the comment
        readDirectory(offset, size);
        return;
    }
    refuse("MESS_TAB_NO_DIRECTORY");
}

void ZipArchive::readDirectory(uint64_t offset, uint64_t size)
{
    if (size > MaxDirectorySize)
        refuse("MESS_TAB_DIRECTORY_DAMAGED");
    std::vector<char> bytes(static_cast<std::size_t>(size));
    m_file->readExactly(offset, bytes.data(), bytes.size());
    const char *at = bytes.data();
    const char *end = at + bytes.size();
    while (static_cast<std::size_t>(end - at) >= MemberSize && u32(at) == MemberSignature) {
        const std::size_t nameSize = u16(at + 28);
        const std::size_t extraSize = u16(at + 30);
        const std::size_t whole = MemberSize + nameSize + extraSize + u16(at + 32);
        if (static_cast<std::size_t>(end - at) < whole)
            refuse("MESS_TAB_DIRECTORY_DAMAGED");
        Member member = {u32(at + 42), u32(at + 20), u32(at + 16), u16(at + 10), u16(at + 8)};
        uint64_t inflatedSize = u32(at + 24);
        const char *extra = at + MemberSize + nameSize;
        for (const char *extraEnd = extra + extraSize; extraEnd - extra >= 4;) {
            const char *value = extra + 4;
            const char *valueEnd = value + u16(extra + 2);
            if (valueEnd > extraEnd)
                break;
            if (u16(extra) == Zip64Field) {
                for (uint64_t *wide :
                     {&inflatedSize, &member.compressedSize, &member.headerOffset}) {
                    if (*wide == Marker32 && valueEnd - value >= 8) {
                        *wide = u64(value);
                        value += 8;
                    }
                }
            }
            extra = valueEnd;
        }
        m_members.emplace(lowered(std::string(at + MemberSize, nameSize)), member);
        at += whole;
    }
}

const ZipArchive::Member *ZipArchive::find(const std::string &name) const
{
    const auto found = m_members.find(lowered(name));
    return found == m_members.end() ? nullptr : &found->second;
}

std::unique_ptr<ByteSource> ZipArchive::open(const std::string &name) const
{
    const Member *member = find(name);
    if (!member)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_NO_PART", {name});
    if (member->flags & EncryptedFlag)
        throw RefusedFile(Refusal::Encrypted, "MESS_TAB_PASSWORD");
    char local[LocalSize];
    m_file->readExactly(member->headerOffset, local, LocalSize);
    if (u32(local) != LocalSignature)
        refuse("MESS_TAB_PART_MISPLACED");
    const uint64_t data = member->headerOffset + LocalSize + u16(local + 26) + u16(local + 28);
    if (data > m_file->size() || member->compressedSize > m_file->size() - data)
        refuse("MESS_TAB_WORKBOOK_CUT");
    auto bytes =
        std::make_unique<FileSource>(m_file, std::vector<Extent>{{data, member->compressedSize}});
    if (member->method == 0)
        return bytes;
    if (member->method != 8)
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_COMPRESSION");
    return std::make_unique<InflateSource>(std::move(bytes), member->crc);
}

std::string ZipArchive::readAll(const std::string &name, std::size_t limit) const
{
    const std::unique_ptr<ByteSource> source = open(name);
    std::string text;
    constexpr std::size_t Step = std::size_t{64} << 10;
    for (;;) {
        const std::size_t before = text.size();
        if (before > limit)
            refuse("MESS_TAB_PART_TOO_LARGE");
        text.resize(before + Step);
        const std::size_t got = source->read(text.data() + before, Step);
        text.resize(before + got);
        if (got == 0)
            return text;
    }
}

} // namespace vlt::driver
