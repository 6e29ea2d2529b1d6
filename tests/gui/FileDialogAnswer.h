#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

/// Answers every file dialog with a path as long as it exists, or cancels it if the path is empty,
/// and keeps the dialog's texts.
class FileDialogAnswer
{
public:
    explicit FileDialogAnswer(const QString &path)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, path] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            caption = dialog->windowTitle();
            directory = dialog->directory().absolutePath();
            filters = dialog->nameFilters();
            if (path.isEmpty())
                return dialog->reject();
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
            static_cast<QDialog *>(dialog)->accept();
        });
        m_timer.start(20);
    }

    QString caption;
    QString directory;
    QStringList filters;

private:
    QTimer m_timer;
};
