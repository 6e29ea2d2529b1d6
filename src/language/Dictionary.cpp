#include "language/Dictionary.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace vlt::language {

namespace {

bool isWithdrawn(const QXmlStreamAttributes &translation)
{
    const auto type = translation.value(QLatin1String("type"));
    return type == QLatin1String("vanished") || type == QLatin1String("obsolete");
}

void readMessage(QXmlStreamReader &xml, Texts &texts)
{
    const QString key = xml.attributes().value(QLatin1String("id")).toString();
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("translation") || isWithdrawn(xml.attributes())) {
            xml.skipCurrentElement();
            continue;
        }
        const QString text = xml.readElementText(QXmlStreamReader::SkipChildElements);
        if (!key.isEmpty() && !text.isEmpty())
            texts.insert(key, text);
    }
}

void readContext(QXmlStreamReader &xml, Texts &texts)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("message"))
            readMessage(xml, texts);
        else
            xml.skipCurrentElement();
    }
}

Texts readRoot(QXmlStreamReader &xml)
{
    Texts texts;
    if (xml.readNextStartElement() && xml.name() != QLatin1String("TS"))
        xml.raiseError(QStringLiteral("not a Linguist file"));
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("context"))
            readContext(xml, texts);
        else if (xml.name() == QLatin1String("message"))
            readMessage(xml, texts);
        else
            xml.skipCurrentElement();
    }
    // All that follows the root must be well-formed as well; an input that cannot be read on has an
    // error and never an end.
    while (!xml.atEnd() && !xml.hasError())
        xml.readNext();
    return texts;
}

} // namespace

Result<Texts> readDictionary(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Error::asIs(QStringLiteral("Cannot open the dictionary"), path);

    return readDictionary(file, path);
}

Result<Texts> readDictionary(QIODevice &device, const QString &path)
{
    QXmlStreamReader xml(&device);
    Texts texts = readRoot(xml);
    if (xml.hasError())
        return Error::asIs(
            QStringLiteral("Line %1: %2").arg(xml.lineNumber()).arg(xml.errorString()), path);
    return texts;
}

} // namespace vlt::language
