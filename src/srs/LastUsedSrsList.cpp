#include "srs/LastUsedSrsList.h"

#include "platform/Settings.h"

namespace vlt::srs {

namespace {

const QLatin1String Group("LastUsedSrsList");
const QLatin1String CodeKey("LastUsedSrsList/%1_CODE");
const QLatin1String AliasKey("LastUsedSrsList/%1_ALIAS");
const QLatin1String UserDefinedKey("LastUsedSrsList/%1_IS_USER_DEF");

QString numbered(QLatin1String key, int number)
{
    return QString(key).arg(number);
}

} // namespace

LastUsedSrsList::LastUsedSrsList()
{
    const auto settings = platform::builderSettings();
    for (int number = 1; number <= MaxCount; ++number) {
        SrsEntry entry;
        entry.code = settings->value(numbered(CodeKey, number)).toString();
        entry.alias = settings->value(numbered(AliasKey, number)).toString();
        entry.isUserDefined = settings->value(numbered(UserDefinedKey, number), true).toBool();
        if (!entry.code.isEmpty() && !entry.alias.isEmpty())
            entries().append(entry);
    }
}

void LastUsedSrsList::use(const SrsEntry &entry)
{
    const int known = indexOfCode(entry.code);
    if (known >= 0) {
        entries().move(known, 0);
    } else {
        if (count() >= MaxCount)
            entries().removeLast();
        entries().prepend(entry);
    }
    save();
}

void LastUsedSrsList::save() const
{
    const auto settings = platform::builderSettings();
    settings->remove(Group);
    int number = 0;
    for (const SrsEntry &entry : *this) {
        ++number;
        settings->setValue(numbered(CodeKey, number), entry.code);
        settings->setValue(numbered(AliasKey, number), entry.alias);
        settings->setValue(numbered(UserDefinedKey, number), entry.isUserDefined);
    }
}

} // namespace vlt::srs
