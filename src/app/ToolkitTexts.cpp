#include "app/ToolkitTexts.h"

#include "language/VltLanguageManager.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <string_view>

namespace vlt::app {

namespace {

struct ButtonText
{
    std::string_view source;
    const char *key;
};

constexpr ButtonText ButtonTexts[] = {
    {"OK", "MESS_QT_OK"},     {"Cancel", "MESS_QT_CANCEL"}, {"Close", "MESS_QT_CLOSE"},
    {"Open", "MESS_QT_OPEN"}, {"Save", "MESS_QT_SAVE"},     {"&Yes", "MESS_QT_YES"},
    {"&No", "MESS_QT_NO"},
};

} // namespace

QString ToolkitTexts::translate(const char *context, const char *sourceText,
                                const char * /*disambiguation*/, int /*n*/) const
{
    if (context == nullptr || sourceText == nullptr ||
        std::string_view(context) != "QPlatformTheme")
        return {};
    for (const ButtonText &text : ButtonTexts) {
        if (text.source == sourceText)
            return VltLanguageManager::getInstance().text(QLatin1String(text.key));
    }
    return {};
}

void installToolkitTexts(const QString &languageCode)
{
    QCoreApplication *application = QCoreApplication::instance();
    QCoreApplication::installTranslator(new ToolkitTexts(application));

    // the translator that was installed last has priority
    auto *own = new QTranslator(application);
    if (own->load(QStringLiteral("qtbase_") + languageCode,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(own);
    else
        delete own;
}

} // namespace vlt::app
