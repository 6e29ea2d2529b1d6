#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>

// Files that tests make and compare. A test that cannot write or read a file that it needs ends at
// once.

/// Writes a file and creates its folders.
///
/// @return  the path
inline QString writeFile(const QString &path, const QByteArray &content = {})
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size() || !file.flush())
        qFatal("%s cannot be written", qPrintable(path));
    return path;
}

/// The content of a file; "(cannot be read)" for a missing file, so that it is not taken for an
/// empty one.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    const bool isOpen = !path.isEmpty() && file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray("(cannot be read)");
}

/// Copies the contents of a folder to another one.
inline void copyFolder(const QString &from, const QString &to)
{
    if (QProcess::execute(QStringLiteral("cp"),
                          {QStringLiteral("-R"), from + QStringLiteral("/."), to}) != 0)
        qFatal("%s cannot be copied to %s", qPrintable(from), qPrintable(to));
}
