#include "FixturePack.h"

#include "model/PackSchema.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QFile>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace qor::test {

namespace {
void exec(const QString& dbPath, const QString& sql)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(dbPath.toUtf8().constData(), &db), SQLITE_OK);
    char* err = nullptr;
    // Throwaway files: no need to wait for the disk.
    sqlite3_exec(db, "pragma synchronous=off; pragma journal_mode=memory;", nullptr, nullptr, nullptr);
    const int rc = sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err);
    EXPECT_EQ(rc, SQLITE_OK) << (err ? err : "") << "\n" << sql.toStdString();
    sqlite3_free(err);
    sqlite3_close(db);
}
} // namespace

FixturePack::FixturePack()
{
    for (const auto& db : packDatabases()) {
        QStringList creates;
        for (const auto& t : db.tables)
            creates << t.createSql() + QLatin1Char(';');
        exec(path(db.fileName), creates.join(QLatin1Char('\n')));
    }
    setMaterials({});
    setGuides({});
    writeManifest();
    activate();
}

PackManifest FixturePack::fixtureManifest()
{
    PackManifest m;
    m.edition = QStringLiteral("test pack");
    m.buildDate = QStringLiteral("2025-01-01");
    m.sample = true;
    PackSource source;
    source.id = QStringLiteral("fixture");
    source.title = QStringLiteral("Test fixture content");
    source.citation = QStringLiteral("Test fixture");
    source.sample = true;
    m.sourceList << source;
    m.sources << source.displayLine();
    PackTable table;
    table.sources << source.id;
    for (const auto& db : packDatabases())
        for (const auto& t : db.tables)
            m.tables.insert(t.name, table);
    for (const QString& content : packTextContents())
        m.tables.insert(content, table);
    return m;
}

PackSource FixturePack::partialReportsSource()
{
    PackSource s;
    s.id = QStringLiteral("dot5800");
    s.title = QStringLiteral("Incident reports");
    s.citation = QStringLiteral("DOT 5800.1");
    s.partial = true;
    s.periodFrom = QStringLiteral("2024-08");
    s.periodTo = QStringLiteral("2025-07");
    s.files.insert(QStringLiteral("src/incidents/2024-08.csv"), QString(64, QLatin1Char('b')));
    return s;
}

PackManifest FixturePack::officialManifest()
{
    PackManifest m;
    m.edition = QStringLiteral("official test pack");
    m.buildDate = QStringLiteral("2026-08-01");
    PackSource cfr;
    cfr.id = QStringLiteral("cfr");
    cfr.title = QStringLiteral("49 CFR 172.101");
    cfr.citation = QStringLiteral("49 CFR 172.101 (eCFR, 2026-07-28)");
    cfr.files.insert(QStringLiteral("official/cfr49/ecfr-section-172.101.xml"), QString(64, QLatin1Char('0')));
    PackSource erg;
    erg.id = QStringLiteral("erg2024");
    erg.title = QStringLiteral("Emergency Response Guidebook 2024");
    erg.edition = QStringLiteral("2024");
    erg.citation = QStringLiteral("ERG 2024");
    erg.files.insert(QStringLiteral("official/erg2024/TIH_Table1.pdf"), QString(64, QLatin1Char('a')));
    const PackSource reports = partialReportsSource();
    m.sourceList << cfr << erg << reports;
    for (const char* t : { "hmt", "dot_classes", "dot_placards", "vessel_stowage", "placards" })
        m.tables[QLatin1String(t)].sources << cfr.id;
    for (const char* t : { "materials", "guides", "iso_distances" })
        m.tables[QLatin1String(t)].sources << erg.id;
    m.tables[QStringLiteral("iso_distances")].citation = QStringLiteral("ERG 2024, Table 1");
    m.tables[QStringLiteral("iso_distances")].rows = 537;
    m.tables[QStringLiteral("incidents")].sources << reports.id;
    for (const char* t : { "cameo", "wiser_text", "ghs", "nfpa", "hmt_sections", "npg_guides", "unid_npgid", "cfr_text" })
        m.tables[QLatin1String(t)];
    return m;
}

void FixturePack::writeManifest()
{
    PackManifest m = fixtureManifest();
    ASSERT_TRUE(m.writeWithChecksums(dir()));
}

FixturePack::~FixturePack()
{
    Resources::setOverride(QString());
}

void FixturePack::writeFile(const QString& name, const QByteArray& bytes)
{
    QFile f(path(name));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

void FixturePack::setMaterials(const QStringList& lines)
{
    writeFile(QStringLiteral("chemicals_2024.csv"), (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}

void FixturePack::setGuides(const QStringList& lines)
{
    writeFile(QStringLiteral("guides.csv"), (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}

void FixturePack::sql(const QString& dbFile, const QString& statements)
{
    exec(path(dbFile), statements);
}

void FixturePack::activate()
{
    Resources::setOverride(dir());
}

ModelFixture::ModelFixture(bool load)
{
    delete QORModel::sharedInstance(false);
    QORModel* model = new QORModel();
    if (load)
        model->loadData();
}

ModelFixture::~ModelFixture()
{
    delete QORModel::sharedInstance(false);
}

} // namespace qor::test
