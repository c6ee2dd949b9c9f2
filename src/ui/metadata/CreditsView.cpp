#include "ui/metadata/CreditsView.h"

#include "model/CreditsLayout.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/metadata/InputView.h"
#include "ui_CreditsView.h"

CreditsView::CreditsView(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::CreditsView>()) {
    ui_->setupUi(this);
    ui_->titleTextField->setFont(Fonts::helveticaNeueBold(13));
    ui_->titleTextField->setStyleSheet(QStringLiteral("color: #666666;"));
    ui_->placeholderTextField->setFont(Fonts::helveticaNeue(12));
    ui_->placeholderTextField->setStyleSheet(QStringLiteral("color: #999999;"));
}

CreditsView::~CreditsView() = default;

QLabel* CreditsView::titleTextField() const { return ui_->titleTextField; }

QLabel* CreditsView::placeholderTextField() const { return ui_->placeholderTextField; }

void CreditsView::setCredits(const std::optional<CreditList>& credits) {
    credits_ = credits;
    updateView();
}

CreditList CreditsView::creditsWithValues() {
    if (!credits_) {
        return {};
    }
    for (qsizetype i = 0; i < credits_->size() && i < creditInputViews_.size(); ++i) {
        credits_->at(i)->stringValue = creditInputViews_.at(i)->stringValue();
    }
    return *credits_;
}

void CreditsView::updateView() {
    removeInputViews();
    updateFrame();
    QLabel* placeholder = ui_->placeholderTextField;
    const qreal titleY = ViewGeometry::frame(ui_->titleTextField).y();
    if (!credits_) {
        QRectF frame = ViewGeometry::frame(placeholder);
        frame.moveTo(frame.x(), CreditsLayout::placeholderY(titleY, frame.height()));
        ViewGeometry::setFrame(placeholder, frame);
        placeholder->show();
        return;
    }
    if (credits_->isEmpty()) {
        return;
    }
    placeholder->hide();
    for (qsizetype i = 0; i < credits_->size(); ++i) {
        auto* input = new InputView(this);
        ViewGeometry::setFrame(input, CreditsLayout::inputFrame(titleY, i));
        input->setPlaceholder(credits_->at(i)->name);
        input->show();
        creditInputViews_.append(input);
    }
}

void CreditsView::updateFrame() {
    const qreal titleHeight = ui_->titleTextField->height();
    const std::optional<qsizetype> count =
        credits_ ? std::optional(credits_->size()) : std::nullopt;
    const qreal height =
        CreditsLayout::frameHeight(titleHeight, count, ui_->placeholderTextField->height());
    const QRectF frame = ViewGeometry::frame(this);
    const qreal topEdge = frame.y() + frame.height();
    ViewGeometry::setFrame(this, {frame.x(), topEdge - height, frame.width(), height});
    QRectF title = ViewGeometry::frame(ui_->titleTextField);
    title.moveTo(title.x(), CreditsLayout::titleY(height, titleHeight));
    ViewGeometry::setFrame(ui_->titleTextField, title);
}

void CreditsView::clearView() {
    setCredits(std::nullopt);
    removeInputViews();
    updateFrame();
}

void CreditsView::removeInputViews() {
    for (InputView* input : creditInputViews_) {
        input->hide();
        input->deleteLater();
    }
    creditInputViews_.clear();
}
