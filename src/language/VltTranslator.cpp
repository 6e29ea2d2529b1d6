#include "language/VltTranslator.h"

#include "language/VltLanguageManager.h"

QString VltTranslator::translate(const char * /*context*/, const char * /*sourceText*/,
                                 const char *disambiguation, int /*n*/) const
{
    return disambiguation == nullptr
               ? QString()
               : VltLanguageManager::getInstance().text(QString::fromUtf8(disambiguation));
}
