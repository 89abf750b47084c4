// The guidebook importer over every official extract: the pack build reads
// them all each time, so this is its floor.
#include "BenchSupport.h"
#include "import/ErgImport.h"

#include <QDir>
#include <benchmark/benchmark.h>

namespace {

QStringList extracts()
{
    const QDir dir(QStringLiteral(QOR_SOURCE_DIR "/resources/official/erg2024"));
    QStringList files;
    for (const QString& name : dir.entryList({ QStringLiteral("*.pdf") }, QDir::Files, QDir::Name))
        files << dir.filePath(name);
    return files;
}

void BM_ImportAllExtracts(benchmark::State& state)
{
    const QStringList files = extracts();
    for (auto _ : state) {
        QString error;
        const auto tables = qor::import::ErgImport::read(files, &error);
        if (!tables || tables->table1.size() != 537)
            state.SkipWithError("the extracts did not import");
        benchmark::DoNotOptimize(tables);
    }
}
BENCHMARK(BM_ImportAllExtracts)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

QOR_BENCHMARK_MAIN()
