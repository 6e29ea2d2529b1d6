#include "app/DisplayGuard.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vlt::app {

namespace {

std::function<QString(const QString &)> explainEnd;
QStringList messages;
QString reason; ///< the first message about displays
bool isExplaining = false;

void print(const QString &line)
{
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
}

void keepOrEnd(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isExplaining) // the application object, only partly created, may send more messages
        return;
    if (type != QtFatalMsg) {
        messages << text;
        if (reason.isEmpty() && QLatin1String(context.category).startsWith(QLatin1String("qt.qpa")))
            reason = text.trimmed();
        return;
    }
    isExplaining = true;
    print(explainEnd(reason));
    std::fflush(nullptr);
    std::_Exit(1);
}

} // namespace

DisplayGuard::DisplayGuard(std::function<QString(const QString &)> explain)
{
    explainEnd = std::move(explain);
    qInstallMessageHandler(keepOrEnd);
}

DisplayGuard::~DisplayGuard()
{
    qInstallMessageHandler(nullptr);
    for (const QString &line : std::as_const(messages))
        print(line);
    messages.clear();
}

} // namespace vlt::app
