// Every knowledge lookup of one material, cold, in the order the detail screen
// (and qor-cli material) runs them.
#include "BenchSupport.h"

#include "model/QORModel.h"

#include <benchmark/benchmark.h>

using namespace qor;

namespace {

void allLookups(QORModel& model, Material& m)
{
    benchmark::DoNotOptimize(model.isolationDistancesForMaterial(m).count());
    benchmark::DoNotOptimize(model.getCameoAttributesForMaterial(m).size());
    benchmark::DoNotOptimize(model.getNPGAttributesForMaterial(m).size());
    benchmark::DoNotOptimize(model.getGHSAttributesForMaterial(m).size());
    benchmark::DoNotOptimize(model.getWiserAttributesForMaterial(m).size());
    benchmark::DoNotOptimize(model.getNPGCasNumbersForMaterial(m).size());
    benchmark::DoNotOptimize(model.nfpaForMaterial(m).has_value());
    benchmark::DoNotOptimize(model.incidentsSummaryForMaterial(m).size());
    benchmark::DoNotOptimize(model.getHmtEntriesForMaterial(m).size());
    benchmark::DoNotOptimize(model.getHmtAttributesForMaterial(m).size());
    benchmark::DoNotOptimize(model.placardNameForMaterial(m).size());
}

// A fresh copy of the loaded record each round: every cache starts empty.
void runCold(benchmark::State& state, const QString& unId)
{
    const MaterialPtr pristine = bench::loadModelAndFind(unId);
    QORModel* model = QORModel::sharedInstance();
    if (!pristine) {
        state.SkipWithError("material not in the pack");
        delete model;
        return;
    }
    for (auto _ : state) {
        Material m = *pristine;
        allLookups(*model, m);
    }
    delete model;
}

} // namespace

// The pack the build produced (build/pack).
static void BM_AllLookupsColdBundledPack(benchmark::State& state)
{
    runCold(state, QStringLiteral("1005"));
}
BENCHMARK(BM_AllLookupsColdBundledPack)->Unit(benchmark::kMicrosecond);

// 40,000 incident rows: the incident query scans them for each material.
static void BM_AllLookupsColdScalePack(benchmark::State& state)
{
    static bench::ScalePack pack(4000, 40000);
    runCold(state, QStringLiteral("1001"));
}
BENCHMARK(BM_AllLookupsColdScalePack)->Unit(benchmark::kMicrosecond);

QOR_BENCHMARK_MAIN();
