#include "import/EcfrImport.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace qor::import;

namespace {

const QString kCfrDir = QStringLiteral(QOR_OFFICIAL_DIR "/cfr49/");

// The official table is read once for the whole suite (2.9 MB of XML).
const EcfrSection& table()
{
    static const EcfrSection s = [] {
        QString error;
        auto section = readEcfrSection(kCfrDir + QStringLiteral("ecfr-section-172.101.xml"), &error);
        EXPECT_TRUE(section) << error.toStdString();
        return section.value_or(EcfrSection{});
    }();
    return s;
}

const ShippingData& shipping()
{
    static const ShippingData data = [] {
        ShippingData d;
        d.add(table());
        QString error;
        const auto placards = readEcfrSection(kCfrDir + QStringLiteral("ecfr-section-172.504.xml"), &error);
        EXPECT_TRUE(placards) << error.toStdString();
        if (placards)
            d.add(*placards);
        return d;
    }();
    return data;
}

QList<HmtRow> rowsFor(const QString& id)
{
    QList<HmtRow> rows;
    for (const HmtRow& r : table().hmt)
        if (r.unId == id)
            rows << r;
    return rows;
}

std::optional<EcfrSection> parse(const QByteArray& xml, QString* error)
{
    return parseEcfrSection(xml, QStringLiteral("test.xml"), error);
}

// A section in the eCFR form with one shipping table of the given body rows.
QByteArray sectionWithTable(const QByteArray& rows)
{
    return "<DIV8 N=\"172.101\" TYPE=\"SECTION\"><HEAD>Table</HEAD><TABLE><THEAD><TR><TH>(1) Symbols</TH>"
           "<TH>(2) Hazardous materials descriptions and proper shipping names</TH></TR></THEAD><TBODY>"
        + rows + "</TBODY></TABLE></DIV8>";
}

QByteArray row(const QStringList& cells)
{
    QByteArray out = "<TR>";
    for (const QString& c : cells)
        out += "<TD>" + c.toUtf8() + "</TD>";
    return out + "</TR>";
}

} // namespace

TEST(EcfrShippingTable, WholeTableCounts)
{
    EXPECT_EQ(table().hmtCounts.tableRows, 3687);
    EXPECT_EQ(table().hmtCounts.withId, 3002);
    EXPECT_EQ(table().hmtCounts.forbidden, 256);
    EXPECT_EQ(table().hmtCounts.crossReferences, 421);
    QSet<QString> ids;
    for (const HmtRow& r : table().hmt) {
        ids.insert(r.unId);
        // Only explosive samples have their class assigned case by case.
        EXPECT_TRUE(!r.hazardClass.isEmpty() || r.unId == QLatin1String("0190")) << r.unId.toStdString();
    }
    // Forbidden and "see" rows carry no ID, so every row with one ships.
    EXPECT_EQ(table().hmt.size(), 3002);
    EXPECT_EQ(ids.size(), 2334);  // four digits: UN1993 and NA1993 are one
}

TEST(EcfrShippingTable, RowsByValue)
{
    const auto acetaldehyde = rowsFor(QStringLiteral("1089"));
    ASSERT_EQ(acetaldehyde.size(), 1);
    const HmtRow& a = acetaldehyde[0];
    EXPECT_EQ(QStringList({ a.name, a.hazardClass, a.packingGroup, a.specialProvisions, a.exceptions, a.nonBulk, a.bulk,
                            a.passAirRail, a.cargoAir, a.vesselLoc }),
              QStringList({ "Acetaldehyde", "3", "I", "B16, T11, TP2, TP7", "None", "201", "243", "Forbidden", "30 L", "E" }));

    // Ammonia: an international (2.3) and a domestic (2.2) entry.
    const auto ammonia = rowsFor(QStringLiteral("1005"));
    ASSERT_EQ(ammonia.size(), 2);
    EXPECT_EQ(ammonia[0].symbols + ammonia[0].hazardClass + "|" + ammonia[0].labelCodes + "|" + ammonia[0].bulk + "|" + ammonia[0].other,
              QStringLiteral("I2.3|2.3, 8|314, 315|40, 52, 57"));
    EXPECT_EQ(ammonia[1].symbols + ammonia[1].hazardClass, QStringLiteral("D2.2"));

    // The italic qualifier is not part of the name.
    EXPECT_EQ(rowsFor(QStringLiteral("1203")).value(0).name, QStringLiteral("Gasoline"));
}

