#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QDir>
#include <QSizeF>
#include <QThread>
#include <algorithm>

#include "media/Encoder.h"
#include "media/ProbePool.h"
#include "support/EventLoop.h"
#include "support/FakeHelper.h"
#include "support/TestMedia.h"

namespace {

// An encoder that keeps its probes' reports.
class ProbeRecorder : public EncoderDelegate {
public:
    ProbeRecorder() { encoder.setDelegate(this); }
    void didFinishLoadingDetailsForFile(const FilePtr& file) override {
        reported << file;
        reportedOnMainThread &= QThread::currentThread() == qApp->thread();
    }
    Encoder encoder;
    FileList reported;
    bool reportedOnMainThread = true;  // until a report comes on another thread
};

// What a helper says of a one-second video.
const QString probeAnswer = QStringLiteral(
    R"(echo '{"streams":[{"codec_type":"video","width":64,"height":36}],"format":{"duration":"1"}}')");

FilePtr probe(Encoder& encoder, const QString& path) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
    encoder.loadVideoDetailsForFile(file);
    return file;
}

FileList probeMany(ProbePool& pool, int count) {
    FileList files;
    for (int i = 0; i < count; ++i) {
        files << std::make_shared<File>(
            QUrl::fromLocalFile(QStringLiteral("/nowhere/clip%1.mov").arg(i)));
        pool.probe(files.last());
    }
    return files;
}

}  // namespace

TEST(EncoderProbe, ProbesRealClipsWithTheRealHelper) {
    struct Case {
        const char* name;
        QString path;
        bool isVideo;
        double width;
        double height;
    };
    const Case cases[] = {
        {"half a second", TestMedia::video(160, 90, 0.5), false, 160, 90},
        {"just over half a second", TestMedia::video(160, 90, 0.51), true, 160, 90},
        {"audio only", TestMedia::audioOnly(1), false, 0, 0},
        {"still picture", TestMedia::still(64, 48), false, 64, 48},
        {"cover picture as a second stream", TestMedia::withCoverPicture(), true, 600, 600},
        {"text under a video name", TestMedia::textFile("notes.mp4", "not a video at all\n"), false,
         0, 0},
        {"blanks, quotes and accents",
         TestMedia::copyNamed(TestMedia::video(320, 180, 1), "my 'best' \"take\" – été.mp4"), true,
         320, 180},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ProbeRecorder recorder;
        const FilePtr file = probe(recorder.encoder, c.path);
        EXPECT_EQ(file->isVideo, c.isVideo);
        const VideoDetailPtr& detail = file->videoDetail;  // none without a frame size
        EXPECT_EQ(detail ? QSizeF(detail->width, detail->height) : QSizeF(0, 0),
                  QSizeF(c.width, c.height));
        ASSERT_TRUE(waitUntil([&] { return recorder.reported.size() == 1; }));
        EXPECT_EQ(recorder.reported.first(), file);
    }
}

TEST(EncoderProbe, UsesTheOlderDurationOptionOnlyWhereTheHelperKnowsIt) {
    for (const bool knowsOption : {true, false}) {
        FakeHelper helper;
        const QString accept = knowsOption ? QStringLiteral("exit 0") : QStringLiteral("exit 1");
        helper.install(
            QStringLiteral("ffprobe"),
            QStringLiteral(
                "if [ \"$5\" = -version ]; then %1; fi\n"
                "for a in \"$@\"; do printf '%s|' \"$a\" >> '%2'; done; echo >> '%2'\n%3")
                .arg(accept, helper.recordPath(), probeAnswer));
        ScopedHelpersDir helpers(helper.folder());
        Encoder encoder;
        const QString clip = QStringLiteral("/nowhere/clip name.mov");
        const FilePtr file = probe(encoder, clip);

        EXPECT_TRUE(file->isVideo);
        const QString duration = knowsOption ? QStringLiteral("-show_format_entry|duration")
                                             : QStringLiteral("-show_entries|format=duration");
        EXPECT_EQ(helper.recordedLines(), QStringList{"-v|quiet|-print_format|json|" + duration +
                                                      "|-show_streams|" + clip + "|"});
    }
}

// Probes run on the pool's threads; their reports come on the main thread.
TEST(ProbePool, RunsNoMoreThanItsThreadsAtOnceAndTheFirstProbesTogether) {
    // Each probe notes how many run beside it, then waits until three have run at once.
    FakeHelper helper;
    const QString running = helper.folder() + QStringLiteral("/running");
    QDir().mkpath(running);
    helper.install(
        QStringLiteral("ffprobe"),
        QStringLiteral(
            "if [ \"$5\" = -version ]; then echo check >> '%1'; exit 1; fi\n"
            "touch %2/$$; ls %2 | wc -l >> '%1'\ni=0\n"
            "while [ $(ls %2 | wc -l) -lt 3 ] && [ ! -e %2.done ] && [ $i -lt 200 ]; do\n"
            "  sleep 0.05; i=$((i+1)); done\n"
            "touch %2.done; rm %2/$$\n%3")
            .arg(helper.recordPath(), running, probeAnswer));
    ScopedHelpersDir helpers(helper.folder());
    ProbeRecorder recorder;
    ProbePool pool(recorder.encoder, 3);
    const FileList files = probeMany(pool, 7);

    ASSERT_TRUE(waitUntil([&] { return recorder.reported.size() == files.size(); }, 60000));
    QStringList lines = helper.recordedLines();
    // Probes starting together share one question about the helper's options.
    EXPECT_EQ(lines.removeAll(QStringLiteral("check")), 1);
    int mostTogether = 0;
    for (const QString& line : lines) {
        mostTogether = std::max(mostTogether, line.trimmed().toInt());
    }
    EXPECT_EQ(mostTogether, 3);
    EXPECT_TRUE(
        std::all_of(files.begin(), files.end(), [](const FilePtr& f) { return f->isVideo; }));
    EXPECT_TRUE(recorder.reportedOnMainThread);
}

TEST(ProbePool, StoppingKillsTheRunningProbesAndNothingReportsAfterwards) {
    FakeHelper helper;
    helper.install(
        QStringLiteral("ffprobe"),
        QStringLiteral("if [ \"$5\" = -version ]; then exit 1; fi\necho $$ >> '%1'\nexec sleep 60")
            .arg(helper.recordPath()));
    ScopedHelpersDir helpers(helper.folder());
    ProbeRecorder recorder;
    auto pool = std::make_unique<ProbePool>(recorder.encoder, 2);
    probeMany(*pool, 3);
    ASSERT_TRUE(waitUntil([&] { return helper.recordedLines().size() == 2; }));

    pool.reset();
    for (const QString& pid : helper.recordedLines()) {
        EXPECT_NE(::kill(pid.toInt(), 0), 0) << "probe " << pid.toStdString() << " still runs";
    }
    settle(200);
    EXPECT_TRUE(recorder.reported.isEmpty());
    EXPECT_EQ(helper.recordedLines().size(), 2);  // the third never started
}
