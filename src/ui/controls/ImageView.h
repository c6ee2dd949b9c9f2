#pragma once

#include <QPixmap>
#include <QWidget>

// Shows one image scaled to its bounds: an image of the image set by name, or a picture that
// came from elsewhere (the promotional image).
class ImageView : public QWidget {
    Q_OBJECT

public:
    explicit ImageView(QWidget* parent = nullptr);

    QString imageName() const { return imageName_; }
    void setImageName(const QString& imageName);
    const QPixmap& pixmap() const { return pixmap_; }
    void setPixmap(const QPixmap& pixmap);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString imageName_;
    QPixmap pixmap_;
};
