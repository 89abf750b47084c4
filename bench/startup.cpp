// Time to the first frame: the app against an empty Qt Quick window from the
// same executable (same libraries), each in a fresh process.
#include "BenchSupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
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
    for (auto _ : state) {
        QProcess p;
        QElapsedTimer timer;
        timer.start();
        p.start(exe, args);
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
