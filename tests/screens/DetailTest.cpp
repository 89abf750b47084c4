// The material detail screen: tabs, summary rows, shipping rows and the protection tab.
#include "ScreensSupport.h"

#include "MaterialViewController.h"
#include "Navigation.h"
#include "ShippingControllers.h"

#include <QDir>
#include <QSet>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

struct DetailTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({ "AMMONIA, ANHYDROUS^2.2^125^1005^X^^", "ACETONE^3^127^1090^^^", "SARIN^6.1^153^2810^^^GB",
                            "SODIUM^4.3^138^1428^^W^", "STYRENE MONOMER^3^128P^2055^^^" });
        pack.setGuides({ "125^Gases - Corrosive", "127^Flammable Liquids" });
        pack.sql("npg.db",
                 "insert into iso_distances values ('1005',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');"
                 "insert into iso_distances values ('1428','Spilled in Water','30','100','0.1','0.1','0.2','0.1','','','','','','');"
                 "insert into nfpa values ('1005','Ammonia, Anhydrous','3','1','0','');"
                 "insert into cameo values ('1','AMMONIA, ANHYDROUS','7664-41-7','1005','A colorless gas.','NH3','Toxic by inhalation.');"
                 "insert into ghs values ('7664-41-7','GHS04,dgr,GHS05,wng','H221,H280, H314');"
                 "insert into hmt values ('1005','Ammonia, anhydrous','','2.2','','2.2, 2.3','A1, B2','','203 ','314','Forbidden','25 kg','D','','');"
                 "insert into hmt values ('1090','Acetone','','3','II','3','A1,B2','','202','242','5 L','60 L','B','','');"
                 "insert into hmt values ('1090','Acetone solution','I','3','III','3','','','203','242','','','','','');");
        pack.sql("cfr49.db", "insert into cfr_text values ('173.203','n1','<p>Non-bulk packagings for liquids</p>','');");
        load();
    }
};

} // namespace

TEST_F(DetailTest, SegmentsFollowTheChemistryDataAndTheChoiceFallsBack)
{
    MaterialViewController screen;
    screen.setMaterialGuide(material("1005"));
    EXPECT_EQ(screen.segmentCount(), 3);

    MaterialViewController other;
    other.setMaterialGuide(material("1090"));
    EXPECT_EQ(other.segmentCount(), 2) << "no chemistry attributes and no CAS number";
    EXPECT_EQ(other.selectedViewIndex(), MaterialViewController::SummaryTab);

    other.setSelectedViewIndex(MaterialViewController::ShippingTab);
    screen.setMaterialGuide(material("1005"));
    EXPECT_EQ(screen.selectedViewIndex(), MaterialViewController::ShippingTab) << "kept across materials";

    MaterialViewController agent;
    agent.setMaterialGuide(material("2810"));
    EXPECT_EQ(agent.backTitle(), "Back") << "a warfare agent does not name its UN number";
}

TEST_F(DetailTest, SummaryRowsAndTheNfpaSectionOnPhonesOnly)
{
    SummaryTableDelegate summary;
    summary.setMaterial(material("1005").ptr);
    EXPECT_EQ(summary.numberOfSections(), 3);
    EXPECT_EQ(rowOfKind(summary.rows(), "nfpa").value("health"), "3");
    EXPECT_TRUE(rowOfKind(summary.rows(), "iso").value("subtitle").toString().isEmpty()) << "a TIH mark of X names no gas";

    Device::setTablet(true);
    summary.setMaterial(material("1005").ptr);
    EXPECT_EQ(summary.numberOfSections(), 2);
    EXPECT_TRUE(rowOfKind(summary.rows(), "nfpa").isEmpty());
    Device::setTablet(false);

    summary.setMaterial(material("1090").ptr);
    EXPECT_EQ(summary.numberOfSections(), 2) << "no NFPA record";

    summary.setMaterial(material("1428").ptr);
    EXPECT_EQ(rowOfKind(summary.rows(), "iso").value("title"), "Isolation Distances\n (Spilled in Water)");
    summary.setMaterial(material("2055").ptr);
    EXPECT_EQ(rowOfKind(summary.rows(), "guide").value("text"), "Guide 128P") << "the guide's letter is kept";
}

namespace {

// What choosing a row asked the navigation for: {file, properties} of the
// one page requested by origin, or empty when nothing was opened.
struct Opened {
    QString file;
    QVariantMap properties;
};
template <typename Activate>
Opened activated(QObject* origin, Activate activate)
{
    QSignalSpy spy(Navigation::sharedInstance(), &Navigation::pageRequested);
    activate();
    if (spy.isEmpty())
        return {};
    EXPECT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.first().at(0).value<QObject*>(), origin) << "pushed by the page that asked";
    return { spy.first().at(1).toString(), spy.first().at(2).toMap() };
}

} // namespace

