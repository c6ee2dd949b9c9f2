#pragma once

#include <QString>
#include <QStringList>

// Small media files made with the real ffmpeg helper, generated once and kept in the build tree,
// where every test process may read them and none changes them. Copies and text files go into
// a folder of the test process's own, made afresh each time they are asked for, so a test may
// change them as it likes.
class TestMedia {
public:
    static QString cacheFolder();
    static QString scratchFolder();

    // An H.264 clip of the given frame size and length; with a sine tone when asked.
    static QString video(int width, int height, double seconds, bool withAudio = false);
    static QString audioOnly(double seconds);
    static QString still(int width, int height);
    // A clip that also carries a square cover picture as a second video stream.
    static QString withCoverPicture();
    // A fresh copy of a generated clip under another name (blanks, quotes, accents...).
    static QString copyNamed(const QString& source, const QString& name);
    static QString textFile(const QString& name, const QByteArray& content);

private:
    static QString generate(const QString& name, const QStringList& ffmpegArguments);
};
