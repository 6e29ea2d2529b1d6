#include "srs/UserDefinedSrsList.h"

#include "platform/Settings.h"

#include <QRegularExpression>
#include <QStringList>

namespace vlt::srs {

namespace {

const QLatin1String Group("UserDefinedSrsList");

/// The first code key for an alias key; empty if there is none. The part of the alias key before
/// its first "_" is used as a pattern for the start of the code key.
QString codeKeyFor(const QString &aliasKey, const QStringList &codeKeys)
{
    const QString prefix = aliasKey.section(QLatin1Char('_'), 0, 0);
    const QRegularExpression whole(
        QRegularExpression::anchoredPattern(prefix + QStringLiteral("_[Cc][Oo][Dd][Ee]")));
    return whole.isValid() ? codeKeys.value(codeKeys.indexOf(whole)) : QString();
}

} // namespace

UserDefinedSrsList::UserDefinedSrsList()
{
    static const QRegularExpression aliasPattern(QStringLiteral("[0-9]_[Aa][Ll][Ii][Aa][Ss]"));
    static const QRegularExpression codePattern(QStringLiteral("[0-9]_[Cc][Oo][Dd][Ee]"));

    const auto settings = platform::builderSettings();
    settings->beginGroup(Group);
    QStringList keys = settings->childKeys();
    keys.sort();
    const QStringList codeKeys = keys.filter(codePattern);
    for (const QString &aliasKey : keys.filter(aliasPattern)) {
        const QString codeKey = codeKeyFor(aliasKey, codeKeys);
        if (codeKey.isEmpty())
            continue;
        SrsEntry entry;
        entry.alias = settings->value(aliasKey).toString();
        entry.code = settings->value(codeKey).toString();
        entry.isUserDefined = true;
        if (!entry.alias.isEmpty() && !entry.code.isEmpty())
            entries().append(entry);
    }
    settings->endGroup();
}

void UserDefinedSrsList::add(const SrsEntry &entry)
{
    entries().prepend(entry);
    save();
}

void UserDefinedSrsList::save() const
{
    const auto settings = platform::builderSettings();
    settings->remove(Group);
    settings->beginGroup(Group);
    int number = 0;
    for (const SrsEntry &entry : *this) {
        ++number;
        settings->setValue(QStringLiteral("%1_ALIAS").arg(number), entry.alias);
        settings->setValue(QStringLiteral("%1_CODE").arg(number), entry.code);
    }
    settings->endGroup();
}

} // namespace vlt::srs
