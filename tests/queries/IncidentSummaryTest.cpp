// The incident paragraph: wording, counts, exclusions and caching.
#include "QueriesFixture.h"

using namespace qor;

namespace {

const QString kNone = QStringLiteral("There were no incidents reported to the National Response Center (NRC) in the last 12 months");

struct IncidentSummary : test::QueriesTest {
    // count rows for the UN id in one mode, with the seven flags given as "YNYNNNN".
    void addIncidents(const char* unId, int count, const char* mode, const char* flags)
    {
        QString sql;
        for (int i = 0; i < count; ++i) {
            sql += QStringLiteral("insert into incidents (un_id, Mode_of_Transportation, HMIS_Serious_Incident_Ind, "
                                  "HMIS_Serious_Bulk_Release, HMIS_Serious_Evacuations, HMIS_Serious_Fatality, "
                                  "HMIS_Serious_Major_Artery, HMIS_Serious_Marine_Pollutant, HMIS_Serious_Radioactive) "
                                  "values ('%1','%2'")
                       .arg(QLatin1String(unId), QLatin1String(mode));
            for (const char* f = flags; *f; ++f)
                sql += QStringLiteral(",'%1'").arg(QLatin1Char(*f));
            sql += QStringLiteral(");");
        }
        pack.sql("hazmat_incidents.dat", sql);
    }
    QString summary(const char* unId, const char* name = "Some Material")
    {
        Material m = material(QLatin1String(unId), QLatin1String(name));
        return model().incidentsSummaryForMaterial(m);
    }
};

} // namespace

TEST_F(IncidentSummary, SentencesForZeroOneAndSeveral)
{
    addIncidents("1001", 1, "Highway", "YNNNNNN");
    // Three incidents over two modes and two flag groups.
    addIncidents("1002", 1, "Highway", "YNYNNNN");
    addIncidents("1002", 1, "Highway", "NNNNNNN");
    addIncidents("1002", 1, "Rail", "NNNNNYY");
    addIncidents("1003", 11, "Rail", "YYYYYNN");

    EXPECT_EQ(summary("1000"), kNone + QStringLiteral(". "));
    EXPECT_EQ(summary("1001"), QStringLiteral("There was only one incident reported to the National Response Center (NRC) "
                                              "in the last 12 months.  1 was considered serious."));
    EXPECT_EQ(summary("1002"), QStringLiteral("There were 3 incidents reported to the National Response Center (NRC) "
                                              "in the last 12 months.  1 was considered serious. 1 required an evacuation."));
    EXPECT_EQ(summary("1003"), QStringLiteral("There were 11 incidents reported to the National Response Center (NRC) "
                                              "in the last 12 months.  11 were considered serious. 11 involved bulk releases. "
                                              "11 required an evacuation. 11 had a fatality. 11 occurred on a major artery."));
}

TEST_F(IncidentSummary, OnlyTheSeriousClauseTurnsToWasForOne)
{
    addIncidents("1004", 1, "Air", "YYNYNNN");
    addIncidents("1004", 1, "Air", "NNNNNNN");
    EXPECT_TRUE(summary("1004").endsWith(QStringLiteral(".  1 was considered serious. 1 involved bulk releases. 1 had a fatality.")));
}

TEST_F(IncidentSummary, GenericEntriesGetTheDefaultUncached)
{
    for (const char* un : { "1760", "2810", "1993" })
        addIncidents(un, 2, "Highway", "NNNNNNN");
    const QString two = QStringLiteral("There were 2 incidents reported to the National Response Center (NRC) in the last 12 months. ");
    EXPECT_EQ(summary("1760", "Corrosive Liquid, N.O.S."), two);
    EXPECT_EQ(summary("1760", "Corrosive Liquid, Acidic, N.O.S."), kNone);
    EXPECT_EQ(summary("2810", "Toxic Liquid, Organic, N.O.S."), two);
    EXPECT_EQ(summary("2810", "Poisonous Liquid, Organic, N.O.S."), two);
    EXPECT_EQ(summary("2810", "Sarin"), kNone);
    EXPECT_EQ(summary("1993", "Combustible Liquid, N.O.S."), two);
    EXPECT_EQ(summary("1993", "Flammable Liquid, N.O.S."), two);
    EXPECT_EQ(summary("1993", "Diesel Fuel"), kNone);
    EXPECT_EQ(summary("1993", "flammable liquid, n.o.s."), kNone);

    Material noId = material(QString(), QStringLiteral("Unknown"));
    EXPECT_EQ(model().incidentsSummaryForMaterial(noId), kNone);
    EXPECT_FALSE(noId.incidentsSummary.has_value());
}

TEST_F(IncidentSummary, ResultIsCachedOnTheMaterialEvenWhenNothingFound)
{
    Material m = material(QStringLiteral("1000"), QStringLiteral("Nothing"));
    const QString first = model().incidentsSummaryForMaterial(m);
    ASSERT_EQ(m.incidentsSummary, first);
    m.incidentsSummary = QStringLiteral("cached");
    EXPECT_EQ(model().incidentsSummaryForMaterial(m), QStringLiteral("cached"));
}

TEST(AddCount, AddsTheLeadingIntegerAndSkipsZero)
{
    QHash<QString, int> counts;
    QORModel::addCount(counts, QStringLiteral("3"), QStringLiteral("k"));
    QORModel::addCount(counts, QStringLiteral(" 4 rows"), QStringLiteral("k"));
    QORModel::addCount(counts, QStringLiteral("none"), QStringLiteral("z"));
    QORModel::addCount(counts, QStringLiteral("0"), QStringLiteral("z"));
    EXPECT_EQ(counts.value(QStringLiteral("k")), 7);
    EXPECT_FALSE(counts.contains(QStringLiteral("z")));
}
