#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

// Drops the data on the widget as a file manager would: entering first, since Qt drops only on
// a widget that took the drag, offering copy or move. True when the widget took it as a copy.
inline bool dropOn(QWidget& view, const QMimeData& data) {
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(10, 10), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    if (!enter.isAccepted() || enter.dropAction() != Qt::CopyAction) {
        return false;
    }
    QDropEvent event(QPointF(10, 10), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
    return event.isAccepted() && event.dropAction() == Qt::CopyAction;
}

// The paths as a text/uri-list.
inline bool dropPathsOn(QWidget& view, const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    data.setUrls(urls);
    return dropOn(view, data);
}
