// Saving and loading a 10,000-entry viewed history (budget: both together under 50 ms).
#include "BenchSupport.h"

#include "history/HistoryManager.h"
#include "history/UserPaths.h"

#include <QTemporaryDir>
#include <QTimeZone>
#include <benchmark/benchmark.h>

using namespace qor;

namespace {

constexpr int kEntries = 10000;

// A user folder holding a saved history of kEntries materials, some viewed
// more than once and some with a toxic-inhalation mark, as a long-used app has.
struct BigHistory {
    QTemporaryDir dir;
    HistoryManager manager;
    BigHistory()
    {
        UserPaths::setDataDir(dir.path());
        manager.loadHistory();
        const QDateTime start = QDateTime::fromMSecsSinceEpoch(1700000000000, QTimeZone::utc());
        for (int i = 0; i < kEntries; ++i) {
            auto m = std::make_shared<Material>();
            m->unId = QString::number(10000 + i);
            m->name = QStringLiteral("Material Number %1, Solution").arg(i);
            m->guideId = QString::number(111 + i % 60);
            m->placardId = QStringLiteral("2.3");
            m->mayPolymerize = i % 11 == 0;
            if (i % 9 == 0)
                m->toxicInhalationHazard = QStringLiteral("X");
            for (int v = 0; v <= i % 3; ++v)
                manager.addToHistory(m, start.addSecs(qint64(i) * 37 + v));
        }
        manager.saveHistory();
    }
};

BigHistory& bigHistory()
{
    static BigHistory history;
    return history;
}

} // namespace

static void BM_SaveHistory10k(benchmark::State& state)
{
    HistoryManager& manager = bigHistory().manager;
    for (auto _ : state)
        benchmark::DoNotOptimize(manager.saveHistory());
}
BENCHMARK(BM_SaveHistory10k)->Unit(benchmark::kMillisecond);

static void BM_LoadHistory10k(benchmark::State& state)
{
    bigHistory();
    for (auto _ : state) {
        HistoryManager loaded;
        loaded.loadHistory();
        benchmark::DoNotOptimize(loaded.viewedHistory().objects.size());
    }
}
BENCHMARK(BM_LoadHistory10k)->Unit(benchmark::kMillisecond);

// What the budget is about: a full save followed by a load into a fresh manager.
static void BM_SaveThenLoadHistory10k(benchmark::State& state)
{
    HistoryManager& manager = bigHistory().manager;
    for (auto _ : state) {
        manager.saveHistory();
        HistoryManager loaded;
        loaded.loadHistory();
        benchmark::DoNotOptimize(loaded.viewedHistory().objects.size());
    }
}
BENCHMARK(BM_SaveThenLoadHistory10k)->Unit(benchmark::kMillisecond);

// The history screen's three orderings over the same history.
static void BM_Orderings10k(benchmark::State& state)
{
    ViewedHistory& history = bigHistory().manager.viewedHistory();
    for (auto _ : state) {
        history.clearSortCaches();
        benchmark::DoNotOptimize(history.allAlpha().size() + history.recent().size() + history.mostViewed().size());
    }
}
BENCHMARK(BM_Orderings10k)->Unit(benchmark::kMillisecond);

QOR_BENCHMARK_MAIN()
