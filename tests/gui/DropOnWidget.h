#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

/// Drags `data` over the middle of a widget; returns whether the widget would accept a drop.
inline bool dragOver(QWidget *widget, const QMimeData &data)
{
    QDragEnterEvent enter(widget->rect().center(), Qt::CopyAction | Qt::LinkAction, &data,
                          Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    return enter.isAccepted();
}

/// Leaves the widget without a drop.
inline void dragAway(QWidget *widget)
{
    QDragLeaveEvent leave;
    QApplication::sendEvent(widget, &leave);
}

/// Drops `data` on a widget.
inline void dropOn(QWidget *widget, const QMimeData &data)
{
    if (!dragOver(widget, data))
        return;
    QDropEvent drop(widget->rect().center(), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(widget, &drop);
}

/// The same with files.
inline void dropFiles(QWidget *widget, const QStringList &paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    data.setUrls(urls);
    dropOn(widget, data);
}
