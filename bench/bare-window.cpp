// The floor for bench/app-start: an empty Qt Widgets main window of Orvale's size, started
// and measured the same way as the app.
#include <QApplication>
#include <QMainWindow>

#include "app/FirstPaintReport.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.resize(914, 619);  // the app's content and its menu bar
    FirstPaintReport::watchIfAsked(&window);
    window.show();
    return QApplication::exec();
}
