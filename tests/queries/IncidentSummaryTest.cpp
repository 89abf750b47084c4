// The incident paragraph: wording, counts, exclusions and caching.
#include "QueriesFixture.h"

using namespace qor;

namespace {

const QString kNone = QStringLiteral("There were no incidents reported to the National Response Center (NRC) in the last 12 months");
const QString kLead = QStringLiteral(" reported to the National Response Center (NRC) in the last 12 months.");

struct IncidentSummary : test::QueriesTest {
    // count rows for the UN id in one mode, with the seven flags as in "YNYNNNN".
    void addIncidents(const char* unId, int count, const char* mode, const char* flags)
    {
        QStringList values;
        for (const char* f = flags; *f; ++f)
            values << QStringLiteral("'%1'").arg(QLatin1Char(*f));
        for (int i = 0; i < count; ++i)
            pack.sql("hazmat_incidents.dat", QStringLiteral("insert into incidents values ('', '%1', '', '%2', %3);")
                                                 .arg(QLatin1String(unId), QLatin1String(mode), values.join(',')));
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
    // Three incidents over two modes and three flag groups; the last two flags are never told.
    addIncidents("1002", 1, "Highway", "YNYNNNN");
    addIncidents("1002", 1, "Highway", "NNNNNNN");
    addIncidents("1002", 1, "Rail", "NNNNNYY");
    addIncidents("1003", 11, "Rail", "YYYYYNN");
    addIncidents("1004", 1, "Air", "YYNYNNN");
    addIncidents("1004", 1, "Air", "NNNNNNN");

    EXPECT_EQ(summary("1000"), kNone + QStringLiteral(". "));
    EXPECT_EQ(summary("1001"), "There was only one incident" + kLead + "  1 was considered serious.");
    EXPECT_EQ(summary("1002"), "There were 3 incidents" + kLead + "  1 was considered serious. 1 required an evacuation.");
    EXPECT_EQ(summary("1003"), "There were 11 incidents" + kLead + "  11 were considered serious. 11 involved bulk releases. "
                               "11 required an evacuation. 11 had a fatality. 11 occurred on a major artery.");
    EXPECT_EQ(summary("1004"), "There were 2 incidents" + kLead + "  1 was considered serious. 1 involved bulk releases. 1 had a fatality.");
}

TEST_F(IncidentSummary, GenericEntriesGetTheDefaultUncached)
{
    for (const char* un : { "1760", "2810", "1993" })
        addIncidents(un, 2, "Highway", "NNNNNNN");
    const QString two = "There were 2 incidents" + kLead + " ";
    const std::pair<const char*, const char*> queried[] = { { "1760", "Corrosive Liquid, N.O.S." },
        { "2810", "Poisonous Liquid, Organic, N.O.S." }, { "1993", "Combustible Liquid, N.O.S." } };
    for (const auto& [un, name] : queried)
        EXPECT_EQ(summary(un, name), two) << name;
    for (const auto& [un, name] : { std::pair{ "1760", "Corrosive Liquid, Acidic, N.O.S." }, std::pair{ "2810", "Sarin" },
                                    std::pair{ "1993", "flammable liquid, n.o.s." } })
        EXPECT_EQ(summary(un, name), kNone) << name;

    Material noId = material(QString(), QStringLiteral("Unknown"));
    EXPECT_EQ(model().incidentsSummaryForMaterial(noId), kNone);
    EXPECT_FALSE(noId.incidentsSummary.has_value());
}

TEST_F(IncidentSummary, ASecondCallRunsNoQuery)
{
    addIncidents("1000", 2, "Highway", "NNNNNNN");
    Material m = material(QStringLiteral("1000"), QStringLiteral("Something"));
    Material nothing = material(QStringLiteral("1001"), QStringLiteral("Nothing"));
    const QString two = model().incidentsSummaryForMaterial(m);
    model().incidentsSummaryForMaterial(nothing);
    // A model on a database that now says the opposite: a second call that
    // queried would tell what the database holds now, the cached one does not.
    fixture.reset();
    pack.sql("hazmat_incidents.dat", "delete from incidents;");
    addIncidents("1001", 1, "Rail", "NNNNNNN");
    EXPECT_EQ(model().incidentsSummaryForMaterial(m), two);
    EXPECT_EQ(model().incidentsSummaryForMaterial(nothing), kNone + QStringLiteral(". ")) << "an empty answer is kept too";
    Material fresh = material(QStringLiteral("1001"), QStringLiteral("Nothing"));
    EXPECT_EQ(model().incidentsSummaryForMaterial(fresh), "There was only one incident" + kLead + " ") << "the new rows are there to find";
}
