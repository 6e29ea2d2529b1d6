#include "buildings/ui/PathPicker.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>

namespace {

/// Whether a path is a readable file or folder. Pipes are excluded: opening one may never end.
bool isReadable(const QString &path)
{
    const QFileInfo file(path);
    return file.isDir() ? file.isReadable()
                        : file.isFile() && QFile(path).open(QIODevice::ReadOnly);
}

} // namespace

PathPicker::PathPicker(QWidget *page, QLineEdit *line, bool &isBusy, const vlt::Error &unreadable)
    : QObject(page)
    , m_isBusy(isBusy)
    , m_page(page)
    , m_line(line)
    , m_unreadable(unreadable)
{}

QString PathPicker::path() const
{
    return m_line->text();
}

std::optional<QString> PathPicker::typedPath() const
{
    const QString typed = path();
    if (typed == m_opened)
        return std::nullopt;
    return typed.isEmpty() ? typed : QFileInfo(typed).absoluteFilePath();
}

std::optional<vlt::Error> PathPicker::unreadable() const
{
    if (isReadable(path()))
        return std::nullopt;
    return m_unreadable.withPath(path());
}

void PathPicker::showPath(const QString &path)
{
    m_opened = path;
    m_line->setText(path);
}
