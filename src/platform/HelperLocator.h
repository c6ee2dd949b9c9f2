#pragma once

#include <QString>
#include <QStringList>

// Finds helper executables (ffprobe, ffmpeg): $ORVALE_HELPERS_DIR first, then
// ../libexec/orvale/ beside the running executable, then PATH.
class HelperLocator {
public:
    // Full path of the helper, or an empty string when none of the places has it.
    static QString locate(const QString& name);
    // The places looked in, in order, for messages about a missing helper.
    static QStringList searchedLocations(const QString& name);
};
