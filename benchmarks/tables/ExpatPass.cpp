#include "ExpatPass.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <expat.h>
#include <memory>
#include <stdexcept>

namespace vlt::benchmarks {

namespace {

constexpr int BlockBytes = 256 * 1024;

struct Tally
{
    std::int64_t rows = 0;
    std::int64_t textBytes = 0;
    int cells = 0;
    int widest = 0;
    bool inData = false;
};

void XMLCALL countRow(void *user, const XML_Char *name, const XML_Char **)
{
    if (std::strcmp(name, "Row") == 0)
        ++static_cast<Tally *>(user)->rows;
}

void XMLCALL startElement(void *user, const XML_Char *name, const XML_Char **)
{
    auto *tally = static_cast<Tally *>(user);
    if (std::strcmp(name, "Data") == 0) {
        tally->inData = true;
        tally->widest = std::max(tally->widest, ++tally->cells);
    } else if (std::strcmp(name, "Row") == 0) {
        ++tally->rows;
        tally->cells = 0;
    }
}

void XMLCALL endElement(void *user, const XML_Char *name)
{
    if (std::strcmp(name, "Data") == 0)
        static_cast<Tally *>(user)->inData = false;
}

void XMLCALL characters(void *user, const XML_Char *, int length)
{
    auto *tally = static_cast<Tally *>(user);
    if (tally->inData)
        tally->textBytes += length;
}

struct FileCloser
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};

struct ParserFree
{
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

} // namespace

Measurement expatPass(const std::string &path, ExpatTask task)
{
    const Stopwatch watch;
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    const std::unique_ptr<XML_ParserStruct, ParserFree> parser(XML_ParserCreate(nullptr));
    if (!file || !parser)
        throw std::runtime_error(path + ": cannot be opened");

    Tally tally;
    XML_SetUserData(parser.get(), &tally);
    if (task == ExpatTask::Rows) {
        XML_SetStartElementHandler(parser.get(), countRow);
    } else {
        XML_SetElementHandler(parser.get(), startElement, endElement);
        XML_SetCharacterDataHandler(parser.get(), characters);
    }
    for (bool last = false; !last;) {
        void *block = XML_GetBuffer(parser.get(), BlockBytes);
        if (!block)
            throw std::runtime_error(path + ": no memory for the parser");
        const std::size_t got = std::fread(block, 1, BlockBytes, file.get());
        last = got == 0;
        if (std::ferror(file.get()) ||
            XML_ParseBuffer(parser.get(), static_cast<int>(got), last) != XML_STATUS_OK)
            throw std::runtime_error(path + ": cannot be read as XML");
    }
    Measurement result;
    result.rows = tally.rows;
    result.fields = tally.widest;
    result.checksum = static_cast<double>(tally.textBytes);
    result.milliseconds = watch.milliseconds();
    return result;
}

} // namespace vlt::benchmarks
