#pragma once

class QProcess;

// What every helper process (ffprobe, ffmpeg) gets before it starts.
class HelperProcess {
public:
    // The helper is killed when the thread that starts it ends: a transcoder must not go on
    // writing an encode for a process that was killed. And it inherits no descriptor but its
    // standard three: not the log file, not the display's or the service's sockets, which it
    // would otherwise hold open for as long as an encode runs.
    // Call before start(), from the thread that starts the process; that thread must outlive
    // the helper (it does, while it waits for the helper or owns it).
    static void prepare(QProcess& process);
};
