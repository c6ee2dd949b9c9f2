#pragma once

#include <QLineEdit>

// A borderless text field on a clear background whose text, shown or being edited, sits in the
// middle of its height: the text area is inset at top and bottom by half of what the font's
// line leaves free, in whole points. Drawn panels (RoundedView) behind it give it its look.
class VerticallyCenteredTextFieldCell : public QLineEdit {
    Q_OBJECT

public:
    explicit VerticallyCenteredTextFieldCell(QWidget* parent = nullptr);

    QRect adjustedFrameToVerticallyCenterText(const QRect& frame) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void centerText();
};
