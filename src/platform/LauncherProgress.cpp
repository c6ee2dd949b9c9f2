#include "platform/LauncherProgress.h"

#include <QDBusError>
#include <algorithm>
#include <cmath>

#include "platform/Log.h"

LauncherProgress::LauncherProgress(QDBusConnection bus) : bus_(std::move(bus)) {
    if (!bus_.isConnected()) {
        LOG_INFO("No session bus: the launcher shows no progress ({})", bus_.lastError().message());
    }
}

QDBusMessage LauncherProgress::updateMessage(std::optional<double> fraction) {
    QDBusMessage message = QDBusMessage::createSignal(
        QStringLiteral("/com/brightfold/Orvale/LauncherEntry"),
        QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    const double shown = fraction ? std::clamp(*fraction, 0.0, 1.0) : 0.0;
    message << kApplicationURI
            << QVariantMap{{QStringLiteral("progress"), shown},
                           {QStringLiteral("progress-visible"), fraction.has_value()}};
    return message;
}

void LauncherProgress::setProgress(std::optional<double> fraction) {
    std::optional<int> percent;
    if (fraction) {
        percent = static_cast<int>(std::floor(std::clamp(*fraction, 0.0, 1.0) * 100.0));
    }
    // Hidden stays hidden, and the same whole percent is already on show.
    if (percent == shownPercent_) {
        return;
    }
    shownPercent_ = percent;
    if (bus_.isConnected()) {
        bus_.send(updateMessage(fraction));
    }
}
