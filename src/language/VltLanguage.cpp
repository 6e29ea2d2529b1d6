#include "language/VltLanguage.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

bool isNamed(QLocale::Language language, const QString &name)
{
    if (name.compare(QLocale::languageToString(language), Qt::CaseInsensitive) == 0)
        return true;
    const QLocale locale(language); // the default locale if Qt does not know the language
    return locale.language() == language &&
           name.compare(locale.nativeLanguageName(), Qt::CaseInsensitive) == 0;
}

QLocale::Language languageNamed(const QString &name)
{
    if (name.isEmpty())
        return QLocale::English;
    static const QRegularExpression countryMark(QStringLiteral("[_-]"));
    const QLocale::Language coded =
        QLocale::codeToLanguage(name.section(countryMark, 0, 0).toLower());
    if (coded != QLocale::AnyLanguage && coded != QLocale::C)
        return coded;
    for (int i = QLocale::C + 1; i <= QLocale::LastLanguage; ++i) {
        const auto language = static_cast<QLocale::Language>(i);
        if (isNamed(language, name))
            return language;
    }
    return QLocale::English;
}

} // namespace

VltLanguage VltLanguage::named(const QString &name)
{
    const QLocale::Language language = languageNamed(name.trimmed());
    return {QLocale::languageToCode(language),
            QLocale(language).textDirection() == Qt::RightToLeft};
}
