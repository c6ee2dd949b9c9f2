#include "ui/controls/RoundedView.h"

#include <QPainter>
#include <array>

#include "model/RoundedViewImages.h"
#include "ui/controls/ImageSet.h"

namespace {

// Cap sizes in points, shrunk together when the rectangle is too small for both.
std::array<qreal, 3> spans(qreal total, qreal startCap, qreal endCap) {
    const qreal caps = startCap + endCap;
    if (caps > total && caps > 0) {
        return {total * startCap / caps, 0, total * endCap / caps};
    }
    return {startCap, total - caps, endCap};
}

void drawPart(QPainter& painter, const QRectF& target, const QPixmap& part) {
    if (!target.isEmpty() && !part.isNull()) {
        // The source is the whole pixmap in its own pixels, so an @2x part keeps its detail.
        painter.drawPixmap(target, part, QRectF(part.rect()));
    }
}

void drawThreePart(QPainter& painter, const QRectF& rect, const std::array<QPixmap, 3>& parts) {
    const auto [left, center, right] = spans(rect.width(), parts[0].deviceIndependentSize().width(),
                                             parts[2].deviceIndependentSize().width());
    drawPart(painter, QRectF(rect.x(), rect.y(), left, rect.height()), parts[0]);
    drawPart(painter, QRectF(rect.x() + left, rect.y(), center, rect.height()), parts[1]);
    drawPart(painter, QRectF(rect.x() + left + center, rect.y(), right, rect.height()), parts[2]);
}

void drawNinePart(QPainter& painter, const QRectF& rect, const std::array<QPixmap, 9>& parts) {
    const auto columns = spans(rect.width(), parts[0].deviceIndependentSize().width(),
                               parts[2].deviceIndependentSize().width());
    const auto rows = spans(rect.height(), parts[0].deviceIndependentSize().height(),
                            parts[6].deviceIndependentSize().height());
    qreal y = rect.y();
    for (size_t row = 0; row < 3; ++row) {
        qreal x = rect.x();
        for (size_t column = 0; column < 3; ++column) {
            drawPart(painter, QRectF(x, y, columns[column], rows[row]), parts[row * 3 + column]);
            x += columns[column];
        }
        y += rows[row];
    }
}

template <size_t N>
std::array<QPixmap, N> loadParts(const QStringList& names, qreal devicePixelRatio) {
    std::array<QPixmap, N> parts;
    for (size_t i = 0; i < N; ++i) {
        parts[i] = ImageSet::pixmap(names.at(static_cast<qsizetype>(i)), devicePixelRatio);
    }
    return parts;
}

}  // namespace

RoundedView::RoundedView(QWidget* parent) : QWidget(parent) {}

void RoundedView::setType(int type) {
    type_ = type;
    update();
}

void RoundedView::drawPanel(QPainter& painter, const QRectF& rect, int type) {
    const QStringList names = RoundedViewImages::imagesForType(type);
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (names.size() == 9) {
        drawNinePart(painter, rect, loadParts<9>(names, ratio));
    } else if (names.size() == 3) {
        drawThreePart(painter, rect, loadParts<3>(names, ratio));
    }
}

void RoundedView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPanel(painter, rect(), type_);
}
