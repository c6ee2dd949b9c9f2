#pragma once

#include <QFont>
#include <QString>

// The faces the screens ask for, "HelveticaNeue" and "HelveticaNeue-Bold". The family is mapped
// to a metric-compatible free Helvetica (Nimbus Sans, else TeX Gyre Heros), else to the system's
// sans-serif. Sizes are points of the screens' geometry, which are device-independent pixels.
class Fonts {
public:
    static QFont helveticaNeue(int size);
    static QFont helveticaNeueBold(int size);
    // "HelveticaNeue" or "HelveticaNeue-Bold"; any other name gives the regular face.
    static QFont named(const QString& name, int size);
};
