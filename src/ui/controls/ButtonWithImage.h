#pragma once

#include <QString>

#include "ui/controls/StyledButton.h"

// A button that is just an image of the image set: one for normal, one while pressed and one
// while selected. With a selected image a click selects it (or toggles, unless it is to be
// disabled after selection, in which case it acts once and then ignores presses).
class ButtonWithImage : public StyledButton {
    Q_OBJECT

public:
    explicit ButtonWithImage(QWidget* parent = nullptr);

    void setNormalImage(const QString& imageName);
    void setHighlightedImage(const QString& imageName);
    void setSelectedImage(const QString& imageName);
    QString shownImage() const { return shownImage_; }

    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted);
    bool isSelected() const { return selected_; }
    void setSelected(bool selected);
    bool disableAfterSelected() const { return disableAfterSelected_; }
    void setDisableAfterSelected(bool disable) { disableAfterSelected_ = disable; }

protected:
    bool acceptsPress() const override;
    void pressEnded() override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showImage(const QString& imageName);

    QString normalImage_;
    QString highlightedImage_;
    QString selectedImage_;
    QString shownImage_;
    bool highlighted_ = false;
    bool selected_ = false;
    bool disableAfterSelected_ = false;
};
