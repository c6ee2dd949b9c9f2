// A start of Orvale as far as being the only one goes: `orvale-instance-child FOLDER FILE...`
// prints "running" and then one line per activation (the files joined by "|") while it is the
// one that runs, or "handed over" and ends when another runs.
#include <QCoreApplication>
#include <QTextStream>

#include "platform/SingleInstance.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        return 2;
    }
    SingleInstance instance(arguments.takeFirst());
    QTextStream out(stdout);
    if (!instance.start(SingleInstance::absolutePaths(arguments))) {
        out << "handed over\n";
        return 0;
    }
    QObject::connect(&instance, &SingleInstance::activationRequested,
                     [&](const QStringList& files) {
                         out << "activated " << files.join(QLatin1Char('|')) << '\n';
                         out.flush();
                     });
    out << "running\n";
    out.flush();
    return QCoreApplication::exec();
}
