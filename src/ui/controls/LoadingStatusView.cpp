#include "ui/controls/LoadingStatusView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/controls/Fonts.h"

LoadingStatusView::LoadingStatusView(QWidget* parent)
    : QWidget(parent), label_(new QLabel(this)), retryButton_(new QPushButton(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    label_->setWordWrap(true);
    label_->setFont(Fonts::helveticaNeue(12));
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    retryButton_->setText(QStringLiteral("Try Again"));
    layout->addWidget(label_, 1);
    layout->addWidget(retryButton_, 0, Qt::AlignTop);
    connect(retryButton_, &QPushButton::clicked, this, &LoadingStatusView::retryRequested);
    clear();
}

void LoadingStatusView::showLoading(const QString& text) {
    show(text, QStringLiteral("#8a9199"), false);
}

void LoadingStatusView::showFailure(const QString& message) {
    show(message, QStringLiteral("#c0392b"), true);
}

void LoadingStatusView::showNote(const QString& text) {
    show(text, QStringLiteral("#8a9199"), false);
}

void LoadingStatusView::clear() {
    label_->clear();
    retryButton_->hide();
    hide();
}

void LoadingStatusView::show(const QString& text, const QString& color, bool retry) {
    label_->setStyleSheet(QStringLiteral("color: %1;").arg(color));
    label_->setText(text);
    label_->setToolTip(text);
    retryButton_->setVisible(retry);
    QWidget::show();
}
