// The zone figure on the isolation screen, and the golden figures of the
// bundled pack. Regenerate the goldens with the update_golden_zone target.
#include "GoldenFile.h"
#include "ScreensSupport.h"

#include "IsolationTableDelegate.h"
#include "ZoneFigureController.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

void forgetChoices()
{
    QSettings().remove(ProtectiveZone::kSavedWindKey);
    QSettings().remove(ProtectiveZone::kSavedUnitsKey);
}

struct ZoneScreenTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({ "CHLORINE^2.3^124^1017^X^^", "CHLOROSILANES^4.3^139^2988^HCl^W^", "ACETONE^3^127^1090^^^" });
        pack.setGuides({ "124^Gases - Toxic", "139^Substances - Water-Reactive" });
        pack.sql("npg.db", "insert into iso_distances values ('1017',NULL,'100','300','0.5','0.3','2.0','1.3','','','','','','');"
                           "insert into iso_distances values ('2988','','30','100','0.1','0.1','0.2','0.1','100','300','0.5','0.3','1.1','0.7');"
                           "insert into iso_distances values ('2988','Spilled in Water','30','100','0.3','0.2','11+','7+','300','1000','2.9','1.8','9.3','5.8');");
        load();
        forgetChoices();
    }
    void TearDown() override { forgetChoices(); }
};

} // namespace

// The figure reads the rows, units and conditions the isolation screen
// shows; which figure each choice picks is the drawing's own test.
TEST_F(ZoneScreenTest, FollowsTheTablesOfTheIsolationScreen)
{
    ZoneFigureController zone;
    zone.setMaterial(material(1017));
    ASSERT_TRUE(zone.available());
    zone.setLarge(true);
    ASSERT_TRUE(zone.usesContainers());
    EXPECT_EQ(zone.containers(), IsolationTableDelegate::largeSpillIsoDistancesForMaterial(*material(1017).ptr).keys());
    zone.setNight(true);
    EXPECT_TRUE(zone.summary().contains("protect downwind 7+ mi")) << zone.summary().toStdString();
    zone.setContainer(42);
    EXPECT_EQ(zone.container(), zone.containers().size() - 1) << "clamped to the rows there are";

    zone.setMaterial(material(2988));
    zone.setLarge(false);
    EXPECT_TRUE(zone.summary().contains("isolate 100 ft")) << "imperial by default, as the tables";
    IsolationTableDelegate tables;
    tables.segmentAction(IsolationTableDelegate::Metric);
    zone.refresh();
    EXPECT_TRUE(zone.summary().contains("isolate 30 m"));
    zone.setMaterial(material(1090));
    EXPECT_FALSE(zone.available());
    EXPECT_TRUE(zone.svg().contains("not in this data pack")) << "no shape, only words";
    EXPECT_FALSE(zone.svg().contains("id=\"zone\""));
}

TEST_F(ZoneScreenTest, WindIsRememberedAndTheNeedleSetsIt)
{
    {
        ZoneFigureController zone;
        EXPECT_DOUBLE_EQ(zone.windFrom(), 270) << "a west wind until the user says otherwise";
        zone.dragNeedleTo(10, 0);
        EXPECT_DOUBLE_EQ(zone.windFrom(), 90) << "needle right: wind from the east";
        zone.dragNeedleTo(0, 0);
        EXPECT_DOUBLE_EQ(zone.windFrom(), 90) << "the centre has no direction";
        zone.setWindFrom(-45);
        EXPECT_DOUBLE_EQ(zone.windFrom(), 315);
    }
    ZoneFigureController next;
    EXPECT_DOUBLE_EQ(next.windFrom(), 315);
}

TEST_F(ZoneScreenTest, ImageAndSheet)
{
    ZoneFigureController zone;
    zone.setMaterial(material(1017));
    zone.setPixelSize(200);
    const QImage image = QImage::fromData(QByteArray::fromBase64(zone.imageSource().mid(22).toLatin1()), "PNG");
    EXPECT_EQ(image.width(), 200);

    QTemporaryDir dir;
    ASSERT_TRUE(zone.saveSheet("Engine 7", dir.path()));
    EXPECT_EQ(zone.sheetPath(), dir.filePath("UN1017-incident-sheet.pdf"));
    EXPECT_TRUE(QFile(zone.sheetPath()).size() > 1000);
    EXPECT_FALSE(zone.saveSheet(QString(), "/proc/no-such-dir"));
    EXPECT_TRUE(zone.sheetStatus().contains("/proc/no-such-dir"));
}

// The figures of UN1005 and UN1017 from the bundled pack, small and large,
// day and night, metric, wind from the west. QOR_UPDATE_GOLDEN=1 rewrites them.
TEST(ZoneGolden, BundledPackFigures)
{
    Resources::setOverride(qor::test::bundledPack());
    forgetChoices();
    {
        ModelFixture fixture;
        QSettings().setValue(ProtectiveZone::kSavedUnitsKey, int(IsolationTableDelegate::Metric));
        for (int un : { 1005, 1017 })
            for (bool large : { false, true })
                for (bool night : { false, true }) {
                    ZoneFigureController zone;
                    zone.setMaterial(MaterialRef(firstMaterialWithUnNumber(QORModel::sharedInstance()->materials(), un)));
                    zone.setLarge(large);
                    zone.setNight(night);
                    const QString name = QStringLiteral("UN%1-%2-%3.svg").arg(un).arg(large ? "large" : "small", night ? "night" : "day");
                    EXPECT_TRUE(matchesGolden(QStringLiteral(QOR_GOLDEN_DIR "/zone/") + name, zone.svg(), "update_golden_zone"));
                }
    }
    forgetChoices();
    Resources::setOverride(QString());
}
