// What the screens say about where values come from: source lines closing
// each section, the incident note, the sample and unverified marks, and
// sections that disappear rather than stand empty when a table has no rows.
#include "CheckedModel.h"
#include "ScreensSupport.h"

#include "AboutController.h"
#include "AppLinks.h"
#include "GuideControllers.h"
#include "IsolationTableDelegate.h"
#include "MaterialListController.h"
#include "MaterialViewController.h"
#include "PackStatus.h"
#include "PlacardViewController.h"
#include "ShippingControllers.h"
#include "model/Filter.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

// Rows grouped by section, in order.
QList<QList<QVariantMap>> sectionsOf(const QVariantList& rows)
{
    QList<QList<QVariantMap>> out;
    for (const QVariant& v : rows) {
        const QVariantMap r = v.toMap();
        if (out.isEmpty() || r.value("sectionStart").toBool())
            out.append(QList<QVariantMap>());
        out.last() << r;
    }
    return out;
}

// Every section shows values and ends in exactly one source line.
void expectEverySectionSourced(const QVariantList& rows, const char* what)
{
    for (const auto& section : sectionsOf(rows)) {
        ASSERT_GE(section.size(), 2) << what << ": a section without values, or without a source line: "
                                     << section.first().value("kind").toString().toStdString();
        EXPECT_EQ(section.last().value("kind"), "source") << what << ", section " << section.first().value("header").toString().toStdString();
        for (int i = 0; i + 1 < section.size(); ++i)
            EXPECT_NE(section.at(i).value("kind"), "source") << what;
    }
}

QStringList headersOf(const QVariantList& rows)
{
    QStringList out;
    for (const auto& section : sectionsOf(rows))
        out << section.first().value("header").toString();
    return out;
}

void writeOfficialManifest(FixturePack& pack)
{
    ASSERT_TRUE(FixturePack::officialManifest().writeWithChecksums(pack.dir()));
}

struct ProvenanceTest : ScreenTest {
    ProvenanceTest()
    {
        pack.setMaterials({ "AMMONIA, ANHYDROUS^2.2^125^1005^X^^", "ACETONE^3^127^1090^^^", "SODIUM^4.3^138^1428^^W^" });
        pack.setGuides({ "125^Gases - Corrosive", "127^Flammable Liquids", "138^Substances - Water-Reactive" });
        pack.sql("npg.db",
                 "insert into iso_distances values ('1005',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');"
                 "insert into hmt values ('1090','Acetone','','3','II','3','IB2, T4, TP1','150','202','242','5 L','60 L','B','','');"
                 "insert into dot_classes values ('1090','3');");
        pack.sql("hazmat_incidents.dat", "insert into incidents (un_id) values ('1090'),('1090');");
    }
};

} // namespace

TEST_F(ProvenanceTest, PackMarksFollowPackJson)
{
    PackStatus status;
    EXPECT_EQ(AboutController().sampleText(), PackManifest::sampleNotice()) << "fixture packs declare sample content";

    writeOfficialManifest(pack);
    EXPECT_TRUE(status.verified());
    ASSERT_EQ(status.sources().size(), 3);
    EXPECT_EQ(status.sources().at(2).toMap().value("tables").toStringList(), QStringList({ "incidents" }));

    QFile::remove(pack.path("pack.json"));
    EXPECT_EQ(AboutController().sampleText(), PackManifest::unverifiedNotice());
    EXPECT_TRUE(status.problem().startsWith("pack.json: cannot read")) << status.problem().toStdString();
    EXPECT_TRUE(status.sources().isEmpty());

    // Without pack.json the pack still loads and every line says it is unverified.
    load();
    MaterialViewController screen;
    screen.setMaterialGuide(material("1090"));
    EXPECT_EQ(screen.summary()->rows().last().toMap().value("text"), "Source: unknown (unverified data pack)");
}

TEST_F(ProvenanceTest, DetailSectionsEndInTheirSources)
{
    writeOfficialManifest(pack);
    load();
    MaterialViewController screen;
    screen.setMaterialGuide(material("1090"));
    expectEverySectionSourced(screen.summary()->rows(), "summary");
    expectEverySectionSourced(screen.shipping()->rows(), "shipping");
    const auto shipping = sectionsOf(screen.shipping()->rows());
    ASSERT_EQ(shipping.size(), 3);
    EXPECT_EQ(shipping.at(1).last().value("text"), "Source: DOT 5800.1");
    EXPECT_EQ(shipping.at(2).last().value("text"), "Source: 49 CFR 172.101 (eCFR, 2026-07-28)")
        << "tables without a source (section titles) add nothing";

    ShippingTableDelegate entry;
    entry.setAttributesMap(screen.shipping()->entryAt(0));
    expectEverySectionSourced(entry.rows(), "shipping entry");
    ShippingSpecialProvisionsTableDelegate provisions;
    provisions.setProvisions({ "IB2", "T4" });
    expectEverySectionSourced(provisions.rows(), "provisions");

    screen.setMaterialGuide(material("1005"));
    const auto summary = sectionsOf(screen.summary()->rows());
    EXPECT_EQ(summary.last().last().value("text"), "Source: ERG 2024; ERG 2024, Table 1") << "guide row and isolation row";

    GuideViewController guide;
    EXPECT_EQ(guide.sourceLine(), "Source: ERG 2024");
    PlacardViewController placards;
    CheckedModel placardsChecks(&placards);
    EXPECT_EQ(placards.sourceLine(), "Source: 49 CFR 172.101 (eCFR, 2026-07-28)");
    // The chart naming each placard's guide is not among the pack's sources: no row claims one.
    for (int row = 0; row < placards.rowCount(); ++row)
        EXPECT_EQ(placards.data(placards.index(row), PlacardViewController::GuideIdRole).toString(), "") << "row " << row;
    EXPECT_EQ(placards.selectRow(1), "");
}

TEST_F(ProvenanceTest, EmptyTablesLeaveNoEmptySections)
{
    load();
    MaterialViewController screen;
    // UN 1428: no shipping row, no NFPA, no chemistry, no distances.
    screen.setMaterialGuide(material("1428"));
    expectEverySectionSourced(screen.summary()->rows(), "summary");
    EXPECT_FALSE(headersOf(screen.summary()->rows()).contains("NFPA 704"));
    expectEverySectionSourced(screen.shipping()->rows(), "shipping");
    EXPECT_EQ(headersOf(screen.shipping()->rows()), QStringList({ "", "Reported Incidents" }))
        << "no shipping header without shipping rows";
    IsolationTableDelegate iso;
    iso.setMaterial(material("1428"));
    EXPECT_TRUE(iso.empty());
}

TEST_F(ProvenanceTest, IncidentListSaysItIsPartialAndEmptyCategoriesSayZero)
{
    writeOfficialManifest(pack);
    load();
    MaterialListController list;
    CheckedModel listChecks(&list);
    model->changeFilter("A", SortIncidents);
    EXPECT_EQ(list.incidentsNote(), "From a partial extract of DOT 5800.1 reports, Aug 2024 to Jul 2025\nSource: DOT 5800.1");

    model->changeFilter("M", SortAlpha);  // no material carries the meth-lab mark
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_TRUE(list.emptyText().startsWith("0 found")) << list.emptyText().toStdString();
}
