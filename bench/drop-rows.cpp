// orvale-drop-rows FOLDER
//
// Shows the root screen, hands it FOLDER as one drop, and prints on one line the seconds until
// every file of the folder has its row, and the longest the window's event loop went without
// turning meanwhile, in milliseconds: "ROWS SECONDS LONGEST_STALL_MS".
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

#include "jobs/FileSelection.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/WindowAppDelegate.h"
#include "ui/screens/LocalEncodeViewController.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: orvale-drop-rows FOLDER\n");
        return 2;
    }
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("brightfold"));
    QApplication::setApplicationName(QStringLiteral("Orvale"));

    WindowAppDelegate delegate;
    AppDelegateInterface::setApplicationDelegate(&delegate);
    auto* screen = BaseViewController::create<LocalEncodeViewController>();
    delegate.navigationViewController()->setViewController(screen);
    delegate.window()->show();
    QApplication::processEvents();

    const QString folder = QString::fromLocal8Bit(argv[1]);
    const qsizetype expected = FileSelection::collectFiles({folder}).size();
    QElapsedTimer clock;
    qint64 lastTurn = 0;
    qint64 longestStall = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, [&] {
        longestStall = std::max(longestStall, clock.elapsed() - lastTurn);
        lastTurn = clock.elapsed();
        if (screen->selectedFiles().size() == expected) {
            QApplication::quit();
        }
    });
    clock.start();
    heartbeat.start(1);
    screen->addFilesAtPaths({folder});
    QApplication::exec();
    std::printf("%lld %.3f %lld\n", static_cast<long long>(screen->selectedFiles().size()),
                static_cast<double>(clock.elapsed()) / 1000, static_cast<long long>(longestStall));
    AppDelegateInterface::setApplicationDelegate(nullptr);
    return 0;
}
