#include "contract/Installation.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vlt::driver {

namespace {

namespace fs = std::filesystem;

std::optional<std::string> contentOf(const fs::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// The folder of the file that holds this code: the plug-in, or a program that contains it.
fs::path ownFolder()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<const void *>(&installedVocabulary), &info) == 0 || !info.dli_fname)
        return {};
    std::error_code error;
    return fs::canonical(info.dli_fname, error).parent_path();
}

/// The vocabulary in the installation: below the folder of the plug-in or one of those above it.
fs::path installedFile()
{
    std::error_code error;
    for (fs::path folder = ownFolder(); !folder.empty(); folder = folder.parent_path()) {
        fs::path file = folder / contract::TableFolder / contract::VocabularyFile;
        if (fs::exists(file, error))
            return file;
        if (folder == folder.parent_path())
            break;
    }
    return {};
}

fs::path ownFile()
{
    if (const char *named = std::getenv("VLT_TABLE_VOCABULARY"); named && *named)
        return named;
    fs::path data;
    if (const char *folder = std::getenv("XDG_DATA_HOME"); folder && *folder)
        data = folder;
    else if (const char *home = std::getenv("HOME"); home && *home)
        data = fs::path(home) / ".local" / "share";
    return data.empty() ? data : data / contract::UserTableFolder / contract::VocabularyFile;
}

InstalledVocabulary readVocabulary()
{
    InstalledVocabulary vocabulary;
    const fs::path file = installedFile();
    const std::optional<std::string> text = contentOf(file);
    if (!text)
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_NO_VOCABULARY");
    try {
        vocabulary.words.add(*text);
    } catch (const std::invalid_argument &fault) {
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_BAD_VOCABULARY",
                          {file.string(), fault.what()});
    }
    const std::optional<std::string> own = contentOf(ownFile());
    if (!own)
        return vocabulary;
    try {
        Vocabulary both = vocabulary.words;
        both.add(*own);
        vocabulary.words = std::move(both);
    } catch (const std::invalid_argument &fault) {
        vocabulary.ownFault =
            contract::formatted("MESS_TAB_BAD_VOCABULARY", {ownFile().string(), fault.what()});
    }
    return vocabulary;
}

} // namespace

const InstalledVocabulary &installedVocabulary()
{
    static const InstalledVocabulary vocabulary = readVocabulary();
    return vocabulary;
}

} // namespace vlt::driver
