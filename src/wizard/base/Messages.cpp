#include "wizard/base/Messages.h"

#include "language/VltLanguageManager.h"
#include "text/RichText.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>

namespace vlt::messages {

namespace {

void show(QMessageBox::Icon icon, QWidget *parent, const Error &error, const QString &title)
{
    QMessageBox box(icon, title, textOf(error), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(text::asRichText(error.detail));
    box.exec();
}

/// Temporary names hold a doubled separator, which looks like a mistake.
QString shownPath(const QString &path)
{
    const bool isVirtual = path.startsWith(QLatin1String("/vsi")); // may hold an address
    return path.startsWith(QLatin1Char('/')) && !isVirtual ? QDir::cleanPath(path) : path;
}

} // namespace

QString textOf(const Error &error)
{
    const QByteArray text = error.text.toUtf8();
    const QString translated = error.key.isEmpty()
                                   ? error.text
                                   : dico_label(error.key.toUtf8().constData(), text.constData());
    return Error{{}, translated, shownPath(error.path)}.display();
}

QString errorTitle()
{
    return dico_label("MESS_ERREUR", "Error");
}

void critical(QWidget *parent, const Error &error, const QString &title)
{
    show(QMessageBox::Critical, parent, error, title);
}

void warning(QWidget *parent, const Error &error, const QString &title)
{
    show(QMessageBox::Warning, parent, error, title);
}

Error withPathBelow(Error error)
{
    error.detail =
        error.detail.isEmpty() ? error.path : error.path + QLatin1Char('\n') + error.detail;
    error.path.clear();
    return error;
}

bool confirmed(QWidget *parent, const QString &question)
{
    QMessageBox box(QMessageBox::Question, QString(), question, QMessageBox::Yes | QMessageBox::No,
                    parent);
    box.setTextFormat(Qt::PlainText);
    // without a default button the toolkit gives the keyboard to Yes
    box.button(QMessageBox::No)->setFocus();
    return box.exec() == QMessageBox::Yes;
}

} // namespace vlt::messages
