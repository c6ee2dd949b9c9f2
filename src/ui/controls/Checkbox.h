#pragma once

#include "ui/controls/StyledButton.h"

// A checkbox drawn from the image set ("checkbox_checked.png", "checkbox_unchecked.png") with a
// title beside it. Each click toggles it and then sends the action.
class Checkbox : public StyledButton {
    Q_OBJECT

public:
    explicit Checkbox(QWidget* parent = nullptr);

    bool isSelected() const { return isChecked(); }
    void setSelected(bool selected) { setChecked(selected); }

protected:
    void paintEvent(QPaintEvent* event) override;
};
