#include "import/NpgImport.h"

#include "model/PackSchema.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace qor::import;

namespace {

const NpgGuide& guide()
{
    static const NpgGuide g = [] {
        QString error;
        auto read = readNpg(QStringLiteral(QOR_OFFICIAL_DIR "/niosh-npg/npg-html-2015.tar.xz"), &error);
        EXPECT_TRUE(read) << error.toStdString();
        return read.value_or(NpgGuide{});
    }();
    return g;
}

const NpgChemical* chemical(const QString& id)
{
    for (const NpgChemical& c : guide().chemicals)
        if (c.id == id)
            return &c;
    return nullptr;
}

std::optional<NpgChemical> page(const QByteArray& rows, QString* error)
{
    return parseNpgPage("<html><body><table class=\"chemtable\"><tr><td colspan=\"6\"><h1>Test chemical</h1></td></tr>" + rows
                            + "</table></body></html>",
                        QStringLiteral("9999"), error);
}

} // namespace

TEST(PocketGuide, EveryChemicalPage)
{
    EXPECT_EQ(guide().chemicals.size(), 677);
    EXPECT_EQ(guide().emptyPages, 9);
    QSet<QString> ids;
    for (const NpgChemical& c : guide().chemicals) {
        ids.insert(c.id);
        EXPECT_FALSE(c.cells.value(QStringLiteral("name")).isEmpty()) << c.id.toStdString();
        // Every page has these cells; a miss means a label was not recognised.
        for (const char* column : { "synonyms", "idlh", "phys_desc", "exposure_routes", "symptoms", "target_organs",
                                    "personal_protection", "first_aid" })
            EXPECT_TRUE(c.cells.contains(QLatin1String(column))) << c.id.toStdString() << " " << column;
    }
    EXPECT_EQ(ids.size(), 677);
    // The table's columns are the pack's, in the pack's order.
    EXPECT_EQ(npgColumns(), qor::packDatabase(QStringLiteral("npg.db"))->tables.front().columns);
    const ImportTables t = guide().tables();
    EXPECT_EQ(t.value(QStringLiteral("unid_npgid")).size(), 473);
}

TEST(PocketGuide, RowsByValue)
{
    const NpgChemical* acetic = chemical(QStringLiteral("0002"));
    ASSERT_TRUE(acetic);
    const auto& a = acetic->cells;
    EXPECT_EQ(a.value("cas_no"), QStringLiteral("64-19-7"));
    // Two limits share one cell; each gets its own column.
    EXPECT_EQ(a.value("niosh_exp_limit"), QStringLiteral("TWA 10 ppm (25 mg/m3) ST 15 ppm (37 mg/m3)"));
    EXPECT_EQ(a.value("osha_exp_limit"), QStringLiteral("TWA 10 ppm (25 mg/m3)"));
    EXPECT_EQ(a.value("idlh"), QStringLiteral("50 ppm"));  // without the web page pointer
    EXPECT_EQ(a.value("bp"), QStringLiteral("244°F"));
    EXPECT_EQ(a.value("uel"), QStringLiteral("19.9% (200°F)"));  // written "UEL(200°F): 19.9%"
    EXPECT_EQ(a.value("meas_meth"), QStringLiteral("NIOSH 1603; OSHA ID186SG"));
    EXPECT_TRUE(a.value("first_aid").startsWith(QStringLiteral("Eye: Irrigate immediately\nSkin: Water flush immediately\n")));
    EXPECT_TRUE(a.value("personal_protection").startsWith(QStringLiteral("Skin: Prevent skin contact (>10%)\n")));
    EXPECT_EQ(acetic->unIds, (QStringList{ "2790", "2789" }));

    const NpgChemical* chlorine = chemical(QStringLiteral("0115"));
    ASSERT_TRUE(chlorine);
    EXPECT_EQ(chlorine->cells.value("dot"), QStringLiteral("1017 124"));
    EXPECT_EQ(chlorine->cells.value("rgasd"), QStringLiteral("2.47"));
    EXPECT_EQ(chlorine->unIds, QStringList{ "1017" });

    // Ammonia lists UN1005 twice (anhydrous, strong solution): one mapping row.
    const NpgChemical* ammonia = chemical(QStringLiteral("0028"));
    ASSERT_TRUE(ammonia);
    EXPECT_EQ(ammonia->unIds, (QStringList{ "1005", "2672", "2073" }));
}

TEST(PocketGuide, PageForms)
{
    QString error;
    // A placeholder page has no chemical, and is no error either.
    EXPECT_FALSE(parseNpgPage("<html><body><table class=\"chemtable\"><tr><td><h1></h1></td></tr></table></body></html>",
                              QStringLiteral("0001"), &error));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_FALSE(parseNpgPage("", QStringLiteral("0001"), &error));
    EXPECT_FALSE(parseNpgPage("\x00\xff<<<", QStringLiteral("0001"), &error));

    const auto c = page("<tr><td><h6>VP(77&#176;F):</h6> 0.3 mmHg</td><td>Sp.Gr(68&#176;F): 1.1</td>"
                        "<td><h6>MEC:</h6> 40 g/m<sup>3</sup></td><td><h6>Unknown label</h6> x</td></tr>"
                        "<tr><td colspan=\"6\"><h6>DOT ID &amp; Guide</h6>1203 128P<br/>NA1993 128</td></tr>"
                        "<tr><td colspan=\"6\">Combustible Solid</td></tr>",
                        &error);
    ASSERT_TRUE(c) << error.toStdString();
    EXPECT_EQ(QStringList({ c->cells.value("vp"), c->cells.value("spgr"), c->cells.value("mec"), c->cells.value("flammability") }),
              QStringList({ "0.3 mmHg (77°F)", "1.1 (68°F)", "40 g/m3", "Combustible Solid" }));
    EXPECT_EQ(c->unIds, QStringList{ "1203" });  // "NA1993" is not a UN/NA number written alone
    EXPECT_EQ(c->columns().size(), npgColumns().size());
}

TEST(PocketGuide, UnreadableSourcesNameTheFile)
{
    QString error;
    EXPECT_FALSE(readNpg(QStringLiteral("/nonexistent/npg.tar.xz"), &error));
    EXPECT_TRUE(error.startsWith(QLatin1String("/nonexistent/npg.tar.xz"))) << error.toStdString();
    EXPECT_FALSE(readNpg(QStringLiteral(QOR_OFFICIAL_DIR "/cfr49"), &error));
    EXPECT_TRUE(error.contains(QLatin1String("no pocket guide pages"))) << error.toStdString();
}
