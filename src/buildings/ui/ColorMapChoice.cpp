#include "buildings/ui/ColorMapChoice.h"

#include "buildings/ui/ColorMapSwatch.h"
#include "buildings/ui/RestoreIndex.h"
#include "colormaps/ColorMapList.h"
#include "colormaps/OpenColorMap.h"
#include "platform/Settings.h"
#include "wizard/base/Messages.h"

#include <QAbstractItemView>
#include <QSettings>
#include <QStyle>

using namespace vlt;

ColorMapChoice::ColorMapChoice(QComboBox *combo) : m_combo(combo)
{
    m_combo->setIconSize(buildings::ColorMapSwatchSize);
}

int ColorMapChoice::add(const QString &name, const QString &path)
{
    const auto map = colormaps::openColorMap(path); // the entry stays if its file is missing
    m_combo->addItem(map ? buildings::colorMapSwatch(map.value()) : QIcon(), name, path);
    m_combo->setItemData(m_combo->count() - 1, path, Qt::ToolTipRole);
    // Many names differ only at their ends, so the open list is as wide as the longest one.
    m_combo->view()->setMinimumWidth(m_combo->view()->sizeHintForColumn(0) +
                                     m_combo->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    return m_combo->count() - 1;
}

void ColorMapChoice::listInstalled(const QString &installDir)
{
    m_combo->clear();
    for (const colormaps::ColorMapEntry &entry : colormaps::listColorMaps(installDir, false))
        add(entry.name, entry.path);
    m_installedCount = m_combo->count();
}

void ColorMapChoice::open(const QString &path, QWidget *parent)
{
    const colormaps::ColorMapEntry entry = colormaps::colorMapEntry(path);
    if (const auto map = colormaps::openColorMap(entry.path); !map) {
        messages::critical(parent, map.error());
        return;
    }
    const int known = m_combo->findData(entry.path);
    m_combo->setCurrentIndex(known >= 0 ? known : add(entry.name, entry.path));
}

void ColorMapChoice::loadSettings(const QString &prefix)
{
    const auto settings = platform::wizardSettings();
    const auto value = [&settings, &prefix](const QString &key, const QVariant &absent) {
        return settings->value(prefix + QLatin1Char('/') + key, absent);
    };
    // A damaged count must not block the page.
    const int count = qMin(value(QStringLiteral("UserColormapCount"), 0).toInt(),
                           static_cast<int>(settings->allKeys().size()));
    for (int n = 0; n < count; ++n) {
        const QString path =
            value(QStringLiteral("UserColormapAbs_%1").arg(n), QString()).toString();
        if (!path.isEmpty())
            add(value(QStringLiteral("UserColormapShort_%1").arg(n), QString()).toString(), path);
    }
    buildings::restoreIndex(m_combo, value(QStringLiteral("CurrentColormap"), 0));
}

void ColorMapChoice::saveSettings(const QString &prefix) const
{
    const auto settings = platform::wizardSettings();
    const auto save = [&settings, &prefix](const QString &key, const QVariant &value) {
        settings->setValue(prefix + QLatin1Char('/') + key, value);
    };
    const int userCount = m_combo->count() - m_installedCount;
    save(QStringLiteral("UserColormapCount"), userCount);
    for (int n = 0; n < userCount; ++n) {
        save(QStringLiteral("UserColormapShort_%1").arg(n),
             m_combo->itemText(m_installedCount + n));
        save(QStringLiteral("UserColormapAbs_%1").arg(n), m_combo->itemData(m_installedCount + n));
    }
    save(QStringLiteral("CurrentColormap"), m_combo->currentIndex());
}
