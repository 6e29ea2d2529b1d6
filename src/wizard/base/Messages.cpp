#include "wizard/base/Messages.h"

#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "text/RichText.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>

namespace vlt::messages {

namespace {

void show(QMessageBox::Icon icon, QWidget *parent, const Error &error, const QString &title,
          PathPlace place)
{
    const bool isBelow = place == PathPlace::BelowText;
    QMessageBox box(icon, title, isBelow ? reasonOf(error) : textOf(error), QMessageBox::Ok,
                    parent);
    box.setTextFormat(Qt::PlainText);
    QStringList below;
    if (isBelow)
        below << error.path;
    if (!error.text.isEmpty() && !error.detail.isEmpty())
        below << language::readerText(error.detail);
    box.setInformativeText(text::asRichText(below.join(QLatin1Char('\n'))));
    box.exec();
}

/// The path without the doubled separator of temporary names, which users may take for an error.
QString shownPath(const QString &path)
{
    const bool isVirtual = path.startsWith(QLatin1String("/vsi")); // may contain a URL with "//"
    return path.startsWith(QLatin1Char('/')) && !isVirtual ? QDir::cleanPath(path) : path;
}

} // namespace

QString textOf(const Error &error)
{
    return Error{{}, reasonOf(error), shownPath(error.path)}.display();
}

QString reasonOf(const Error &error)
{
    if (error.text.isEmpty())
        return language::readerText(error.detail);
    return error.key.isEmpty()
               ? error.text
               : dico_label(error.key.toUtf8().constData(), error.text.toUtf8().constData());
}

QString errorTitle()
{
    return dico_label("MESS_ERREUR", "Error");
}

void critical(QWidget *parent, const Error &error, const QString &title, PathPlace place)
{
    show(QMessageBox::Critical, parent, error, title, place);
}

void warning(QWidget *parent, const Error &error, const QString &title, PathPlace place)
{
    show(QMessageBox::Warning, parent, error, title, place);
}

bool confirmed(QWidget *parent, const QString &question)
{
    QMessageBox box(QMessageBox::Question, QString(), question, QMessageBox::Yes | QMessageBox::No,
                    parent);
    box.setTextFormat(Qt::PlainText);
    // Without a default button the toolkit gives the focus to Yes.
    box.button(QMessageBox::No)->setFocus();
    return box.exec() == QMessageBox::Yes;
}

} // namespace vlt::messages
