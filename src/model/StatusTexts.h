#pragma once

#include <QString>
#include <optional>

// What the application says outside its screens: the window's title while a job runs, the
// desktop notification when a job ends unseen, and the bar that announces a newer release.
class StatusTexts {
public:
    static inline const QString kApplicationName = QStringLiteral("Orvale");

    // "45% – Orvale" while a job runs (the percentage rounded down, so 100% only at the end,
    // and kept within 0-100); "Orvale" without one.
    static QString windowTitle(std::optional<double> percent);

    // The notification's headline: "Encoding finished" or "Upload finished".
    static QString jobEndedSummary(bool isLocalEncode);
    // "3 completed, 1 failed".
    static QString jobEndedBody(int completed, int failed);

    // "Orvale 1.2 is available."
    static QString newVersionText(const QString& version);
    static inline const QString kDownloadLinkText = QStringLiteral("Download");
};
