#pragma once

#include "ui/controls/StyledButton.h"

// A button drawn on a panel of the image set, with a bold title centred over it. Its type (0-4)
// picks the panels, normal and pressed, and the title size.
class RoundedButton : public StyledButton {
    Q_OBJECT

public:
    explicit RoundedButton(QWidget* parent = nullptr);

    int type() const { return type_; }
    // Types outside 0-4 change nothing.
    void setType(int type);

    bool isHighlighted() const { return isDown(); }
    void setHighlighted(bool highlighted) { setDown(highlighted); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int type_ = 0;
    int normalBackground_ = -1;
    int pressedBackground_ = -1;
};
