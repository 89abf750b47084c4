// Opening the material detail screen, cold: from the tap to the controller
// having recorded the view and filled all three tabs. Budget: one 16 ms frame.
#include "BenchSupport.h"

#include "IsolationTableDelegate.h"
#include "MaterialViewController.h"
#include "model/QORModel.h"

#include <benchmark/benchmark.h>

using namespace qor;

namespace {

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
        // A fresh copy each round: every lookup cache starts empty.
        MaterialViewController screen;
        screen.setMaterialGuide(MaterialRef(std::make_shared<Material>(*pristine)));
        benchmark::DoNotOptimize(screen.rows().size());
    }
    delete model;
}

} // namespace

// The bundled pack: 1005 has every kind of data (isolation, chemistry, NFPA, shipping).
static void BM_OpenDetailColdBundledPack(benchmark::State& state)
{
    runCold(state, QStringLiteral("1005"));
}
BENCHMARK(BM_OpenDetailColdBundledPack)->Unit(benchmark::kMicrosecond);

static void BM_OpenDetailColdScalePack(benchmark::State& state)
{
    static bench::ScalePack pack(4000, 40000);
    runCold(state, QStringLiteral("1001"));
}
BENCHMARK(BM_OpenDetailColdScalePack)->Unit(benchmark::kMicrosecond);

// The isolation tables for a container gas, in the other units each round.
static void BM_IsolationTablesUnitsSwitch(benchmark::State& state)
{
    delete QORModel::sharedInstance(false);
    auto* model = new QORModel();
    model->loadData();
    MaterialPtr m;
    for (const auto& x : std::as_const(model->materials()))
        if (x->unId == QLatin1String("1005") && !m)
            m = x;
    IsolationTableDelegate table;
    table.setMaterial(MaterialRef(m));
    int units = 0;
    for (auto _ : state) {
        table.segmentAction(units ^= 1);
        benchmark::DoNotOptimize(table.sections().size());
    }
    delete model;
}
BENCHMARK(BM_IsolationTablesUnitsSwitch)->Unit(benchmark::kMicrosecond);

QOR_BENCHMARK_MAIN();
