#pragma once

#include <QString>

// How the progress screen's two bars follow the percentages they are given. Small values show a
// stub rather than a sliver, the upload bar stops short of its end until the job is over, and a
// bar only glides once it has left the stub range, so the jump out of it is immediate.
class ProgressBarRules {
public:
    struct BarUpdate {
        double percent;
        bool animated;
        // False when the percentage text keeps what it showed.
        bool showsText = true;
    };

    static constexpr double kStubPercent = 7;
    static constexpr double kUploadCapPercent = 99;

    static BarUpdate convertBar(double percent, double previousPercent);
    static BarUpdate uploadBar(double percent, double previousPercent);
    // A bar's width at a percentage of its track's.
    static qreal barWidth(qreal trackWidth, double percent) { return trackWidth * percent / 100; }
    // Rounded down: 45.7 reads "45%".
    static QString percentText(double percent);
};
