// One search keystroke (the debounce excluded) on the pack this build bundles
// (or $QOR_RESOURCES) and on the 4,000-material scale pack.
#include "BenchSupport.h"

#include "model/MaterialSearch.h"
#include "model/NameSuggestions.h"
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

static void searchKeystroke(benchmark::State& state, QORModel& model, const char* text)
{
    MaterialSearch search([](const Material& m) { return m.unId == QLatin1String("1090"); });
    for (auto _ : state) {
        search.reset();  // every keystroke is a new text
        search.search(QString::fromLatin1(text), model.allFilter.get(), model.materials(), SortAlpha);
        benchmark::DoNotOptimize(search.results().size());
    }
    state.counters["results"] = double(search.results().size());
}

// Registered first, so they run before the scale pack takes over the resource lookup.
static void BM_SearchKeystrokeBundledPack(benchmark::State& state, const char* text)
{
    static QORModel* model = [] {
        auto* m = new QORModel();
        m->loadData();
        return m;
    }();
    searchKeystroke(state, *model, text);
}
BENCHMARK_CAPTURE(BM_SearchKeystrokeBundledPack, one_char, "a")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystrokeBundledPack, three_chars, "sod")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystrokeBundledPack, four_digits, "1005")->Unit(benchmark::kMicrosecond);

static void BM_SearchKeystroke(benchmark::State& state, const char* text)
{
    searchKeystroke(state, loadedScaleModel(), text);
}
BENCHMARK_CAPTURE(BM_SearchKeystroke, one_char, "a")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystroke, three_chars, "sod")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SearchKeystroke, four_digits, "1005")->Unit(benchmark::kMicrosecond);

// "Did you mean" after a search that found nothing; the name index is built
// on the first call and kept, as the list screen keeps its suggester.
static void BM_SuggestWhenNothingFound(benchmark::State& state, const char* text)
{
    QORModel& model = loadedScaleModel();
    NameSuggestions suggester;
    suggester.suggest(QString::fromLatin1(text), model.materials());
    for (auto _ : state)
        benchmark::DoNotOptimize(suggester.suggest(QString::fromLatin1(text), model.materials()).size());
}
BENCHMARK_CAPTURE(BM_SuggestWhenNothingFound, one_word, "clorine")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_SuggestWhenNothingFound, two_words, "hydrogen sulfde")->Unit(benchmark::kMicrosecond);

static void BM_SuggestIndexBuild(benchmark::State& state)
{
    QORModel& model = loadedScaleModel();
    for (auto _ : state) {
        NameSuggestions suggester;
        benchmark::DoNotOptimize(suggester.suggest(QStringLiteral("gasolene"), model.materials()).size());
    }
}
BENCHMARK(BM_SuggestIndexBuild)->Unit(benchmark::kMillisecond);

QOR_BENCHMARK_MAIN();
