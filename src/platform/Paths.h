#pragma once

#include <QString>

// Where Orvale keeps its files on this machine. Everything per user lives under the
// generic data folder (~/.local/share), the counterpart of the user's Library folder.
class Paths {
public:
    static QString libraryFolder();
    static QString workFolder();  // encodes are written here before they move
    static QString logFolder();
    static QString cacheFolder();          // what can be found out again; ~/.cache/Orvale
    static QString defaultOutputFolder();  // "Orvale Kesto Output" in the home folder
    // Sockets and locks of this user's running Orvale; $XDG_RUNTIME_DIR/Orvale, where the
    // system gives one.
    static QString runtimeFolder();
};
