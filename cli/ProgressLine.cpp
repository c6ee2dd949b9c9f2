#include "ProgressLine.h"

#include "ConsoleOutput.h"

ProgressLine::ProgressLine(bool redraw) : redraw_(redraw) { elapsed_.start(); }

QString ProgressLine::clock(qint64 seconds) {
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg((seconds / 60) % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

void ProgressLine::update(double percent, const QString& detail) {
    const qint64 seconds = elapsed_.elapsed() / 1000;
    timeLeft_.addPercent(percent);
    const std::optional<qint64> secondsLeft = timeLeft_.secondsLeft();
    const QString left = secondsLeft ? clock(*secondsLeft) : QStringLiteral("--:--:--");
    const QString text = QStringLiteral("%1% elapsed %2 left %3  %4")
                             .arg(percent, 5, 'f', 1)
                             .arg(clock(seconds), left, detail);
    if (redraw_) {
        ConsoleOutput::err(QStringLiteral("\r\033[K") + text);
        lineOpen_ = true;
        return;
    }
    const int decile = static_cast<int>(percent / 10);
    if (decile > lastDecile_) {
        lastDecile_ = decile;
        ConsoleOutput::err(text + QLatin1Char('\n'));
    }
}

void ProgressLine::finish() {
    if (lineOpen_) {
        ConsoleOutput::err(QStringLiteral("\n"));
        lineOpen_ = false;
    }
}

void ProgressLine::message(const QString& text) {
    finish();
    ConsoleOutput::err(text + QLatin1Char('\n'));
}
