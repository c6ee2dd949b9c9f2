#pragma once

#include <QAbstractButton>
#include <QColor>

// What every drawn button shares. A press starts on mouse down, Space or Enter; its action goes
// out as triggered() on release, wherever the pointer is by then. Buttons take focus from the
// keyboard (Tab) and show a ring in the app's blue while focus came from the keyboard, not while
// the window merely handed it to them. The accessible name is the title.
//
// A button whose action is disabled still looks and highlights as usual; it only sends nothing.
// That flag is not QWidget's enabled state, which would also keep the mouse from reaching it.
class StyledButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit StyledButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    QString titleString() const { return text(); }
    virtual void setTitleString(const QString& title);
    QColor titleColor() const { return titleColor_; }
    void setTitleColor(const QColor& color);
    QFont titleFont() const { return font(); }
    void setTitleFont(const QFont& font);

    bool isActionEnabled() const { return actionEnabled_; }
    void setActionEnabled(bool enabled) { actionEnabled_ = enabled; }

signals:
    // The control's action, sent to whoever connected.
    void triggered();

protected:
    // A button may refuse a press altogether: no highlight and no action follow.
    virtual bool acceptsPress() const { return true; }
    // A press was released: the action goes out unless it is disabled.
    virtual void pressEnded();

    bool event(QEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // Drawn last, over the button, when it has keyboard focus.
    void drawFocusRing(QPainter& painter, const QRectF& shape, qreal radius) const;
    // Text placed with its top on the rectangle's top plus the labels' inset, as a label would.
    void drawLabelText(QPainter& painter, const QRectF& labelRect, const QString& text,
                       const QFont& font, const QColor& color, Qt::Alignment horizontal) const;

private:
    QColor titleColor_ = Qt::black;
    bool actionEnabled_ = true;
    bool focusFromKeyboard_ = false;
};
