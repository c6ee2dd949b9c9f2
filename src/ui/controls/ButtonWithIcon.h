#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "ui/controls/StyledButton.h"

// A borderless button with a 26-point icon at its left and a title beside it, such as the
// title strip's "Back". A title that does not fit widens the button; it never narrows. As with
// RoundedButton, a button whose action is disabled still highlights and only sends nothing.
// Icons are image-set names; QAbstractButton's own icon is not used.
class ButtonWithIcon : public StyledButton {
    Q_OBJECT

public:
    explicit ButtonWithIcon(QWidget* parent = nullptr);

    void setIconName(const QString& imageName);
    void setHighlightedIconName(const QString& imageName);

    QString titleString() const { return text(); }
    void setTitleString(const QString& title);
    QColor titleColor() const { return titleColor_; }
    void setTitleColor(const QColor& color);
    QFont titleFont() const { return font(); }
    void setTitleFont(const QFont& font);

    bool isActionEnabled() const { return actionEnabled_; }
    void setActionEnabled(bool enabled) { actionEnabled_ = enabled; }

    bool isHighlighted() const { return isDown(); }
    void setHighlighted(bool highlighted) { setDown(highlighted); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString iconName_;
    QString highlightedIconName_;
    QColor titleColor_ = Qt::black;
    bool actionEnabled_ = true;
};
