#include "ui/controls/Fonts.h"

#include <QStringList>

namespace {

const QString kFamily = QStringLiteral("HelveticaNeue");

void substituteOnce() {
    static const bool done = [] {
        QFont::insertSubstitutions(
            kFamily, QStringList{QStringLiteral("Nimbus Sans"), QStringLiteral("TeX Gyre Heros"),
                                 QStringLiteral("Helvetica")});
        return true;
    }();
    Q_UNUSED(done);
}

}  // namespace

QFont Fonts::helveticaNeue(int size) {
    substituteOnce();
    QFont font(kFamily);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    return font;
}

QFont Fonts::helveticaNeueBold(int size) {
    QFont font = helveticaNeue(size);
    font.setBold(true);
    return font;
}

QFont Fonts::named(const QString& name, int size) {
    return name == QLatin1String("HelveticaNeue-Bold") ? helveticaNeueBold(size)
                                                       : helveticaNeue(size);
}
