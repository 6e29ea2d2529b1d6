#include "buildings/ui/TerrainPicker.h"

#include "buildings/ui/NoDataGuess.h"
#include "buildings/ui/RasterMessages.h"
#include "contract/NoDataText.h"
#include "language/ErrorText.h"
#include "text/Numbers.h"
#include "wizard/base/BusyWait.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>

using namespace vlt;
using buildings::RasterProblem;

TerrainPicker::TerrainPicker(QWidget *page, const Widgets &widgets, bool &isBusy)
    : PathPicker(page, widgets.path, isBusy,
                 {QStringLiteral("MESS_OUV_MNT_IMP"), QStringLiteral("Cannot open DTM")})
    , m_widgets(widgets)
{}

std::optional<TerrainPicker::Summary> TerrainPicker::read(const QString &path)
{
    const QScopedValueRollback busy(m_isBusy, true);
    return wizard::waitForValue<Summary>(page(), tr("Reading the terrain...", "MESS_READING_DTM"),
                                         [path] { return geodata::readRasterSummary(path); });
}

void TerrainPicker::open(const QString &path)
{
    if (m_isBusy)
        return;
    m_summary.reset();
    showPath({});
    m_widgets.noData->clear();
    Q_EMIT changed();
    if (path.isEmpty())
        return;
    if (const std::optional<Summary> terrain = read(path))
        show(path, *terrain);
}

void TerrainPicker::show(const QString &path, const Summary &terrain)
{
    const QScopedValueRollback busy(m_isBusy, true);
    const bool isUsable = terrain && terrain.value().bandCount > 0;
    m_summary = isUsable ? std::optional(terrain.value()) : std::nullopt;
    showPath(terrain ? path : QString()); // a raster without bands is shown too
    const std::optional<double> noData = isUsable ? terrain.value().noData : std::nullopt;
    m_widgets.noData->setText(noData ? text::f6(*noData) : QString());
    Q_EMIT changed();
    if (!terrain) {
        Q_EMIT failed(tr("%1: %2", "MESS_FILE_REASON")
                          .arg(QFileInfo(path).fileName(), language::detailOf(terrain.error())));
        buildings::warnOfRaster(page(), RasterProblem::CannotOpen, path, terrain.error().detail);
    } else if (!isUsable)
        buildings::warnOfRaster(page(), RasterProblem::NoBands, path);
    else if (terrain.value().holdsColors)
        buildings::warnOfRaster(page(), RasterProblem::HoldsColors, path);
}

void TerrainPicker::guessNoData()
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    const QPointer<TerrainPicker> self(this); // its window may be closed during the guess
    const QString guess = buildings::guessNoData(page(), path(), m_widgets.progress);
    if (!self)
        return;
    m_isBusy = false;
    if (!guess.isEmpty())
        m_widgets.noData->setText(guess);
}

std::optional<Error> TerrainPicker::wrongNoData() const
{
    if (contract::isNoDataText(m_widgets.noData->text().toStdString()))
        return std::nullopt;
    return Error{QStringLiteral("MESS_NODATA_NO_NUMBER"),
                 QStringLiteral("The no-data value is not a number.")};
}