TEST(EcfrShippingTable, PackingGroupRowsInheritTheirEntry)
{
    // UN1993 "Flammable liquids, n.o.s." lists groups I, II and III as three
    // rows; only the first names the entry.
    QStringList groups;
    for (const HmtRow& r : rowsFor(QStringLiteral("1993")))
        if (r.name == QLatin1String("Flammable liquids, n.o.s."))
            groups << r.symbols + r.hazardClass + r.packingGroup;
    EXPECT_EQ(groups, (QStringList{ "G3I", "G3II", "G3III" }));
}

TEST(EcfrShippingTable, ClassesStowageAndPlacards)
{
    const ImportTables t = shipping().tables();
    // Classes are divisions without the compatibility group.
    QHash<QString, QString> firstClass;
    for (const QStringList& r : t.value(QStringLiteral("dot_classes")))
        if (!firstClass.contains(r[0]))
            firstClass.insert(r[0], r[1]);
    EXPECT_EQ(firstClass.value(QStringLiteral("0004")), QStringLiteral("1.1"));
    EXPECT_EQ(firstClass.size(), 2333);  // UN0190, explosive samples, has no class

    QStringList categories;
    for (const QStringList& r : t.value(QStringLiteral("vessel_stowage"))) {
        categories << r[0];
        EXPECT_TRUE(r[1].startsWith(QLatin1String("Stowage category"))) << r[1].toStdString();
    }
    EXPECT_EQ(categories, (QStringList{ "A", "B", "C", "D", "E", "01", "02", "03", "04", "05" }));
    // Category B's two sub-paragraphs belong to it.
    EXPECT_TRUE(t.value(QStringLiteral("vessel_stowage"))[1][1].contains(QLatin1String("On deck only")));
}

TEST(EcfrShippingTable, PlacardKeyOfAMaterial)
{
    const ShippingData& d = shipping();
    EXPECT_EQ(d.placardKey(QStringLiteral("1005"), true), QStringLiteral("2.3"));
    EXPECT_EQ(d.placardKey(QStringLiteral("1005"), false), QStringLiteral("2.3"));  // first of its 2.3 and 2.2 rows
    EXPECT_EQ(d.placardKey(QStringLiteral("1051"), false), QStringLiteral("6.1-tih"));  // hydrogen cyanide, zone A
    // No placard row where the table names two (2.3 and 2.2) or "NONE" (6.2).
    for (const QStringList& r : d.tables().value(QStringLiteral("dot_placards")))
        EXPECT_TRUE(r[0] != QLatin1String("1005") && r[0] != QLatin1String("2814")) << r[0].toStdString();
    EXPECT_EQ(d.placardKey(QStringLiteral("1710"), false), QStringLiteral("6.1"));  // trichloroethylene
    EXPECT_EQ(d.placardKey(QStringLiteral("0012"), false), QStringLiteral("1.4"));
    EXPECT_EQ(d.placardKey(QStringLiteral("9999"), false), QString());

    EXPECT_EQ(placardKeyForClass(QStringLiteral("Forbidden"), false), QString());
}

