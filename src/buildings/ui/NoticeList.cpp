#include "buildings/ui/NoticeList.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vlt::buildings {

namespace {

constexpr QSize Size(720, 320);

} // namespace

void showNotices(QWidget *parent, const QStringList &notices)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(QObject::tr("Notices about the layer", "MESS_NOTICES_TITLE"));
    auto *list = new QPlainTextEdit(notices.join(QLatin1Char('\n')));
    list->setReadOnly(true);
    list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    list->setTabChangesFocus(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *copy = buttons->addButton(QObject::tr("&Copy all", "MESS_COPY_NOTICES"),
                                           QDialogButtonBox::ActionRole);
    QObject::connect(copy, &QPushButton::clicked, list,
                     [list] { QGuiApplication::clipboard()->setText(list->toPlainText()); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *column = new QVBoxLayout(&dialog);
    column->addWidget(list);
    column->addWidget(buttons);
    dialog.resize(Size);
    dialog.exec();
}

} // namespace vlt::buildings
