// The bundled pack: it validates, and it holds what the app hard-codes
// and what its screens are meant to show.
#include "MiniPack.h"

#include "model/PackManifest.h"
#include "model/PackSchema.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "model/Sqlite.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

QString packText(const QString& name)
{
    QFile file(bundledPack() + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class BundledPack : public ::testing::Test {
protected:
    void SetUp() override
    {
        Resources::setOverride(bundledPack());
        m_model = std::make_unique<ModelFixture>();
    }
    void TearDown() override
    {
        m_model.reset();
        Resources::setOverride(QString());
    }
    QORModel& model() { return *QORModel::sharedInstance(false); }

    QSet<QString> namesUnder(const QString& unId)
    {
        QSet<QString> names;
        for (const auto& m : std::as_const(model().materials()))
            if (m->unId == unId)
                names.insert(m->name);
        return names;
    }
    int rows(const QString& dbFile, const QString& sql)
    {
        const Database db = Database::openReadOnly(Resources::path(dbFile));
        Statement st(db, sql);
        int n = 0;
        while (st.step())
            ++n;
        return n;
    }

    std::unique_ptr<ModelFixture> m_model;
};

TEST(BundledPackValidation, IsCleanAndNamesItsSources)
{
    const auto violations = cli::validatePack(bundledPack());
    EXPECT_TRUE(violations.isEmpty()) << describe(violations).join(QLatin1Char('\n')).toStdString();
    const auto manifest = PackManifest::read(bundledPack());
    ASSERT_TRUE(manifest);

    // Every official document is listed, with the sum published beside it.
    QFile sums(QStringLiteral(QOR_SOURCE_DIR "/resources/official/SHA256SUMS"));
    ASSERT_TRUE(sums.open(QIODevice::ReadOnly));
    QMap<QString, QString> listed;
    for (const PackSource& s : manifest->sourceList)
        for (auto it = s.files.cbegin(); it != s.files.cend(); ++it)
            listed.insert(it.key(), it.value());
    int official = 0;
    for (const QByteArray& line : sums.readAll().split('\n')) {
        const QList<QByteArray> parts = line.simplified().split(' ');
        if (parts.size() != 2)
            continue;
        ++official;
        EXPECT_EQ(listed.value(QStringLiteral("official/") + QString::fromLatin1(parts.at(1))), QString::fromLatin1(parts.at(0)))
            << parts.at(1).constData();
    }
    EXPECT_EQ(official, 10);
    EXPECT_EQ(manifest->source(QStringLiteral("dot5800"))->files.size(), 12) << "one file per month of reports";

    // Built from the official documents only: no content declares sample
    // sources, and no page carries the sample notice.
    EXPECT_FALSE(manifest->sample);
    for (auto it = manifest->tables.cbegin(); it != manifest->tables.cend(); ++it)
        EXPECT_FALSE(manifest->tableIsSample(it.key())) << it.key().toStdString();
    for (const char* name : { "128.html", "about.html", "bleve.html", "NPG.html" })
        EXPECT_FALSE(packText(QString::fromLatin1(name)).contains(PackManifest::sampleNotice())) << name;
}

// True when the citation names only official documents of the pack: a
// source with files, or a table citation whose sources all are.
bool citesOfficialSource(const PackManifest& m, const QString& citation)
{
    auto official = [&](const QString& id) {
        const PackSource* s = m.source(id);
        return s && !s->sample && !s->own && !s->files.isEmpty();
    };
    for (const PackSource& s : m.sourceList)
        if (s.citation == citation && official(s.id))
            return true;
    for (const PackTable& t : m.tables)
        if (t.citation == citation && !t.sources.isEmpty() && std::all_of(t.sources.cbegin(), t.sources.cend(), official))
            return true;
    return false;
}

TEST(BundledPackPages, EveryInfoPageIsOfficialOrSaysItIsNotInThePack)
{
    const auto manifest = PackManifest::read(bundledPack());
    ASSERT_TRUE(manifest);
    static const QRegularExpression sourceLine(QStringLiteral("<p class=\"source\">Source: ([^<]*)</p>"));
    static const QRegularExpression title(QStringLiteral("<title>([^<]+)</title>"));
    int missing = 0;
    for (const QString& name : packInfoPages() + QStringList{ QStringLiteral("decon"), QStringLiteral("hazardclasses") }) {
        const QString html = packText(name + QStringLiteral(".html"));
        ASSERT_FALSE(html.isEmpty()) << name.toStdString();
        const QString pageTitle = title.match(html).captured(1);
        EXPECT_FALSE(pageTitle.isEmpty()) << name.toStdString() << ": a page keeps its title";
        if (html.contains(QStringLiteral("class=\"not-in-pack\""))) {
            ++missing;
            EXPECT_TRUE(html.contains(QStringLiteral("<h1>%1</h1>").arg(pageTitle))) << name.toStdString();
            EXPECT_TRUE(html.contains(QStringLiteral("not in this data pack"))) << name.toStdString();
            // Nothing besides the title and the note: no lists, tables or figures.
            for (const char* tag : { "<ul", "<ol", "<table", "<img", "<dl" })
                EXPECT_FALSE(html.contains(QLatin1String(tag))) << name.toStdString() << " holds " << tag;
            continue;
        }
        const auto m = sourceLine.match(html);
        ASSERT_TRUE(m.hasMatch()) << name.toStdString() << ": neither names an official source nor says it is not in the pack";
        EXPECT_TRUE(citesOfficialSource(*manifest, m.captured(1)))
            << name.toStdString() << " cites \"" << m.captured(1).toStdString() << "\", not an official source of the pack";
    }
    // The guidebook's white-page chapters are not among the sources.
    EXPECT_GE(missing, 20);
    EXPECT_TRUE(packText(QStringLiteral("howto.html")).contains(QStringLiteral("<p class=\"source\">")));
}

TEST(BundledPackPages, AboutNamesTheOfficialDocuments)
{
    const auto manifest = PackManifest::read(bundledPack());
    ASSERT_TRUE(manifest);
    for (const char* name : { "about.html", "about-ipad.html" }) {
        const QString html = packText(QString::fromLatin1(name));
        const QString text = QString(html).remove(QRegularExpression(QStringLiteral("<[^>]*>")));
        EXPECT_FALSE(text.contains(QStringLiteral("sample"), Qt::CaseInsensitive)) << name;
        EXPECT_TRUE(html.contains(manifest->edition.toHtmlEscaped())) << name;
        for (const PackSource& s : manifest->sourceList)
            EXPECT_EQ(html.contains(s.displayLine().toHtmlEscaped()), !s.own && !s.files.isEmpty()) << name << ": " << s.id.toStdString();
    }
}

TEST_F(BundledPack, HoldsTheGuidebookIndex)
{
    // One material per row of the guidebook's yellow index, nothing more.
    EXPECT_EQ(model().materials().size(), 2771);
    // Names the guidebook does not list are gone.
    EXPECT_TRUE(namesUnder(QStringLiteral("1051")).contains(QStringLiteral("Hydrogen Cyanide, Stabilized")));
    EXPECT_FALSE(namesUnder(QStringLiteral("1051")).contains(QStringLiteral("AC")));
    // A generic name the model singles out is spelled as the pack spells it
    // (the others, with their incidents, are in the incidents list golden).
    EXPECT_TRUE(namesUnder(QStringLiteral("2810")).contains(QStringLiteral("Poisonous Liquid, Organic, N.O.S.")));
}

TEST_F(BundledPack, EveryKindOfMarkAndName)
{
    bool tihX = false, gasList = false, water = false, meth = false, warfare = false, poly = false, digit = false, shortName = false;
    for (const auto& m : std::as_const(model().materials())) {
        tihX |= m->toxicInhalationHazard == QStringLiteral("X");
        gasList |= m->toxicInhalationHazard && m->toxicInhalationHazard->contains(QLatin1Char(','));
        water |= m->waterReactive == QStringLiteral("W");
        meth |= m->methLab;
        warfare |= m->chemicalWarefareAgent == QStringLiteral("Z");
        poly |= m->mayPolymerize;
        digit |= !m->name.isEmpty() && m->name.at(0).isDigit();
        shortName |= m->name.size() < 4;
    }
    EXPECT_TRUE(tihX && gasList && water && poly && digit && shortName);
    // The guidebook marks no meth-lab or warfare materials: those categories are empty.
    EXPECT_FALSE(meth || warfare);
    for (const auto& f : std::as_const(model().filters()))
        if (f->categoryAbbrev != QLatin1String("M") && f->categoryAbbrev != QLatin1String("Z"))
            EXPECT_FALSE(f->filteredArray->isEmpty()) << f->categoryAbbrev.toStdString();
}

// The pages' form is the validator's; here, that the blank guides have none
// and the first-aid links have their target.
TEST(BundledPackGuides, BlankGuidesHaveNoPageAndFirstAidItsAnchor)
{
    EXPECT_FALSE(QFileInfo::exists(bundledPack() + QStringLiteral("/121.html")));
    EXPECT_TRUE(packText(QStringLiteral("howto.html")).contains(QStringLiteral("<h1 id=\"general-first-aid\">")));
}

TEST_F(BundledPack, NothingWithoutAnOfficialSource)
{
    // No official document gives these; the pack holds none rather than a guess.
    for (const char* table : { "cameo", "wiser_text", "ghs", "nfpa", "hmt_sections" })
        EXPECT_EQ(rows(QStringLiteral("npg.db"), QStringLiteral("select * from %1").arg(QLatin1String(table))), 0) << table;
    EXPECT_EQ(rows(QStringLiteral("cfr49.db"), QStringLiteral("select * from cfr_text")), 0);
    QFile descriptions(bundledPack() + QStringLiteral("/wikipedia_descriptions_by_un_number.csv"));
    EXPECT_TRUE(!descriptions.exists() || descriptions.size() == 0);
    // Incidents come from the report files only (report numbers as they give them).
    EXPECT_GT(rows(QStringLiteral("hazmat_incidents.dat"), QStringLiteral("select * from incidents")), 0);
    EXPECT_EQ(rows(QStringLiteral("hazmat_incidents.dat"), QStringLiteral("select * from incidents where report_number like 'SAMPLE-%'")), 0);
}

} // namespace
} // namespace qor::test
