#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

// The app's images by their names ("icon_home.png"), from the image set the build renders. Each
// name has a 1x file and an @2x file; above a device pixel ratio of 1 the @2x file is drawn as it
// is, never the 1x file scaled up. Pixmaps are cached by name, size and pixel ratio; all of this
// runs on the main thread.
class ImageSet {
public:
    static bool contains(const QString& name);
    // At the image's own size; deviceIndependentSize() gives it in points.
    static QPixmap pixmap(const QString& name, qreal devicePixelRatio);
    // Scaled to a size in points (unscaled when that is the image's own size).
    static QPixmap pixmap(const QString& name, const QSize& size, qreal devicePixelRatio);
    static QIcon icon(const QString& name);
};
