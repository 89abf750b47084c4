// The protective-action zone: figures picked from the isolation map, the
// geometry, and what the drawing shows.
#include "PagesSupport.h"

#include "pages/ProtectiveZone.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <cmath>

using namespace qor;

namespace {

using test::record;

double attr(const QString& svg, const QString& element, const QString& name)
{
    const QRegularExpression re(QString("<[a-z]+ id=\"%1\"[^>]* %2=\"([-0-9.]+)\"").arg(element, name));
    const auto m = re.match(svg);
    EXPECT_TRUE(m.hasMatch()) << element.toStdString() << " " << name.toStdString();
    return m.captured(1).toDouble();
}

QList<QPointF> points(const QString& svg, const QString& element)
{
    const QRegularExpression re(QString("id=\"%1\" points=\"([^\"]+)\"").arg(element));
    QList<QPointF> out;
    for (const QString& p : re.match(svg).captured(1).split(' ', Qt::SkipEmptyParts)) {
        const QStringList xy = p.split(',');
        out << QPointF(xy.value(0).toDouble(), xy.value(1).toDouble());
    }
    return out;
}

double dist(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

TEST(ProtectiveZone, DistanceTextsParseWithOpenEndedFigures)
{
    EXPECT_DOUBLE_EQ(DistanceValue::parse("11+")->value, 11);
    EXPECT_TRUE(DistanceValue::parse("11+")->openEnded);
    for (const char* bad : { "", "+", "abc", "1.2.3", "-5", "11++" })
        EXPECT_FALSE(DistanceValue::parse(bad)) << bad;
}

TEST(ProtectiveZone, GeometryIsToScaleAndDownwindOfTheSpill)
{
    const auto g = ZoneGeometry::make(ZoneDistances{ "100", "0.5" }, 270);
    ASSERT_TRUE(g);
    // The square: its near edge runs through the spill, length and width equal the downwind distance.
    EXPECT_NEAR(dist(g->square[0], g->square[1]), 500, 1e-9);
    EXPECT_NEAR(dist(g->square[1], g->square[2]), 500, 1e-9);
    EXPECT_NEAR(dist((g->square[0] + g->square[1]) / 2, QPointF(0, 0)), 0, 1e-9);
    // Wind from the west (270) carries the zone east.
    EXPECT_NEAR(g->zoneCentre().x(), 250, 1e-9);
    EXPECT_NEAR(g->zoneCentre().y(), 0, 1e-9);

    EXPECT_NEAR(ZoneGeometry::make(ZoneDistances{ "100", "0.5" }, 0)->zoneCentre().y(), -250, 1e-9) << "wind from the north: zone south";

    const auto ft = ZoneGeometry::make(ZoneDistances{ "1000", "2", false }, 270);
    EXPECT_NEAR(ft->isolationRadius, 304.8, 1e-9);
    EXPECT_NEAR(ft->protectiveDistance, 3218.688, 1e-9);

    EXPECT_TRUE(ZoneGeometry::make(ZoneDistances{ "1000", "11+" }, 270)->openEnded);
    EXPECT_FALSE(ZoneGeometry::make(ZoneDistances{ "", "0.5" }, 270));
    EXPECT_FALSE(ZoneGeometry::make(ZoneDistances{ "100", "0" }, 270));
}

TEST(ProtectiveZone, DrawingKeepsBothDistancesInOneScale)
{
    for (double wind : { 270.0, 0.0, 135.0 }) {
        const QString svg = ProtectiveZone::svg("UN1005", ZoneDistances{ "300", "1.9" }, { .windFromDeg = wind });
        // The scale bar reads 200 m, 500 m, 1 km...: px per metre from it.
        const double bar = attr(svg, "scalebar", "x2") - attr(svg, "scalebar", "x1");
        const QRegularExpression label(">([0-9.]+) (m|km)</text>");
        QRegularExpressionMatch last;
        for (auto it = label.globalMatch(svg); it.hasNext();)
            last = it.next();
        ASSERT_TRUE(last.hasMatch());
        const double perMetre = bar / (last.captured(1).toDouble() * (last.captured(2) == "km" ? 1000 : 1));

        EXPECT_NEAR(attr(svg, "isolation", "r") / perMetre, 300, 3) << wind;
        const QList<QPointF> sq = points(svg, "zone");
        ASSERT_EQ(sq.size(), 4);
        EXPECT_NEAR(dist(sq[0], sq[1]) / perMetre, 1900, 19) << wind;
        EXPECT_NEAR(dist(sq[1], sq[2]) / perMetre, 1900, 19) << wind;
    }
    // Wind from 270: the zone's centre lies east (right) of the spill.
    const QString svg = ProtectiveZone::svg("UN1005", ZoneDistances{ "300", "1.9" }, ZoneOptions());
    const QList<QPointF> sq = points(svg, "zone");
    EXPECT_GT((sq[0].x() + sq[2].x()) / 2, attr(svg, "isolation", "cx") + 10);
}

TEST(ProtectiveZone, OpenEndedZoneFadesAndHasNoFarEdge)
{
    const QString svg = ProtectiveZone::svg("UN1017", ZoneDistances{ "1000", "11+" }, ZoneOptions());
    EXPECT_FALSE(svg.contains("<polygon id=\"zone\"")) << "no closed outline";
    const QList<QPointF> edge = points(svg, "zone");
    ASSERT_EQ(edge.size(), 4) << "far-left, near-left, near-right, far-right";
    EXPECT_NE(edge.first(), edge.last()) << "the line does not come back to its start";
    EXPECT_TRUE(svg.contains("stop-opacity=\"0\"")) << "the fill fades out at the far side";
}

TEST(ProtectiveZone, FiguresComeFromTheIsolationMap)
{
    IsolationDistances iso;
    iso.insert("default", record("default", { "30", "100", "0.2", "0.1", "0.5", "0.3" }, { "150", "500", "0.9", "0.6", "2.5", "1.6" }));
    iso.insert("When Spilled in Water", record("When Spilled in Water", { "60", "200", "0.4", "0.2", "1.4", "0.9" }));

    auto d = ProtectiveZone::distancesFor(iso, {}, { .large = true, .night = true, .metric = false });
    ASSERT_TRUE(d);
    EXPECT_EQ(d->isolation, "500");
    EXPECT_EQ(d->protective, "1.6");

    ZoneOptions o{ .condition = "water" };
    d = ProtectiveZone::distancesFor(iso, {}, o);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->protective, "0.4");
    EXPECT_TRUE(ProtectiveZone::svg("UN2012", *d, o).contains("When Spilled In Water"));

    QString why;
    o.large = true;
    EXPECT_FALSE(ProtectiveZone::distancesFor(iso, {}, o, &why)) << "no large-spill figures in water";
    EXPECT_TRUE(why.contains("not in this data pack"));
    EXPECT_FALSE(ProtectiveZone::distancesFor({}, {}, ZoneOptions(), &why));
    EXPECT_TRUE(why.contains("not in this data pack"));
}

TEST(ProtectiveZone, LargeSpillOfAContainerGasReadsTheChosenRowAndWind)
{
    IsolationDistances iso;
    iso.insert("default", record("default", { "100", "300", "0.3", "0.2", "1.1", "0.7" }));
    ProtectiveZone::ContainerRows rows;
    rows.insert("Rail tank car", "1000,3000,9.6,6.0,6.3,3.9,5.1,3.2,11+,7+,8.9,5.6,6.5,4.1");
    rows.insert("Small cylinders", "150,500,1.3,0.9,0.7,0.5,0.5,0.3,2.4,1.5,1.2,0.8,0.6,0.4");

    ZoneOptions o{ .large = true, .night = true, .windSpeed = ZoneOptions::HighWind };
    EXPECT_EQ(ProtectiveZone::distancesFor(iso, rows, o)->protective, "6.5");
    o.metric = false;
    o.container = 1;
    o.windSpeed = ZoneOptions::ModerateWind;
    const auto d = ProtectiveZone::distancesFor(iso, rows, o);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->isolation, "500");
    EXPECT_EQ(d->protective, "0.8");
    EXPECT_TRUE(d->spillText().contains("Small cylinders"));
    o.large = false;
    EXPECT_EQ(ProtectiveZone::distancesFor(iso, rows, o)->protective, "0.7") << "small spills ignore the containers";

    rows.insert("Broken", "1,2,3");
    o.large = true;
    o.container = 2;
    QString why;
    EXPECT_FALSE(ProtectiveZone::distancesFor(iso, rows, o, &why));
    EXPECT_TRUE(why.contains("Broken"));
}
