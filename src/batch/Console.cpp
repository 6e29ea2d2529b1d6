#include "batch/Console.h"

#include "language/ErrorText.h"

#include <QJsonDocument>

#include <cstdio>

namespace vlt::batch {

namespace {

ErrorStyle &styleOfRun()
{
    static ErrorStyle style;
    return style;
}

} // namespace

bool printOut(const QString &text)
{
    return printBytes(text.toUtf8());
}

bool printBytes(const QByteArray &bytes)
{
    const std::size_t size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

void printError(const QString &text)
{
    const QByteArray bytes = "vltlayers: " + text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

void setErrorStyle(const ErrorStyle &style)
{
    styleOfRun() = style;
}

const ErrorStyle &errorStyle()
{
    return styleOfRun();
}

void reportError(const Error &error, ExitStatus status)
{
    printError(explain(error));
    if (errorStyle().json)
        printOut(QString::fromUtf8(QJsonDocument(errorJson(error, status)).toJson()));
}

ExitStatus refuse(const Error &error)
{
    reportError(error, ExitStatus::Refused);
    return ExitStatus::Refused;
}

QJsonObject errorJson(const Error &error, ExitStatus status)
{
    return {{QStringLiteral("error"), explain(error.withPath({}))},
            {QStringLiteral("file"),
             error.path.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(error.path)},
            {QStringLiteral("exit"), static_cast<int>(status)}};
}

QString explain(const Error &error)
{
    const QString file = error.path.isEmpty() ? QString() : error.path + QStringLiteral(": ");
    return oneLine(file + language::explained(error));
}

QString oneLine(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return text;
}

} // namespace vlt::batch
