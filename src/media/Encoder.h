#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <atomic>
#include <functional>

#include "media/EncoderDelegate.h"
#include "media/EncoderInterface.h"
#include "media/ProgressParser.h"

// Probes files with ffprobe and transcodes them with ffmpeg. Probes run on threads of their own
// and touch nothing but the file they were given; every report reaches the delegate on the
// thread that owns the encoder (the main thread). Encodes are written into this process's
// folder of the work folder (WorkFolder).
class Encoder : public QObject, public EncoderInterface {
    Q_OBJECT

public:
    explicit Encoder(QObject* parent = nullptr);
    ~Encoder() override;

    void setDelegate(EncoderDelegate* delegate) { delegate_ = delegate; }
    EncoderDelegate* delegate() const { return delegate_; }

    void loadVideoDetailsForFile(const FilePtr& file) override;
    void encodeFile(const FilePtr& file) override;
    void encodeFiles(const FileList& files) override;
    void stopEncoding() override;

    // Probes still running kill their helper and report nothing, and later ones do nothing:
    // for the owner of the probe threads, before it goes.
    void abandonProbes() { probesAbandoned_ = true; }

    bool isRunning() const { return encoderTask_ != nullptr; }
    const FileList& encodeQueue() const { return encodeQueue_; }
    double currentState() const { return currentState_; }

    // Runs the callback on the main thread once every transcoder that was stopped has ended, so
    // that its unfinished output can be removed: at the next turn of the event loop when none
    // is left running.
    void whenStopped(std::function<void()> callback);
    // Waits for stopped transcoder processes to end, killing those that take too long. Blocks:
    // for the end of the process only.
    void waitUntilStopped(int milliseconds = 5000);

    // The full path of the helper to run ("ffprobe", "ffmpeg"), or empty when it is nowhere to
    // be found; a missing helper is logged once per process.
    static QString helperPath(const QString& baseName);

private:
    void reportDetailsLoaded(const FilePtr& file);
    void failSoon();
    void onOutput();
    void onProcessEnded();
    void finishFile();
    void detachTask();
    void reportStoppedIfSo();

    EncoderDelegate* delegate_ = nullptr;
    FileList encodeQueue_;
    QProcess* encoderTask_ = nullptr;
    QList<QPointer<QProcess>> stoppingTasks_;
    QList<std::function<void()>> stoppedCallbacks_;
    ProgressParser progress_;
    double currentState_ = 0;
    quint64 runGeneration_ = 0;
    std::atomic_bool probesAbandoned_ = false;
};
