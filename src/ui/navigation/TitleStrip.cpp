#include "ui/navigation/TitleStrip.h"

#include <QLinearGradient>
#include <QPainter>

#include "model/HEX.h"
#include "model/TitleBarLayout.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/ViewGeometry.h"

TitleStrip::TitleStrip(int width, QWidget* parent)
    : QWidget(parent), logo_(new ImageView(this)), titleBarView_(new QWidget(this)) {
    setFixedHeight(static_cast<int>(TitleBarLayout::kHeight));
    resize(width, height());
    logo_->setImageName(QStringLiteral("orvale_titlebar_logo.png"));
    logo_->setAccessibleName(QStringLiteral("Orvale"));
    // Added after the logo, so it lies above it.
    titleBarView_->raise();
    layOutContents();
}

void TitleStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, HEX::colorWithHexString(QStringLiteral("#ededed")));
    painter.fillRect(rect(), gradient);
    painter.fillRect(QRect(0, height() - 1, width(), 1),
                     HEX::colorWithHexString(QStringLiteral("#dfdfdf")));
}

void TitleStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOutContents();
}

void TitleStrip::layOutContents() {
    ViewGeometry::setFrame(logo_, TitleBarLayout::logoFrame(size()));
    titleBarView_->setGeometry(rect());
}
