#pragma once

#include "platform/Result.h"

#include <QObject>

#include <optional>

class QLineEdit;

/// A line with the path of a file that the source page opens, and the properties of that file.
/// Files are opened on other threads; a request during a read is ignored.
class PathPicker : public QObject
{
    Q_OBJECT

public:
    /// The path that was typed since the last file was opened, absolute; none if it is the same
    /// path. The path is empty if the line is.
    std::optional<QString> typedPath() const;

    /// Why the path of the line cannot be opened; none if it can.
    std::optional<vlt::Error> unreadable() const;

Q_SIGNALS:
    /// The properties of the file have changed.
    void changed();

protected:
    /// @param page        parent of the message boxes
    /// @param line        line edit for the path
    /// @param isBusy      whether the page is reading a file; must outlive this object
    /// @param unreadable  the error of a path that cannot be opened, without the path
    PathPicker(QWidget *page, QLineEdit *line, bool &isBusy, const vlt::Error &unreadable);

    QWidget *page() const { return m_page; }
    QString path() const;

    /// Shows the path of the open file; empty for none.
    void showPath(const QString &path);

    bool &m_isBusy;

private:
    QWidget *m_page;
    QLineEdit *m_line;
    QString m_opened; ///< text of the line when its file was opened
    vlt::Error m_unreadable;
};
