#pragma once

#include <QRectF>

class QWidget;

// Frames of child widgets in the screens' lower-left coordinates, within their parent.
class ViewGeometry {
public:
    static QRectF frame(const QWidget* view);
    static void setFrame(QWidget* view, const QRectF& lowerLeftFrame);
};
