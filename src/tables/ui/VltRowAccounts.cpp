#include "tables/ui/VltRowAccounts.h"

#include "platform/InputFiles.h"
#include "tables/RowReport.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

VltRowAccounts::VltRowAccounts(QWidget *parent)
    : QWidget(parent)
    , m_pwLblRows(new QLabel(this))
    , m_pwPbReport(new QPushButton(tr("Save the report...", "MESS_SAVE_REPORT"), this))
    , m_pwPbRejects(new QPushButton(tr("Save the rows left out...", "MESS_SAVE_REJECTS"), this))
{
    m_pwLblRows->setObjectName(QStringLiteral("m_pwLblRows"));
    m_pwLblRows->setTextFormat(Qt::PlainText);
    m_pwLblRows->setWordWrap(true);
    m_pwLblRows->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pwPbReport->setObjectName(QStringLiteral("m_pwPbReport"));
    m_pwPbReport->setToolTip(
        tr("Save what became of every row, with the reasons", "MESS_TIP_SAVE_REPORT"));
    m_pwPbRejects->setObjectName(QStringLiteral("m_pwPbRejects"));
    m_pwPbRejects->setToolTip(
        tr("Save the rows that are left out, to correct them and open them again",
           "MESS_TIP_SAVE_REJECTS"));
    // Side by side, label and buttons would be too wide in a large font.
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pwLblRows);
    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    for (QPushButton *button : {m_pwPbReport, m_pwPbRejects}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    connect(m_pwPbReport, &QPushButton::clicked, this, &VltRowAccounts::saveReport);
    connect(m_pwPbRejects, &QPushButton::clicked, this, &VltRowAccounts::saveRejects);
    clear();
}

void VltRowAccounts::showRows(const vlt::geodata::TableRowCounts &counts, const QString &path,
                              const QString &connection)
{
    m_path = path;
    m_connection = connection;
    QString text = tr("Rows: %1", "MESS_ROWS_ARE").arg(vlt::tables::rowCountsText(counts.rows));
    if (counts.second)
        text += QLatin1Char('\n') +
                tr("Rows of %1: %2", "MESS_SECOND_ROWS_ARE")
                    .arg(counts.secondName, vlt::tables::rowCountsText(*counts.second));
    m_pwLblRows->setText(text);
    m_pwPbReport->setEnabled(true);
    m_pwPbRejects->setEnabled(counts.rows.leftOut > 0);
}

void VltRowAccounts::clear()
{
    m_pwLblRows->clear();
    m_pwPbReport->setEnabled(false);
    m_pwPbRejects->setEnabled(false);
}

void VltRowAccounts::saveReport()
{
    save(m_pwPbReport->text(), QStringLiteral("_rows"), vlt::tables::writeRowReport);
}

void VltRowAccounts::saveRejects()
{
    save(m_pwPbRejects->text(), QStringLiteral("_left_out"), vlt::tables::writeRejects);
}

void VltRowAccounts::save(const QString &title, const QString &suffix, Write write)
{
    const QFileInfo table(m_path);
    const QString proposed =
        table.absoluteDir().filePath(table.completeBaseName() + suffix + QStringLiteral(".csv"));
    const QString path =
        QFileDialog::getSaveFileName(this, title, proposed, QStringLiteral("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    if (vlt::platform::isOneOf(path, {m_path})) {
        vlt::messages::critical(this, vlt::platform::outputIsInput(path));
        return;
    }
    using Outcome = vlt::Stoppable<vlt::Done>;
    const std::function<Outcome(const vlt::Progress &)> work =
        [write, path, connection = m_connection](const vlt::Progress &progress) {
            return write(connection, path, progress);
        };
    const auto outcome = vlt::wizard::waitForValue<Outcome>(
        this, tr("Reading the rows", "MESS_CLI_READING_ROWS"), work);
    if (outcome && *outcome && !**outcome)
        vlt::messages::critical(this, (*outcome)->error().withPath(path));
}
