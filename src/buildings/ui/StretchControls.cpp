#include "buildings/ui/StretchControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>

using namespace vlt;
using vlt::buildings::Stretch;

namespace {

constexpr int NumberDigits = 12;

/// Whether a stretch has a meaning for the values of a field.
bool isForFields(int kind)
{
    return kind != Stretch::Buildings && kind != Stretch::Shared;
}

} // namespace

StretchControls::StretchControls(QWidget *panel, const Widgets &widgets, const QString &lastUsedDir)
    : QObject(panel)
    , m_panel(panel)
    , m_widgets(widgets)
    , m_lastUsedDir(lastUsedDir)
{
    const auto chosen = [this] {
        showDetails();
        Q_EMIT changed();
    };
    connect(m_widgets.isStretched, &QCheckBox::toggled, this, chosen);
    connect(m_widgets.over, &QComboBox::currentIndexChanged, this, chosen);
    for (const QDoubleSpinBox *box : {m_widgets.lowPercent, m_widgets.highPercent})
        connect(box, &QDoubleSpinBox::valueChanged, this, &StretchControls::changed);
    for (const QLineEdit *line : {m_widgets.minimum, m_widgets.maximum, m_widgets.others})
        connect(line, &QLineEdit::textChanged, this, &StretchControls::changed);
    connect(m_widgets.chooseOthers, &QPushButton::clicked, this, &StretchControls::chooseOthers);
}

void StretchControls::show(Source source)
{
    m_source = source;
    const bool isOfField = source != Source::Raster;
    QComboBox *over = m_widgets.over;
    auto *kinds = qobject_cast<QStandardItemModel *>(over->model());
    for (int kind = 0; kind < over->count(); ++kind)
        kinds->item(kind)->setEnabled(!isOfField || isForFields(kind));
    over->setItemText(Stretch::Raster, isOfField ? tr("whole field", "MESS_STRETCH_FIELD")
                                                 : tr("whole image", "MESS_STRETCH_RASTER"));
    m_widgets.isStretched->setText(isOfField
                                       ? tr("Stretch on field min/max", "MESS_STRETCH_FIELD_CMAP")
                                       : tr("Stretch on raster min/max", "MESS_STRETCH_CMAP"));
    if (isOfField && !isForFields(over->currentIndex()))
        over->setCurrentIndex(Stretch::Raster);
    showDetails();
}

void StretchControls::showDetails()
{
    QComboBox *over = m_widgets.over;
    const bool isStretched = m_widgets.isStretched->isChecked() && m_source != Source::TextField;
    const int kind = isStretched ? over->currentIndex() : Stretch::Raster;
    over->setEnabled(isStretched);
    m_widgets.percentile->setVisible(kind == Stretch::Percentile);
    m_widgets.range->setVisible(kind == Stretch::Range);
    m_widgets.shared->setVisible(kind == Stretch::Shared);
}

std::optional<Stretch> StretchControls::stretch() const
{
    Stretch stretch;
    stretch.kind = static_cast<Stretch::Kind>(m_widgets.over->currentIndex());
    if (stretch.kind == Stretch::Percentile) {
        stretch.low = m_widgets.lowPercent->value();
        stretch.high = m_widgets.highPercent->value();
    } else if (stretch.kind == Stretch::Range) {
        const auto low = buildings::stretchNumber(m_widgets.minimum->text());
        const auto high = buildings::stretchNumber(m_widgets.maximum->text());
        if (!low || !high)
            return std::nullopt;
        stretch.low = *low;
        stretch.high = *high;
    } else if (stretch.kind == Stretch::Shared)
        stretch.others = m_others;
    // Of the incomplete ones the texts are none of a stretch.
    return buildings::parseStretch(buildings::stretchTexts(stretch));
}

void StretchControls::setStretch(const Stretch &stretch)
{
    m_widgets.over->setCurrentIndex(stretch.kind);
    if (stretch.kind == Stretch::Percentile) {
        m_widgets.lowPercent->setValue(stretch.low);
        m_widgets.highPercent->setValue(stretch.high);
    } else if (stretch.kind == Stretch::Range) {
        m_widgets.minimum->setText(QString::number(stretch.low, 'g', NumberDigits));
        m_widgets.maximum->setText(QString::number(stretch.high, 'g', NumberDigits));
    }
    setOthers(stretch.others);
}

void StretchControls::setOthers(const QStringList &files)
{
    m_others = files;
    QStringList names;
    for (const QString &file : files)
        names << QFileInfo(file).fileName();
    m_widgets.others->setText(names.join(QStringLiteral(", ")));
}

void StretchControls::chooseOthers()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        m_panel, tr("Select the other images", "MESS_SELECT_STRETCH_OTHERS"), m_lastUsedDir,
        QStringLiteral("%1 (*.*)").arg(tr("Raster Files", "MESS_RASTER_FILES")));
    if (!files.isEmpty())
        setOthers(files);
}
