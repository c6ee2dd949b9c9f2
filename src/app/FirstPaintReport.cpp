#include "app/FirstPaintReport.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <ctime>

void FirstPaintReport::watchIfAsked(QWidget* window) {
    if (qEnvironmentVariableIsSet("ORVALE_REPORT_FIRST_PAINT")) {
        window->installEventFilter(new FirstPaintReport(window));
    }
}

bool FirstPaintReport::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The window's children paint in the same pass and the frame is flushed after it; a
        // zero timer runs once all of that is done.
        QTimer::singleShot(0, this, [this] {
            timespec now{};
            clock_gettime(CLOCK_MONOTONIC, &now);
            std::printf("first paint %lld\n",
                        static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
            std::fflush(stdout);
            deleteLater();
        });
    }
    return false;
}
