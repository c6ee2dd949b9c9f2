#pragma once

#include <QColor>
#include <QWidget>

// A plain panel filled with one colour; screens use it as their white background.
class ColoredView : public QWidget {
    Q_OBJECT

public:
    explicit ColoredView(QWidget* parent = nullptr);

    QColor backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor backgroundColor_;
};
