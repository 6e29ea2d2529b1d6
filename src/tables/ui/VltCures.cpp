#include "tables/ui/VltCures.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

VltCures::VltCures(vlt::contract::TableKind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_ptVbLines(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("m_pwCures"));
    m_ptVbLines->setContentsMargins(0, 0, 0, 0);
    hide();
}

void VltCures::showTable(const QString &path, const vlt::contract::ColumnMapping &mapping,
                         vlt::tables::CoordinateKind coordinates, bool isLacking)
{
    m_path = path;
    m_mapping = mapping;
    m_mapping.kind = m_kind;
    m_coordinates = coordinates;
    m_isLacking = isLacking;
    m_findings.clear();
    rebuild();
}

void VltCures::showFindings(const QList<vlt::geodata::PositionFinding> &findings)
{
    m_findings = findings;
    rebuild();
}

void VltCures::clear()
{
    showTable({}, {}, m_coordinates, false);
}

void VltCures::followInTabOrder(QWidget *widget)
{
    m_before = widget;
    orderFocus();
}

/// Puts the buttons, which are created last, where they lie.
void VltCures::orderFocus()
{
    QWidget *before = m_before;
    for (int line = 0; before && line < m_ptVbLines->count(); ++line) {
        auto *button = m_ptVbLines->itemAt(line)->widget()->findChild<QPushButton *>();
        if (!button)
            continue;
        setTabOrder(before, button);
        before = button;
    }
}

void VltCures::rebuild()
{
    // A button that is pressed rebuilds the lines, so it must not be deleted at once.
    while (QLayoutItem *line = m_ptVbLines->takeAt(0)) {
        line->widget()->hide();
        line->widget()->deleteLater();
        delete line;
    }
    const QList<vlt::tables::Cure> cures =
        vlt::tables::appliedCures(m_mapping, m_coordinates) +
        vlt::tables::proposedCures(m_mapping, m_findings, m_coordinates);
    for (const vlt::tables::Cure &cure : cures)
        addLine(cure.text, cure.action, QStringLiteral("m_pwPbCure"),
                [this, mapping = cure.mapping] { Q_EMIT mappingChosen(mapping); });
    if (m_isLacking && m_kind == vlt::contract::TableKind::Sites)
        addLine(tr("The table has no transmitters.", "MESS_NO_TRANSMITTERS"),
                tr("Choose the table of sectors...", "MESS_CHOOSE_SECTORS"),
                QStringLiteral("m_pwPbSecond"), [this] { chooseSecond(); });
    else if (m_isLacking)
        addLine(tr("The ends of the links are only named.", "MESS_NAMED_ENDS"),
                tr("Choose the table of sites...", "MESS_CHOOSE_END_SITES"),
                QStringLiteral("m_pwPbSecond"), [this] { chooseSecond(); });
    setVisible(m_ptVbLines->count() > 0);
    orderFocus();
}

void VltCures::addLine(const QString &text, const QString &action, const QString &objectName,
                       const std::function<void()> &pressed)
{
    auto *line = new QWidget(this);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(text, line);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label, 1);
    m_ptVbLines->addWidget(line);
    if (action.isEmpty())
        return;
    auto *button = new QPushButton(action, line);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    button->setToolTip(text);
    connect(button, &QPushButton::clicked, this, pressed);
    layout->addWidget(button);
}

void VltCures::chooseSecond()
{
    const bool areSites = m_kind == vlt::contract::TableKind::Sites;
    const QDir folder = QFileInfo(m_path).absoluteDir();
    const QString path = QFileDialog::getOpenFileName(
        this,
        areSites ? tr("Choose the table of sectors...", "MESS_CHOOSE_SECTORS")
                 : tr("Choose the table of sites...", "MESS_CHOOSE_END_SITES"),
        folder.path(),
        QStringLiteral("%1 (*.xls *.xlsx *.xml *.csv *.txt)").arg(tr("Tables", "MESS_TABLES")));
    if (path.isEmpty())
        return;
    vlt::contract::ColumnMapping mapping = m_mapping;
    (areSites ? mapping.sectors : mapping.sites) = folder.relativeFilePath(path).toStdString();
    Q_EMIT mappingChosen(mapping);
}
