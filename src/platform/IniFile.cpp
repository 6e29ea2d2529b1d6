#include "platform/IniFile.h"

#include "platform/TextDecoding.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <iniparser/iniparser.h>

#include <memory>

namespace vlt::platform {

namespace {

struct DictionaryRelease
{
    void operator()(dictionary *entries) const { iniparser_freedict(entries); }
};

using Dictionary = std::unique_ptr<dictionary, DictionaryRelease>;

const QByteArray ByteOrderMark("\xEF\xBB\xBF");

/// Loads a file without its byte order mark, which is a syntax error for the ini library. The
/// library reads files only, hence the copy.
Dictionary loadWithoutMark(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.peek(ByteOrderMark.size()) != ByteOrderMark)
        return Dictionary(iniparser_load(QFile::encodeName(path).constData()));
    QTemporaryFile plain;
    const QByteArray bytes = file.readAll().mid(ByteOrderMark.size());
    if (!plain.open() || plain.write(bytes) != bytes.size() || !plain.flush())
        return nullptr;
    return Dictionary(iniparser_load(QFile::encodeName(plain.fileName()).constData()));
}

} // namespace

Result<IniFile> IniFile::open(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return Error::asIs(QStringLiteral("No such file"), path);
    const Dictionary entries = loadWithoutMark(path);
    if (!entries)
        return Error::asIs(QStringLiteral("Not a readable ini file"), path);

    IniFile file;
    // signed in one version of the library, unsigned in another
    const auto size = static_cast<std::size_t>(entries->size);
    for (std::size_t i = 0; i < size; ++i) {
        if (entries->key[i] != nullptr && entries->val[i] != nullptr)
            file.m_values.insert(decodeText(entries->key[i]).toCaseFolded(),
                                 decodeText(entries->val[i]));
    }
    return file;
}

QString IniFile::value(const QString &section, const QString &key) const
{
    return m_values.value((section + QLatin1Char(':') + key).toCaseFolded());
}

} // namespace vlt::platform
