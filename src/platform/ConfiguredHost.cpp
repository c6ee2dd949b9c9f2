#include "platform/ConfiguredHost.h"

QString ConfiguredHost::resolve(const QSettings& settings) const {
    const QString fromEnvironment = qEnvironmentVariable(environmentVariable).trimmed();
    if (!fromEnvironment.isEmpty()) {
        return fromEnvironment;
    }
    const QString fromSettings = settings.value(settingsKey).toString().trimmed();
    return fromSettings.isEmpty() ? buildDefault : fromSettings;
}

QString ConfiguredHost::address(const QString& host, const QString& path) {
    QString base = host;
    while (base.endsWith(QLatin1Char('/'))) {
        base.chop(1);
    }
    const bool hasScheme = base.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
                           base.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
    return (hasScheme ? QString() : QStringLiteral("http://")) + base + path;
}
