#pragma once

#include "platform/Result.h"

#include <QObject>

#include <optional>

class QLineEdit;

/// A line with the path of a file that the source page opens, and what is known of that file. Files
/// are opened on other threads; what begins while one is being read is left aside.
class PathPicker : public QObject
{
    Q_OBJECT

public:
    /// The path that was typed since the last file was opened, absolute; nothing where it is the
    /// same one. It is empty where the line is.
    std::optional<QString> typedPath() const;

    /// Why the path of the line cannot be opened at all; nothing where it can.
    std::optional<vlt::Error> unreadable() const;

Q_SIGNALS:
    /// What is known of the file has changed.
    void changed();

protected:
    /// @param page        above which boxes open
    /// @param line        of the path
    /// @param isBusy      whether the page is reading a file; outlives this
    /// @param unreadable  the error of a path that cannot be opened, without the path
    PathPicker(QWidget *page, QLineEdit *line, bool &isBusy, const vlt::Error &unreadable);

    QWidget *page() const { return m_page; }
    QString path() const;

    /// Shows a path as the one that is open; empty where none is.
    void showPath(const QString &path);

    bool &m_isBusy;

private:
    QWidget *m_page;
    QLineEdit *m_line;
    QString m_opened; ///< what the line held when its file was opened
    vlt::Error m_unreadable;
};
