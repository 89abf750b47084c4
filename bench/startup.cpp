// Time to the first frame: the app against an empty Qt Quick window from the
// same executable (same libraries), each in a fresh process. The app runs on
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
    for (auto _ : state) {
        QProcess p;
        p.setProcessEnvironment(env);
        QElapsedTimer timer;
        timer.start();
        p.start(exe, withScratch);
        p.waitForFinished(20000);
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}
} // namespace

static void BM_FirstFrameEmptyWindow(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--empty-window") });
}
BENCHMARK(BM_FirstFrameEmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

static void BM_FirstFrameApp(benchmark::State& state)
{
    runToFirstFrame(state, { QStringLiteral("--exit-after-first-frame"), QStringLiteral("--form-factor=phone") });
}
BENCHMARK(BM_FirstFrameApp)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

QOR_BENCHMARK_MAIN();
