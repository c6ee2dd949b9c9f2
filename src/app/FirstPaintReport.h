#pragma once

#include <QObject>

class QWidget;

// For measuring start-up against other programs (bench/app-start): with
// ORVALE_REPORT_FIRST_PAINT set, prints "first paint NS" on standard output once a window's
// first frame has been painted and handed to the window system, NS being CLOCK_MONOTONIC in
// nanoseconds, which the process that started this one reads on the same clock.
// It lives apart from the app's library so that a bare Qt window can use it too.
class FirstPaintReport : public QObject {
    Q_OBJECT

public:
    static void watchIfAsked(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
