// Pack tools: validating the bundled pack, and importing a year of incident
// reports at the scale of the benchmark pack (40,000 rows).
#include "BenchSupport.h"
#include "IncidentImport.h"
#include "PackValidator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

QString bundledPack()
{
    return qEnvironmentVariable("QOR_PACK", QStringLiteral(QOR_DEFAULT_RESOURCES));
}

void BM_ValidateBundledPack(benchmark::State& state)
{
    for (auto _ : state) {
        const auto violations = qor::cli::validatePack(bundledPack());
        if (!violations.isEmpty())
            state.SkipWithError("the bundled pack does not validate");
        benchmark::DoNotOptimize(violations);
    }
}
BENCHMARK(BM_ValidateBundledPack)->Unit(benchmark::kMillisecond);

// Twelve monthly files in the real export format, rows spread over a year.
class IncidentFiles {
public:
    explicit IncidentFiles(int rows)
    {
        QFile real(QStringLiteral(QOR_SOURCE_DIR "/resources/src/incidents/2024-08.csv"));
        real.open(QIODevice::ReadOnly);
        const QByteArray header = real.readLine();
        const QList<QByteArray> names = header.trimmed().split(',');
        static const char* ids[] = { "UN1203", "UN1993", "NA1993", "UN3266", "UN1263", "UN1219", "UN1789", "UN1005", "UN1017", "" };
        for (int month = 0; month < 12; ++month) {
            QByteArray csv = header;
            for (int i = month; i < rows; i += 12) {
                QList<QByteArray> f(names.size(), QByteArray("x"));
                for (qsizetype c = 0; c < names.size(); ++c) {
                    const QByteArray& n = names.at(c);
                    if (n == "Report Number")
                        f[c] = "X-" + QByteArray::number(i / 2);  // pairs of rows share a report
                    else if (n == "Date Of Incident")
                        f[c] = QDate(2024, 8, 1).addMonths(month).addDays(i % 28).toString(Qt::ISODate).toLatin1();
                    else if (n == "Identification Number")
                        f[c] = ids[(i / 2) % 10];
                    else if (n == "Mode Of Transportation")
                        f[c] = i % 5 ? "Highway" : "Rail";
                    else if (n.contains("Serious"))
                        f[c] = i % 17 ? "No" : "Yes";
                    else if (n == "Description Of Events")
                        f[c] = "\"A drum fell, leaked, and was \"\"overpacked\"\" on site.\"";
                }
                csv += f.join(',') + '\n';
            }
            QFile out(m_dir.filePath(QStringLiteral("%1.csv").arg(month, 2, 10, QLatin1Char('0'))));
            out.open(QIODevice::WriteOnly);
            out.write(csv);
            m_files << out.fileName();
        }
    }
    QStringList files() const { return m_files; }
    QString output() const { return m_dir.filePath(QStringLiteral("hazmat_incidents.dat")); }

private:
    QTemporaryDir m_dir;
    QStringList m_files;
};

void BM_ImportIncidentReports(benchmark::State& state)
{
    const IncidentFiles input(int(state.range(0)));
    for (auto _ : state) {
        QString error;
        const auto report = qor::incidents::readIncidentReports(input.files(), 12, &error);
        if (!report || !qor::incidents::writeIncidentDatabase(input.output(), report->incidents, &error))
            state.SkipWithError(error.toUtf8().constData());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ImportIncidentReports)->Arg(40000)->Unit(benchmark::kMillisecond);

} // namespace

QOR_BENCHMARK_MAIN()
