#include "ui/controls/ImageSet.h"

#include <QFile>
#include <QHash>

#include "platform/Log.h"

// The image set is compiled into a static library, whose resources are registered by hand,
// from the global namespace.
static void loadResourceOnce() {
    static const bool loaded = [] {
        Q_INIT_RESOURCE(images);
        return true;
    }();
    Q_UNUSED(loaded);
}

namespace {

QString resourcePath(const QString& name, int scale) {
    const QString file = scale == 1 ? name : name.chopped(4) + QStringLiteral("@2x.png");
    return QStringLiteral(":/images/") + file;
}

QString cacheKey(const QString& name, const QSize& size, qreal devicePixelRatio) {
    return QStringLiteral("%1|%2x%3|%4")
        .arg(name)
        .arg(size.width())
        .arg(size.height())
        .arg(devicePixelRatio);
}

QHash<QString, QPixmap>& pixmapCache() {
    static QHash<QString, QPixmap> cache;
    return cache;
}

}  // namespace

bool ImageSet::contains(const QString& name) {
    loadResourceOnce();
    return QFile::exists(resourcePath(name, 1));
}

QPixmap ImageSet::pixmap(const QString& name, qreal devicePixelRatio) {
    return pixmap(name, QSize(), devicePixelRatio);
}

QPixmap ImageSet::pixmap(const QString& name, const QSize& size, qreal devicePixelRatio) {
    const QString key = cacheKey(name, size, devicePixelRatio);
    if (const auto cached = pixmapCache().constFind(key); cached != pixmapCache().constEnd()) {
        return *cached;
    }
    loadResourceOnce();
    const int scale = devicePixelRatio > 1 ? 2 : 1;
    QPixmap pixmap(resourcePath(name, scale));
    if (pixmap.isNull()) {
        LOG_WARNING("No image named {}", name);
        return {};
    }
    pixmap.setDevicePixelRatio(scale);
    const QSize wanted = size.isValid() ? size : pixmap.deviceIndependentSize().toSize();
    if (wanted != pixmap.deviceIndependentSize().toSize() || scale != devicePixelRatio) {
        pixmap = pixmap.scaled(wanted * devicePixelRatio, Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
        pixmap.setDevicePixelRatio(devicePixelRatio);
    }
    pixmapCache().insert(key, pixmap);
    return pixmap;
}

QIcon ImageSet::icon(const QString& name) {
    loadResourceOnce();
    QIcon icon;
    icon.addFile(resourcePath(name, 1));
    icon.addFile(resourcePath(name, 2));
    return icon;
}
