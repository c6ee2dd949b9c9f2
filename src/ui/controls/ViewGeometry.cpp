#include "ui/controls/ViewGeometry.h"

#include <QWidget>

#include "model/LowerLeftGeometry.h"

namespace {

qreal parentHeight(const QWidget* view) {
    return view->parentWidget() != nullptr ? view->parentWidget()->height() : 0;
}

}  // namespace

QRectF ViewGeometry::frame(const QWidget* view) {
    return LowerLeftGeometry::fromQt(view->geometry(), parentHeight(view));
}

void ViewGeometry::setFrame(QWidget* view, const QRectF& lowerLeftFrame) {
    view->setGeometry(LowerLeftGeometry::toQt(lowerLeftFrame, parentHeight(view)));
}
