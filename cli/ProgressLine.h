#pragma once

#include <QElapsedTimer>
#include <QString>

#include "jobs/TimeLeftEstimate.h"

// Job progress on standard error: on a terminal one line that redraws itself, elsewhere a line
// at each further 10 %. The time left is the app's estimate; "--:--:--" while it is unknown.
class ProgressLine {
public:
    explicit ProgressLine(bool redraw);

    void update(double percent, const QString& detail);
    // Ends a redrawn line so that what follows starts on a line of its own.
    void finish();
    // Prints a message on a line of its own without losing the progress line.
    void message(const QString& text);

    static QString clock(qint64 seconds);

private:
    bool redraw_;
    bool lineOpen_ = false;
    int lastDecile_ = 0;
    QElapsedTimer elapsed_;
    TimeLeftEstimate timeLeft_;
};
