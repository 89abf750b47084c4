#pragma once
// Shared benchmark support: a Qt application around Google Benchmark, and the
// scale pack (thousands of materials) that budgets are measured on.
#include <QString>
#include <QTemporaryDir>

#include "model/Material.h"

namespace qor::bench {

// Writes a pack of `materials` materials (real-looking names and UN numbers,
// every category represented) and `incidents` incident rows into dir, with
// isolation rows for the toxic-inhalation materials.
void writeScalePack(const QString& dir, int materials = 4000, int incidents = 40000);

// Replaces the shared model with a freshly loaded one over the active pack
// and returns its first material with that UN id (null when there is none).
MaterialPtr loadModelAndFind(const QString& unId);

// A scale pack in a temporary folder, made active for the resource lookup.
class ScalePack {
public:
    explicit ScalePack(int materials = 4000, int incidents = 40000);
    ~ScalePack();
    QString dir() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

} // namespace qor::bench

// Defines main(): a QGuiApplication (offscreen) around the registered benchmarks.
#define QOR_BENCHMARK_MAIN()                                                                                           \
    int main(int argc, char** argv) { return qor::bench::runBenchmarks(argc, argv); }

namespace qor::bench {
int runBenchmarks(int argc, char** argv);
}