TEST(EcfrSectionXml, NamesAndCellsAreCleaned)
{
    QString error;
    const auto s = parse(sectionWithTable(
        row({ "G", "Acetic acid, glacial <E T=\"03\">or</E> Acetic acid solution, <E T=\"03\">with more than 80 percent acid</E>",
              "8", "UN2789", "II", "8, 3", "A3,<br/>B2 , IB2", "154", "202", "242", "1 L", "30 L", "A", "" })
        + row({ "", "", "", "", "III", "8", "", "", "", "", "", "", "", "" })
        + row({ "", "", "", "", "", "", "", "", "", "", "", "", "", "" })
        + row({ "", "Ethyl alcohol, <E T=\"03\">see</E> Ethanol", "", "", "", "", "", "", "", "", "", "", "", "" })
        + row({ "", "Acetyl azide", "Forbidden", "", "", "", "", "", "", "", "", "", "", "" })),
        &error);
    ASSERT_TRUE(s) << error.toStdString();
    EXPECT_EQ(QList<int>({ s->hmtCounts.tableRows, s->hmtCounts.withId, s->hmtCounts.crossReferences, s->hmtCounts.forbidden }),
              QList<int>({ 5, 2, 1, 1 }));
    ASSERT_EQ(s->hmt.size(), 2);
    EXPECT_EQ(s->hmt[0].name, QStringLiteral("Acetic acid, glacial or Acetic acid solution"));
    EXPECT_EQ(s->hmt[0].specialProvisions, QStringLiteral("A3, B2, IB2"));
    EXPECT_EQ(s->hmt[1].unId, QStringLiteral("2789"));
    EXPECT_EQ(s->hmt[1].name, s->hmt[0].name);
    EXPECT_EQ(s->hmt[1].packingGroup, QStringLiteral("III"));
    // Short rows are read as far as they go, never past their end.
    EXPECT_TRUE(parse(sectionWithTable("<TR><TD>x</TD></TR><TR/>"), &error));
}

TEST(EcfrSectionXml, BadInputNamesTheFile)
{
    QString error;
    EXPECT_FALSE(parse("<DIV8 N=\"1\" TYPE=\"SECTION\"><P>open", &error));
    EXPECT_TRUE(error.startsWith(QLatin1String("test.xml: line "))) << error.toStdString();
    EXPECT_FALSE(parse("<DIV5 N=\"173\" TYPE=\"PART\"/>", &error));
    EXPECT_TRUE(error.contains(QLatin1String("not an eCFR section")));
    EXPECT_FALSE(readEcfrSection(QStringLiteral("/nonexistent/x.xml"), &error));
    EXPECT_TRUE(error.startsWith(QLatin1String("/nonexistent/x.xml")));
}

TEST(EcfrSectionXml, PackagingSectionsAndProvisions)
{
    QString error;
    const auto part173 = parse("<DIV8 N=\"173.203\" TYPE=\"SECTION\"><HEAD>§ 173.203 Non-bulk packagings</HEAD>"
                               "<P>(a) <I>General.</I> A &lt;b&gt; text</P><EDNOTE><P>note</P></EDNOTE></DIV8>",
                               &error);
    ASSERT_TRUE(part173) << error.toStdString();
    const auto provisions = parse("<DIV8 N=\"172.102\" TYPE=\"SECTION\"><HEAD>§ 172.102 Special provisions</HEAD>"
                                  "<P>(a) General.</P><P>1 This material is poisonous by inhalation.</P>"
                                  "<P>(i) and more.</P><P>IB2 Authorized IBCs.</P><P>(d) Next.</P>"
                                  "<TABLE><TBODY><TR><TD>TP7</TD><TD>Air shall be eliminated.</TD></TR></TBODY></TABLE></DIV8>",
                                  &error);
    ASSERT_TRUE(provisions) << error.toStdString();
    ShippingData d;
    d.add(*part173);
    d.add(*provisions);
    const ImportTables t = d.tables();
    EXPECT_FALSE(t.contains(QStringLiteral("hmt")));  // not part of these sections: left alone
    const auto cfr = t.value(QStringLiteral("cfr_text"));
    ASSERT_EQ(cfr.size(), 2);  // heading and paragraph; the editorial note is left out
    EXPECT_EQ(cfr[1][0], QStringLiteral("173.203"));
    EXPECT_EQ(cfr[1][2], QStringLiteral("<p>(a) <i>General.</i> A &lt;b&gt; text</p>"));
    EXPECT_EQ(cfr[1][3], QStringLiteral("§ 173.203 Non-bulk packagings"));

    QStringList codes;
    for (const SpecialProvision& p : d.provisions())
        codes << p.code;
    EXPECT_EQ(codes, (QStringList{ "TP7", "1", "IB2" }));
    EXPECT_TRUE(d.provisions()[1].html.contains(QLatin1String("and more")));
    EXPECT_FALSE(d.provisions()[2].html.contains(QLatin1String("Next")));
}
