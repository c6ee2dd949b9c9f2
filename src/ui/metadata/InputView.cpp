#include "ui/metadata/InputView.h"

#include "ui/controls/Fonts.h"
#include "ui/controls/RoundedView.h"
#include "ui/controls/VerticallyCenteredTextFieldCell.h"

namespace {

// x 13, y 6, 276 x 20 in a 302 x 32 view.
const QMargins kTextFieldMargins{13, 6, 13, 6};

}  // namespace

InputView::InputView(QWidget* parent)
    : QWidget(parent),
      backgroundView_(new RoundedView(this)),
      textField_(new VerticallyCenteredTextFieldCell(this)) {
    backgroundView_->setType(0);
    textField_->setFont(Fonts::helveticaNeue(13));
    textField_->setStyleSheet(QStringLiteral("background: transparent; color: black;"));
    textField_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFocusProxy(textField_);
}

void InputView::setPlaceholder(const QString& placeholder) {
    textField_->setPlaceholderText(placeholder);
    textField_->setAccessibleName(placeholder);
}

QString InputView::placeholder() const { return textField_->placeholderText(); }

QString InputView::stringValue() const { return textField_->text(); }

void InputView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    backgroundView_->setGeometry(rect());
    textField_->setGeometry(rect().marginsRemoved(kTextFieldMargins));
}
