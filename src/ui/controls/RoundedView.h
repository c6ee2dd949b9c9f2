#pragma once

#include <QWidget>

class QPainter;

// A panel drawn from the image set: a left cap, a stretched centre and a right cap across its
// whole bounds, chosen by its type (0-18; type 2 is a nine-part image). Any other type draws
// nothing, leaving what lies behind untouched.
class RoundedView : public QWidget {
    Q_OBJECT

public:
    explicit RoundedView(QWidget* parent = nullptr);

    int type() const { return type_; }
    void setType(int type);

    // Draws the panel of a type into a rectangle; buttons draw their backgrounds with it.
    static void drawPanel(QPainter& painter, const QRectF& rect, int type);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int type_ = 1;
};
