#include "jobs/TimeLeftEstimate.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kLeewayShare = 0.1;
constexpr qint64 kLeewayMs = 5000;

}  // namespace

TimeLeftEstimate::TimeLeftEstimate(Clock clock) : clock_(std::move(clock)) {}

TimeLeftEstimate::Clock TimeLeftEstimate::steadyClock() {
    return [] {
        static QElapsedTimer timer = [] {
            QElapsedTimer started;
            started.start();
            return started;
        }();
        return timer.elapsed();
    };
}

void TimeLeftEstimate::reset() {
    samples_.clear();
    shownMs_.reset();
}

void TimeLeftEstimate::addPercent(double percent) {
    const qint64 now = clock_();
    if (!samples_.isEmpty() && percent < samples_.last().percent) {
        reset();
    }
    if (samples_.isEmpty()) {
        startedAt_ = now;
    }
    samples_.append({now, percent});
    // Keep one sample at or before the window's start, so the window stays full.
    while (samples_.size() > 2 && samples_.at(1).at <= now - kWindowMs) {
        samples_.removeFirst();
    }
    const std::optional<qint64> fresh = freshEstimateMs();
    if (!fresh) {
        shownMs_.reset();
        return;
    }
    if (shownMs_) {
        const qint64 shown = shownMsAt(now);
        const double leeway =
            std::max(kLeewayShare * static_cast<double>(shown), static_cast<double>(kLeewayMs));
        if (std::abs(static_cast<double>(*fresh - shown)) <= leeway) {
            return;
        }
    }
    shownMs_ = fresh;
    shownAt_ = now;
}

std::optional<qint64> TimeLeftEstimate::freshEstimateMs() const {
    if (samples_.size() < 2) {
        return std::nullopt;
    }
    const Sample& first = samples_.first();
    const Sample& last = samples_.last();
    const qint64 span = last.at - first.at;
    const double gained = last.percent - first.percent;
    if (span < kShortestSpanMs || gained <= 0) {
        return std::nullopt;
    }
    const double remaining = std::max(0.0, 100 - last.percent);
    return static_cast<qint64>(remaining * static_cast<double>(span) / gained);
}

qint64 TimeLeftEstimate::shownMsAt(qint64 now) const {
    return std::max<qint64>(0, *shownMs_ - (now - shownAt_));
}

std::optional<qint64> TimeLeftEstimate::secondsLeft() const {
    const qint64 now = clock_();
    if (!shownMs_ || now - startedAt_ < kWarmUpMs) {
        return std::nullopt;
    }
    return (shownMsAt(now) + 999) / 1000;
}
