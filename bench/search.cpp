// One search keystroke (the debounce excluded) on the 4,000-material scale pack.
#include "BenchSupport.h"

#include "model/MaterialSearch.h"
#include "model/QORModel.h"

#include <benchmark/benchmark.h>

using namespace qor;

namespace {
QORModel& loadedScaleModel()
{
    static bench::ScalePack pack(4000, 40000);
    static QORModel* model = [] {
        auto* m = new QORModel();
        m->loadData();
        return m;
    }();
    return *model;
}
} // namespace

static void BM_SearchKeystroke(benchmark::State& state, const char* text)
{
    QORModel& model = loadedScaleModel();
    MaterialSearch search([](const Material& m) { return m.unId == QLatin1String("1090"); });
    for (auto _ : state) {
        search.reset();  // every keystroke is a new text
        search.search(QString::fromLatin1(text), model.allFilter.get(), model.materials, SortAlpha);
        benchmark::DoNotOptimize(search.results().size());
    }
    state.counters["results"] = double(search.results().size());
}
BENCHMARK_CAPTURE(BM_SearchKeystroke, one_char, "a")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystroke, three_chars, "sod")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystroke, four_digits, "1005")->Unit(benchmark::kMicrosecond);

QOR_BENCHMARK_MAIN();
