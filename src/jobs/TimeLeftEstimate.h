#pragma once

#include <QList>
#include <functional>
#include <optional>

// How long the whole batch still needs, from its overall percentage over time. The rate is taken
// over the last half minute rather than since the start, so a slow first file does not weigh on
// the rest. Nothing is known for the first few seconds, nor while the percentage stands still.
// Once shown, the time counts down with the clock and is replaced only when a fresh estimate
// strays from it by more than a tenth (and at least five seconds), so it does not jump back and
// forth with every update.
class TimeLeftEstimate {
public:
    // Milliseconds from any fixed point; steady.
    using Clock = std::function<qint64()>;

    static constexpr qint64 kWarmUpMs = 5000;
    static constexpr qint64 kWindowMs = 30000;
    static constexpr qint64 kShortestSpanMs = 2000;

    explicit TimeLeftEstimate(Clock clock = steadyClock());

    static Clock steadyClock();

    // A percentage below the last one starts over (a new job).
    void addPercent(double percent);
    void reset();
    std::optional<qint64> secondsLeft() const;

private:
    struct Sample {
        qint64 at;
        double percent;
    };

    std::optional<qint64> freshEstimateMs() const;
    qint64 shownMsAt(qint64 now) const;

    Clock clock_;
    QList<Sample> samples_;
    qint64 startedAt_ = 0;
    std::optional<qint64> shownMs_;
    qint64 shownAt_ = 0;
};
