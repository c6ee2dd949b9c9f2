#pragma once

#include <QWidget>

class RoundedView;
class VerticallyCenteredTextFieldCell;

// One labelled text input of the credits view: a small white field panel with a borderless
// text field inset 13 at the sides and 6 at top and bottom, following the view's size. The
// label is the field's placeholder.
class InputView : public QWidget {
    Q_OBJECT

public:
    explicit InputView(QWidget* parent = nullptr);

    void setPlaceholder(const QString& placeholder);
    QString placeholder() const;
    QString stringValue() const;

    RoundedView* backgroundView() const { return backgroundView_; }
    VerticallyCenteredTextFieldCell* textField() const { return textField_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    RoundedView* backgroundView_;
    VerticallyCenteredTextFieldCell* textField_;
};