// Choosing a row: one C++ place decides what it opens, for every row kind.
TEST_F(DetailTest, ChoosingARowOpensWhatItNames)
{
    MaterialViewController screen;
    screen.setMaterialGuide(material("1005"));
    screen.setSelectedViewIndex(MaterialViewController::SummaryTab);
    QSignalSpy guides(Navigation::sharedInstance(), &Navigation::guideRequested);
    screen.activate(indexOfKind(screen.rows(), "guide"));
    ASSERT_EQ(guides.size(), 1);
    EXPECT_EQ(guides.first().at(0), "125");
    EXPECT_EQ(guides.first().at(1).value<MaterialRef>(), material("1005"));

    Opened o = activated(&screen, [&] { screen.activate(indexOfKind(screen.rows(), "iso")); });
    EXPECT_EQ(o.properties.value("material").value<MaterialRef>(), material("1005"));
    EXPECT_TRUE(activated(&screen, [&] { screen.activate(0); }).file.isEmpty()) << "the top cell opens nothing";
    EXPECT_TRUE(activated(&screen, [&] { screen.activate(-1); }).file.isEmpty());

    // The one entry's rows, inline.
    screen.setSelectedViewIndex(MaterialViewController::ShippingTab);
    o = activated(&screen, [&] { screen.activate(indexOfKind(screen.rows(), "shipping", "nonBulk")); });
    EXPECT_EQ(o.file, "RegulationPage.qml");
    EXPECT_EQ(o.properties.value("title"), "49CFR § 173.203") << "blanks removed";
    EXPECT_TRUE(o.properties.value("html").toString().contains("Non-bulk packagings for liquids"));
    o = activated(&screen, [&] { screen.activate(indexOfKind(screen.rows(), "shipping", "specialProvisions")); });
    EXPECT_EQ(o.properties.value("provisions").toStringList(), QStringList({ "A1", "B2" }));
    EXPECT_TRUE(activated(&screen, [&] { screen.activate(indexOfKind(screen.rows(), "shipping", "packingGroup")); }).file.isEmpty())
        << "an empty value opens nothing";

    screen.setSelectedViewIndex(MaterialViewController::ProtectionTab);
    screen.activate(indexOfKind(screen.rows(), "ghs"));
    EXPECT_TRUE(rowOfKind(screen.rows(), "ghs").value("expanded").toBool()) << "the GHS row shows all its statements";

    // Several entries: each row opens its entry, whose rows open their pages.
    screen.setMaterialGuide(material("1090"));
    screen.setSelectedViewIndex(MaterialViewController::ShippingTab);
    const int second = indexOfKind(screen.rows(), "entry") + 1;
    o = activated(&screen, [&] { screen.activate(second); });
    EXPECT_EQ(o.properties.value("attributes").toMap().value("name"), "Acetone solution");
    ShippingTableDelegate entry;
    entry.setAttributesMap(o.properties.value("attributes").toMap());
    o = activated(&entry, [&] { entry.activate(indexOfKind(entry.rows(), "shipping", "bulk")); });
    EXPECT_EQ(o.file, "RegulationPage.qml");
    EXPECT_FALSE(o.properties.contains("backText")) << "the regulation page keeps its own";
    entry.setAttributesMap(screen.shipping()->entryAt(0));
    o = activated(&entry, [&] { entry.activate(indexOfKind(entry.rows(), "shipping", "specialProvisions")); });
    EXPECT_EQ(o.properties.value("provisions").toStringList(), QStringList({ "A1,B2" })) << "codes split at \", \" only";
}

TEST_F(DetailTest, ProtectionTabKeysAndGhsCodes)
{
    ProtectionTableDelegate tab;
    tab.setMaterial(material("1005").ptr);
    EXPECT_EQ(tab.keys(), QStringList({ "CameoHazardText" })) << "no IDLH value";
    const QVariantMap ghs = rowOfKind(tab.rows(), "ghs");
    EXPECT_EQ(ghs.value("pictograms").toStringList(), QStringList({ "ghs04.pdf", "ghs05.pdf" })) << "signal words skipped";
    EXPECT_EQ(ghs.value("statements").toStringList(), QStringList({ "H221", "H280", "H314" }));
}

TEST_F(DetailTest, EverySectionInfoButtonOpensAPageOfThePack)
{
    // The bundled pack is the one the app ships; every page a button names must be in it.
    const QDir bundled(QStringLiteral(QOR_DEFAULT_RESOURCES));
    ASSERT_TRUE(bundled.exists(QStringLiteral("NPG.html"))) << qPrintable(bundled.path());
    MaterialViewController c;
    c.setMaterialGuide(material("1005"));
    QSet<QString> named;
    for (int tab = 0; tab < c.segmentCount(); ++tab) {
        c.setSelectedViewIndex(tab);
        for (const QVariant& r : c.rows())
            if (!r.toMap().value("infoPage").toString().isEmpty())
                named.insert(r.toMap().value("infoPage").toString());
    }
    for (const QString& page : std::as_const(named))
        EXPECT_TRUE(bundled.exists(page + QStringLiteral(".html"))) << qPrintable(page);
    EXPECT_TRUE(named.contains(QStringLiteral("NPG"))) << "the pocket guide page is reachable";
    EXPECT_TRUE(named.contains(QStringLiteral("GHS")));
}
