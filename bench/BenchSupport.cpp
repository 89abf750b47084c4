#include "BenchSupport.h"

#include "model/PackSchema.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QFile>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace qor::bench {

namespace {
void exec(sqlite3* db, const QString& sql)
{
    char* err = nullptr;
    if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err) != SQLITE_OK) {
        qFatal("scale pack: %s", err ? err : "sql error");
    }
}

sqlite3* openNew(const QString& path, const QString& fileName)
{
    QFile::remove(path);
    sqlite3* db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    exec(db, QStringLiteral("pragma journal_mode=off; pragma synchronous=off;"));
    for (const auto& t : packDatabase(fileName)->tables)
        exec(db, t.createSql());
    return db;
}
} // namespace

void writeScalePack(const QString& dir, int materials, int incidents)
{
    QRandomGenerator rng(20241001);  // fixed seed: the same pack every run
    static const char* stems[] = { "Acetone", "Ammonia", "Benzene", "Chlorine", "Diesel", "Ethanol", "Fluorine",
                                   "Gasoline", "Hydrogen", "Iodine", "Kerosene", "Lithium", "Methanol", "Nitric",
                                   "Oxygen", "Propane", "Quinoline", "Sodium", "Toluene", "Urea", "Vinyl", "Xylene",
                                   "Yttrium", "Zinc", "2-Chloro", "Ab" };
    static const char* tails[] = { "", " Solution", ", Anhydrous", " Compound, N.O.S.", ", Stabilized", " Mixture" };
    static const char* guides[] = { "111", "115", "117", "119", "124", "125", "127", "128", "131P", "132", "137", "153", "154", "171" };

    QByteArray csv;
    QStringList unIds;
    sqlite3* npg = openNew(dir + QStringLiteral("/npg.db"), QStringLiteral("npg.db"));
    exec(npg, QStringLiteral("begin"));
    for (int i = 0; i < materials; ++i) {
        const QString unId = QString::number(1001 + (i * 7) % 2999);
        unIds << unId;
        const QString name = QString::fromLatin1(stems[i % 26]) + QString::fromLatin1(tails[(i / 26) % 6])
                             + (i >= 156 ? QStringLiteral(" %1").arg(i) : QString());
        const bool tih = i % 9 == 0;
        const bool water = i % 23 == 0;
        const char* mark = i % 97 == 0 ? "M" : i % 131 == 0 ? "Z" : "";
        csv += QStringLiteral("%1^%2^%3^%4^%5^%6^%7\n")
                   .arg(name.toUpper(), QStringLiteral("3"), QString::fromLatin1(guides[i % 14]), unId,
                        tih ? QStringLiteral("X") : QString(), water ? QStringLiteral("W") : QString(), QString::fromLatin1(mark))
                   .toUtf8();
        if (tih)
            exec(npg, QStringLiteral("insert into iso_distances values ('%1',NULL,'30','100','0.1','0.1','0.2','0.1',"
                                     "'300','1000','1.6','1.0','4.1','2.6')").arg(unId));
    }
    exec(npg, QStringLiteral("create index iso_distances_un_id on iso_distances (un_id)"));
    exec(npg, QStringLiteral("commit"));
    sqlite3_close(npg);
    QFile f(dir + QStringLiteral("/chemicals_2024.csv"));
    f.open(QIODevice::WriteOnly);
    f.write(csv);
    f.close();

    QByteArray guideLines;
    for (const char* g : guides)
        guideLines += QByteArray(g).left(3) + "^Sample guide " + g + "\n";
    QFile gf(dir + QStringLiteral("/guides.csv"));
    gf.open(QIODevice::WriteOnly);
    gf.write(guideLines);
    gf.close();

    sqlite3* inc = openNew(dir + QStringLiteral("/hazmat_incidents.dat"), QStringLiteral("hazmat_incidents.dat"));
    exec(inc, QStringLiteral("begin"));
    static const char* modes[] = { "Highway", "Rail", "Air", "Water" };
    for (int i = 0; i < incidents; ++i) {
        const QString unId = unIds.at(int(rng.bounded(quint32(unIds.size()))));
        auto flag = [&](int oneIn) { return rng.bounded(oneIn) == 0 ? QStringLiteral("Y") : QStringLiteral("N"); };
        exec(inc, QStringLiteral("insert into incidents values ('B-%1','%2','2025-01-01','%3','%4','%5','%6','%7','%8','N','N')")
                      .arg(i).arg(unId, QString::fromLatin1(modes[i % 4]), flag(20), flag(40), flag(30), flag(200), flag(50)));
    }
    exec(inc, QStringLiteral("create index incidents_un_id on incidents (un_id)"));
    exec(inc, QStringLiteral("commit"));
    sqlite3_close(inc);
    sqlite3_close(openNew(dir + QStringLiteral("/cfr49.db"), QStringLiteral("cfr49.db")));
}

MaterialPtr loadModelAndFind(const QString& unId)
{
    delete QORModel::sharedInstance(false);
    auto* model = new QORModel();
    model->loadData();
    for (const auto& m : std::as_const(model->materials()))
        if (m->unId == unId)
            return m;
    return nullptr;
}

ScalePack::ScalePack(int materials, int incidents)
{
    writeScalePack(m_dir.path(), materials, incidents);
    Resources::setOverride(m_dir.path());
}

ScalePack::~ScalePack()
{
    Resources::setOverride(QString());
}

int runBenchmarks(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QGuiApplication app(argc, argv);
    ::benchmark::Initialize(&argc, argv);
    ::benchmark::RunSpecifiedBenchmarks();
    ::benchmark::Shutdown();
    return 0;
}

} // namespace qor::bench
