#pragma once

#include <QSettings>
#include <QString>

// A host of the outside world (the maker's web site, the crash-report server), chosen from
// three places: an environment variable, then a key of the settings store, then the default
// this build was made with. An empty value counts as not set, so a stray `export VAR=` cannot
// send traffic to nowhere.
struct ConfiguredHost {
    const char* environmentVariable;
    QString settingsKey;
    QString buildDefault;

    // A host name, maybe with a port and a path ("127.0.0.1:8080/site"); may carry a scheme
    // when someone typed one.
    QString resolve(const QSettings& settings) const;

    // "http://" + host + path; a host that already names its scheme keeps it.
    static QString address(const QString& host, const QString& path);
};
