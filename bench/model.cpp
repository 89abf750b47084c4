// Loading the materials list and the isolation lookup, on the 4,000-material scale pack.
#include "BenchSupport.h"

#include "model/QORModel.h"
#include "model/Resources.h"

#include <QFile>
#include <benchmark/benchmark.h>

using namespace qor;

namespace {
bench::ScalePack& scalePack()
{
    static bench::ScalePack pack(4000, 40000);
    return pack;
}
} // namespace

// loadData end to end: materials file, six filters with their sorts and sections.
static void loadDataRepeatedly(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        delete QORModel::sharedInstance(false);
        auto* model = new QORModel();
        model->getMaterialsWithIncidents();  // the grouped count query is cached for the process
        state.ResumeTiming();
        model->loadData();
        benchmark::DoNotOptimize(model->materials().size());
    }
    delete QORModel::sharedInstance(false);
}

// On the pack this build bundles (or $QOR_RESOURCES); registered first, so it
// runs before the scale pack takes over the resource lookup.
static void BM_LoadDataBundledPack(benchmark::State& state)
{
    loadDataRepeatedly(state);
}
BENCHMARK(BM_LoadDataBundledPack)->Unit(benchmark::kMillisecond);

static void BM_LoadData(benchmark::State& state)
{
    scalePack();
    loadDataRepeatedly(state);
}
BENCHMARK(BM_LoadData)->Unit(benchmark::kMillisecond);

// The floor loadData is compared against: read the file and split it into fields.
static void BM_ReadAndSplitMaterialsFile(benchmark::State& state)
{
    scalePack();
    for (auto _ : state) {
        QFile file(Resources::path(QStringLiteral("chemicals_2024.csv")));
        file.open(QIODevice::ReadOnly);
        const QString text = QString::fromUtf8(file.readAll());
        qsizetype fields = 0;
        for (QStringView line : QStringView(text).split(u'\n'))
            for (QStringView f : line.split(u'^'))
                fields += f.size() >= 0;
        benchmark::DoNotOptimize(fields);
    }
}
BENCHMARK(BM_ReadAndSplitMaterialsFile)->Unit(benchmark::kMillisecond);

// The first (uncached) isolation lookup of a material with distances.
static void BM_IsolationDistancesCold(benchmark::State& state)
{
    scalePack();
    delete QORModel::sharedInstance(false);
    auto* model = new QORModel();
    model->loadData();
    MaterialList tih;
    for (const auto& m : model->materials())
        if (m->toxicInhalationHazard)
            tih.append(m);
    qsizetype i = 0;
    for (auto _ : state) {
        Material& m = *tih.at(i++ % tih.size());
        m.isolationDistances.reset();
        benchmark::DoNotOptimize(model->isolationDistancesForMaterial(m).count());
    }
    delete model;
}
BENCHMARK(BM_IsolationDistancesCold)->Unit(benchmark::kMicrosecond);

QOR_BENCHMARK_MAIN();
