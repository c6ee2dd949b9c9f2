#pragma once

#include <QString>

#include "ui/controls/StyledButton.h"

// A borderless button with a 26-point icon at its left and a title beside it, such as the
// title strip's "Back". A title that does not fit widens the button; it never narrows. Icons are
// image-set names; QAbstractButton's own icon is not used.
class ButtonWithIcon : public StyledButton {
    Q_OBJECT

public:
    explicit ButtonWithIcon(QWidget* parent = nullptr);

    void setIconName(const QString& imageName);
    void setHighlightedIconName(const QString& imageName);

    void setTitleString(const QString& title) override;

    bool isHighlighted() const { return isDown(); }
    void setHighlighted(bool highlighted) { setDown(highlighted); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString iconName_;
    QString highlightedIconName_;
};
