#pragma once

#include <QRectF>

#include "ui/controls/StyledButton.h"

// A tag as a small blue chip: its text, cut at the end when long, and a delete mark. Clicking
// it sends the action, which removes the tag. The chip sizes itself to its text; where it sits
// is the tags view's business (frame(), in the tags view's lower-left coordinates).
class TagButton : public StyledButton {
    Q_OBJECT

public:
    explicit TagButton(QWidget* parent = nullptr);

    void setTitleString(const QString& title) override;

    bool isHighlighted() const { return isDown(); }
    void setHighlighted(bool highlighted) { setDown(highlighted); }

    QRectF frame() const { return frame_; }
    void setFrame(const QRectF& lowerLeftFrame);

    // The label's frame and the text it shows, measured from the chip's top left corner.
    QRectF labelFrame() const { return labelFrame_; }
    QString shownTitle() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void updateFrames();

    QRectF frame_;
    QRectF labelFrame_;
};
