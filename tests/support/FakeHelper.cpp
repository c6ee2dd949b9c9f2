#include "support/FakeHelper.h"

#include <QFile>

QString FakeHelper::install(const QString& name, const QString& scriptBody) {
    const QString path = dir_.filePath(name);
    QFile script(path);
    script.open(QIODevice::WriteOnly | QIODevice::Truncate);
    script.write("#!/bin/sh\n");
    script.write(scriptBody.toUtf8());
    script.write("\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

QString FakeHelper::installFfmpeg(const QString& body) {
    return install("ffmpeg",
                   "[ \"$1\" = -encoders ] && { echo ' A....D aac  AAC'; exit 0; }\n"
                   "for last in \"$@\"; do :; done\n" +
                       body);
}

QString FakeHelper::installFullDiskFfmpeg() {
    return installFfmpeg(QStringLiteral("echo partial > \"$last\"\n"
                                        "echo $$ > '%1'; echo 'frame=1 time=00:00:00.20'\n"
                                        "echo 'No space left on device'; exec sleep 5")
                             .arg(recordPath()));
}

QString FakeHelper::recordPath() const { return dir_.filePath(QStringLiteral("record.txt")); }

QStringList FakeHelper::recordedLines() const {
    QFile record(recordPath());
    if (!record.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(record.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
