#pragma once

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QStringList>
#include <vector>

// One look of a drawn panel, described in backgrounds.json: a rounded shape drawn whole and cut
// into a left cap, a centre and a right cap (or into nine parts), so the parts always join.
class BackgroundLook {
public:
    struct Part {
        QString name;
        QImage image;
    };

    explicit BackgroundLook(const QJsonObject& description);

    // Every named part at the given scale (1 or 2); parts named "-" are not wanted.
    std::vector<Part> render(int scale) const;
    QString problem() const { return problem_; }

private:
    QImage drawWhole(int scale) const;
    std::vector<QRect> partRects(int scale) const;

    QStringList names_;
    qreal height_ = 0;
    qreal leftCap_ = 0;
    qreal rightCap_ = 0;
    qreal topCap_ = 0;
    qreal bottomCap_ = 0;
    qreal radius_ = 0;
    QColor fillTop_;
    QColor fillBottom_;
    QColor border_;
    QColor arrow_;
    QString problem_;
};
