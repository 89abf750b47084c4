// Time to the first frame: the app against an empty Qt Quick window from the
// same executable (same libraries), each in a fresh process, with the time of
// the whole process beside it. The app runs on
// a scratch data folder and settings folder, never on the user's own: it
// saves the history when it quits.
#include "BenchSupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {
QString qorExecutable()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/../src/app/qor");
    return QFileInfo(path).absoluteFilePath();
}

void runToFirstFrame(benchmark::State& state, const QStringList& args)
{
    const QString exe = qorExecutable();
    if (!QFileInfo::exists(exe)) {
        state.SkipWithError("qor is not built");
        return;
    }
    static QTemporaryDir scratch;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("QOR_DATA_DIR"));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), scratch.filePath(QStringLiteral("config")));
    const QStringList withScratch = QStringList{ QStringLiteral("--data-dir"), scratch.filePath(QStringLiteral("data")) } + args;
    // The first frame is timed where the child says so; the whole process,
    // with the work after the frame and the tear-down, is reported beside it.
    double processMs = 0;
    for (auto _ : state) {
        QProcess p;
        p.setProcessEnvironment(env);
        QElapsedTimer timer;
        timer.start();
        p.start(exe, withScratch);
        qint64 firstFrameNs = -1;
        while (firstFrameNs < 0 && p.waitForReadyRead(20000))
            if (p.readAllStandardOutput().contains("first frame"))
                firstFrameNs = timer.nsecsElapsed();
        p.waitForFinished(20000);
        processMs += double(timer.nsecsElapsed()) / 1e6;
        if (firstFrameNs < 0) {
            state.SkipWithError("no first frame reported");
            break;
        }
        state.SetIterationTime(double(firstFrameNs) / 1e9);
    }
    state.counters["process_ms"] = benchmark::Counter(processMs, benchmark::Counter::kAvgIterations);
}
} // namespace

static void BM_FirstFrameEmptyWindow(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--empty-window") });
}
BENCHMARK(BM_FirstFrameEmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

// What any QML window pays before the app's own screens: one line of text,
// then the controls' style with one label.
static void BM_FirstFrameQmlOneText(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--window-qml"), QStringLiteral(QOR_SOURCE_DIR "/bench/startup/one-text.qml") });
}
BENCHMARK(BM_FirstFrameQmlOneText)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

static void BM_FirstFrameControlsOneLabel(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--window-qml"), QStringLiteral(QOR_SOURCE_DIR "/bench/startup/controls-label.qml") });
}
BENCHMARK(BM_FirstFrameControlsOneLabel)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

static void BM_FirstFrameApp(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--exit-after-first-frame"), QStringLiteral("--form-factor=phone") });
}
BENCHMARK(BM_FirstFrameApp)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

QOR_BENCHMARK_MAIN();
