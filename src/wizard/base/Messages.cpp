#include "wizard/base/Messages.h"

#include "language/ErrorText.h"
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
    QMessageBox box(icon, title, isBelow ? language::reasonOf(error) : textOf(error),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    QStringList below;
    if (isBelow)
        below << error.path;
    if (const QString detail = language::detailOf(error); !detail.isEmpty())
        below << detail;
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
    const QString reason = language::reasonOf(error);
    return error.path.isEmpty() ? reason : reason + QLatin1Char('\n') + shownPath(error.path);
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
