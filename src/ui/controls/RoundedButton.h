#pragma once

#include <QColor>

#include "ui/controls/StyledButton.h"

// A button drawn on a panel of the image set, with a bold title centred over it. Its type (0-4)
// picks the panels, normal and pressed, and the title size. A button whose action is disabled
// still looks and highlights as usual; it only sends nothing. That flag is not QWidget's enabled
// state, which would also stop the mouse from reaching it.
class RoundedButton : public StyledButton {
    Q_OBJECT

public:
    explicit RoundedButton(QWidget* parent = nullptr);

    int type() const { return type_; }
    // Types outside 0-4 change nothing.
    void setType(int type);

    QString titleString() const { return text(); }
    void setTitleString(const QString& title);
    QColor titleColor() const { return titleColor_; }
    void setTitleColor(const QColor& color);

    bool isActionEnabled() const { return actionEnabled_; }
    void setActionEnabled(bool enabled) { actionEnabled_ = enabled; }

    bool isHighlighted() const { return isDown(); }
    void setHighlighted(bool highlighted) { setDown(highlighted); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int type_ = 0;
    int normalBackground_ = -1;
    int pressedBackground_ = -1;
    QColor titleColor_ = Qt::white;
    bool actionEnabled_ = true;
};
