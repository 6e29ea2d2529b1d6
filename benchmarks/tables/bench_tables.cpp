// Times one task on one table; benchmarks/run starts a new process for each measurement.
#include "ExpatPass.h"
#include "TableAccess.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <gdal.h>
#include <optional>
#include <stdexcept>
#include <vector>

namespace {

using namespace vlt::benchmarks;

constexpr char Usage[] =
    "usage: bench_tables open|read|reopen CONNECTION... [--driver NAME]... "
    "[--option KEY=VALUE]...\n"
    "       bench_tables expat FILE [--text]\n"
    "       bench_tables register\n"
    "\n"
    "  open      open, look at the fields, count the features\n"
    "  read      open, read every field of every feature as its type\n"
    "  reopen    the same as open, timed the second time in one process\n"
    "  expat     bare XML pass that counts Row elements; --text: and takes the cell texts\n"
    "  register  GDALAllRegister and nothing else, for the memory it takes\n"
    "\n"
    "  --driver NAME       lets GDAL use only this driver\n"
    "  --option KEY=VALUE  open option\n"
    "  --baseline          also print the peak memory right after GDALAllRegister\n"
    "\n"
    "Prints one line: milliseconds, peak memory (VmHWM) in kB, rows, fields, checksum. Process\n"
    "start, GDALAllRegister and closing are not timed.\n";

struct Arguments
{
    std::string task;
    TableSource source;
    bool text = false;
    bool baseline = false;
};

/// Whether the words are a task and what it needs.
bool isWhole(const std::vector<std::string> &words)
{
    if (words.empty())
        return false;
    if (words[0] == "register")
        return words.size() == 1;
    if (words[0] == "expat")
        return words.size() == 2;
    return words.size() > 1 && (words[0] == "open" || words[0] == "read" || words[0] == "reopen");
}

std::optional<Arguments> parse(int count, char **values)
{
    Arguments arguments;
    std::vector<std::string> plain;
    for (int i = 1; i < count; ++i) {
        const std::string value = values[i];
        if (value == "--text")
            arguments.text = true;
        else if (value == "--baseline")
            arguments.baseline = true;
        else if ((value == "--driver" || value == "--option") && i + 1 < count)
            (value == "--driver" ? arguments.source.drivers : arguments.source.options)
                .emplace_back(values[++i]);
        else if (value.rfind("--", 0) == 0)
            return std::nullopt;
        else
            plain.push_back(value);
    }
    if (!isWhole(plain))
        return std::nullopt;
    arguments.task = plain[0];
    arguments.source.connections.assign(plain.begin() + 1, plain.end());
    return arguments;
}

// Maximum resident size so far. getrusage() is not used because its value survives exec and may
// therefore be that of the parent process.
long peakKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes;
    }
    throw std::runtime_error("/proc/self/status names no VmHWM");
}

Measurement perform(const Arguments &arguments)
{
    if (arguments.task == "register")
        return {};
    if (arguments.task == "expat")
        return expatPass(arguments.source.connections.front(),
                         arguments.text ? ExpatTask::RowsAndTexts : ExpatTask::Rows);
    if (arguments.task == "open")
        return openAndCount(arguments.source);
    if (arguments.task == "read")
        return readEverything(arguments.source);
    return openAgain(arguments.source);
}

} // namespace

int main(int count, char **values)
{
    try {
        const std::optional<Arguments> arguments = parse(count, values);
        if (!arguments) {
            std::fputs(Usage, stderr);
            return 2;
        }
        // An expat pass stands for a program without GDAL.
        if (arguments->task != "expat")
            GDALAllRegister();
        const long baseline = peakKilobytes();
        const Measurement result = perform(*arguments);
        std::printf("%.3f %ld %lld %d %.3f", result.milliseconds, peakKilobytes(),
                    static_cast<long long>(result.rows), result.fields, result.checksum);
        if (arguments->baseline)
            std::printf(" baseline %ld", baseline);
        std::printf("\n");
    } catch (const std::exception &error) {
        std::fprintf(stderr, "bench_tables: %s\n", error.what());
        return 1;
    }
    return 0;
}
