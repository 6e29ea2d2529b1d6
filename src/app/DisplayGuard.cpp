#include "app/DisplayGuard.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vlt::app {

namespace {

std::function<QString(const QString &)> explainEnd;
QStringList said;
QString reason; ///< the first thing that was said of displays
bool isExplaining = false;

void print(const QString &line)
{
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
}

void keepOrEnd(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isExplaining) // the application object is half made: it may have more to say
        return;
    if (type != QtFatalMsg) {
        said << text;
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
    for (const QString &line : std::as_const(said))
        print(line);
    said.clear();
}

} // namespace vlt::app
