#pragma once

#include <QColor>
#include <QFont>

#include "ui/controls/StyledButton.h"

// A checkbox drawn from the image set ("checkbox_checked.png", "checkbox_unchecked.png") with a
// title beside it. Each click toggles it and then sends the action.
class Checkbox : public StyledButton {
    Q_OBJECT

public:
    explicit Checkbox(QWidget* parent = nullptr);

    bool isSelected() const { return isChecked(); }
    void setSelected(bool selected) { setChecked(selected); }

    QString titleString() const { return text(); }
    void setTitleString(const QString& title);
    QColor titleColor() const { return titleColor_; }
    void setTitleColor(const QColor& color);
    QFont titleFont() const { return font(); }
    void setTitleFont(const QFont& font);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor titleColor_ = Qt::black;
};
