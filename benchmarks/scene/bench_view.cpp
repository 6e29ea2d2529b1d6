// Shows a layer in the wizard's view, drags it at two distances, and prints for how long the
// interface did not answer, and the share of a core that a view at rest takes.
#include "preview/W_simpleOSGViewer.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SceneGround.h"
#include "snapshot/SceneSource.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>

#include <gdal.h>
#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Records the times between two answers of the event loop.
class Gaps
{
public:
    Gaps()
    {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_ms.push_back(static_cast<double>(m_clock.nsecsElapsed()) / 1e6);
            m_clock.restart();
        });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(1);
    }

    void print(const char *view)
    {
        std::sort(m_ms.begin(), m_ms.end());
        std::printf("%s_gap_95_ms %.1f\n%s_gap_worst_ms %.1f\n", view, m_ms[m_ms.size() * 95 / 100],
                    view, m_ms.back());
    }

private:
    QElapsedTimer m_clock;
    QTimer m_timer;
    std::vector<double> m_ms;
};

/// Drags with the left button for some seconds, in circles.
void drag(W_simpleOSGViewer &viewer)
{
    constexpr int Steps = 120;
    constexpr int StepMs = 15;
    constexpr double RadiusPx = 150;
    const QPointF middle = QRectF(viewer.rect()).center();
    const auto send = [&viewer](QEvent::Type type, const QPointF &at) {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, at, viewer.mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(&viewer, &event);
    };
    send(QEvent::MouseButtonPress, middle);
    for (int step = 0; step < Steps; ++step) {
        const double turn = step / 25.0;
        send(QEvent::MouseMove, middle + QPointF(std::sin(turn), 1 - std::cos(turn)) * RadiusPx);
        wait(StepMs);
    }
    send(QEvent::MouseButtonRelease, middle);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: bench_view FILE.lay TERRAIN\n", stderr);
        return 2;
    }
    const QString terrain = QString::fromLocal8Bit(argv[2]);
    GDALAllRegister();
    const auto scene = vlt::snapshot::readScene(QString::fromLocal8Bit(argv[1]), {}, terrain);
    if (!scene || !W_simpleOSGViewer::isAvailable())
        return 1;
    W_simpleOSGViewer viewer;
    static_cast<QWidget &>(viewer).resize(1280, 800);
    static_cast<QWidget &>(viewer).show();
    viewer.showScene(scene.value(), vlt::snapshot::groundUnder(scene.value(), terrain));
    for (const auto &[view, distanceM] : {std::pair("region", 8000.0), std::pair("near", 900.0)}) {
        viewer.placeCamera(distanceM, 100);
        {
            Gaps coming;
            wait(4000);
            coming.print((std::string(view) + "_first").c_str());
        }
        {
            Gaps gaps;
            drag(viewer);
            gaps.print(view);
        }
        wait(3000);
        const double before = processorSeconds();
        wait(5000);
        std::printf("%s_idle_percent %.1f\n", view, (processorSeconds() - before) * 20);
    }
    static_cast<QWidget &>(viewer).hide();
    wait(500);
    const double before = processorSeconds();
    wait(5000);
    std::printf("hidden_percent %.1f\n", (processorSeconds() - before) * 20);
    return 0;
}
