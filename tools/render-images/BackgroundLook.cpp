#include "BackgroundLook.h"

#include <QJsonArray>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

// The stretched middle of a look, in points. Two keep it whole pixels at both scales.
constexpr qreal kCenterWidth = 2;

QColor colorAt(const QJsonObject& description, const char* key) {
    const QJsonValue value = description.value(QLatin1String(key));
    return value.isString() ? QColor(value.toString()) : QColor();
}

}  // namespace

BackgroundLook::BackgroundLook(const QJsonObject& description) {
    for (const QJsonValue& name : description.value(QLatin1String("names")).toArray()) {
        names_ << name.toString();
    }
    height_ = description.value(QLatin1String("height")).toDouble();
    const QJsonArray caps = description.value(QLatin1String("caps")).toArray();
    leftCap_ = caps.at(0).toDouble();
    rightCap_ = caps.at(1).toDouble();
    topCap_ = caps.at(2).toDouble();
    bottomCap_ = caps.at(3).toDouble();
    radius_ = description.value(QLatin1String("radius")).toDouble();
    const QJsonArray fill = description.value(QLatin1String("fill")).toArray();
    fillTop_ = QColor(fill.at(0).toString());
    fillBottom_ = QColor(fill.at(fill.size() > 1 ? 1 : 0).toString());
    border_ = colorAt(description, "border");
    arrow_ = colorAt(description, "arrow");

    if (names_.size() != 3 && names_.size() != 9) {
        problem_ = QStringLiteral("a look needs 3 or 9 names");
    } else if (height_ <= 0 || leftCap_ <= 0 || rightCap_ <= 0 || !fillTop_.isValid()) {
        problem_ = QStringLiteral("a look needs a height, caps and a fill");
    } else if (names_.size() == 9 && (topCap_ <= 0 || bottomCap_ <= 0)) {
        problem_ = QStringLiteral("a nine-part look needs top and bottom caps");
    }
}

std::vector<BackgroundLook::Part> BackgroundLook::render(int scale) const {
    const QImage whole = drawWhole(scale);
    const std::vector<QRect> rects = partRects(scale);
    std::vector<Part> parts;
    for (qsizetype i = 0; i < names_.size(); ++i) {
        if (names_.at(i) != QLatin1String("-")) {
            parts.push_back({names_.at(i), whole.copy(rects.at(static_cast<size_t>(i)))});
        }
    }
    return parts;
}

QImage BackgroundLook::drawWhole(int scale) const {
    const QSizeF size(leftCap_ + kCenterWidth + rightCap_, height_);
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);

    const qreal borderWidth = border_.isValid() ? 1 : 0;
    const QRectF shape =
        QRectF(QPointF(0, 0), size)
            .adjusted(borderWidth / 2, borderWidth / 2, -borderWidth / 2, -borderWidth / 2);
    QLinearGradient gradient(0, 0, 0, height_);
    gradient.setColorAt(0, fillTop_);
    gradient.setColorAt(1, fillBottom_);
    painter.setBrush(gradient);
    painter.setPen(border_.isValid() ? QPen(border_, borderWidth) : QPen(Qt::NoPen));
    const qreal radius = std::min(radius_, height_ / 2 - borderWidth / 2);
    painter.drawRoundedRect(shape, radius, radius);

    if (arrow_.isValid()) {
        // A popup's chevron, centred in the right cap.
        const QPointF center(size.width() - rightCap_ / 2 - 1, height_ / 2);
        QPainterPath chevron;
        chevron.moveTo(center + QPointF(-4, -2));
        chevron.lineTo(center + QPointF(0, 2));
        chevron.lineTo(center + QPointF(4, -2));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(arrow_, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(chevron);
    }
    return image;
}

std::vector<QRect> BackgroundLook::partRects(int scale) const {
    const int left = qRound(leftCap_ * scale);
    const int center = qRound(kCenterWidth * scale);
    const int right = qRound(rightCap_ * scale);
    const int height = qRound(height_ * scale);
    if (names_.size() == 3) {
        return {{0, 0, left, height}, {left, 0, center, height}, {left + center, 0, right, height}};
    }
    const int top = qRound(topCap_ * scale);
    const int bottom = qRound(bottomCap_ * scale);
    const int middle = height - top - bottom;
    std::vector<QRect> rects;
    for (const auto& [y, h] : {std::pair{0, top}, {top, middle}, {top + middle, bottom}}) {
        rects.push_back({0, y, left, h});
        rects.push_back({left, y, center, h});
        rects.push_back({left + center, y, right, h});
    }
    return rects;
}
