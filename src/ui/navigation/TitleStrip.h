#pragma once

#include <QWidget>

class ImageView;

// The 38-point strip across the top of the window's content that stands for the taller title
// bar: a light gradient with a baseline, the logo in the middle, and above the logo a clear view
// covering the strip (titleBarView) that takes the screens' buttons.
class TitleStrip : public QWidget {
    Q_OBJECT

public:
    // Laid out at once for its width, so screens can place buttons before the window shows.
    explicit TitleStrip(int width, QWidget* parent = nullptr);

    QWidget* titleBarView() const { return titleBarView_; }
    ImageView* logo() const { return logo_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOutContents();

    ImageView* logo_;
    QWidget* titleBarView_;
};
