#pragma once
// Reads eCFR section XML (the "full" title 49 export of one section) into
// pack table rows. Works for any section in that form: the hazardous
// materials table and its stowage paragraph, the placarding tables, the
// special provision codes, and part 173 texts as regulation pages.
#include "import/ImportTables.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace qor::import {

// One row of the hazardous materials table, in the pack's `hmt` column order.
struct HmtRow {
    QString unId;   // four digits, without the UN/NA/ID prefix
    QString name;   // proper shipping name: the roman words only
    QString symbols, hazardClass, packingGroup, labelCodes, specialProvisions, exceptions, nonBulk, bulk,
        passAirRail, cargoAir, vesselLoc, other;
    QStringList columns() const;
};

// Counts over every body row of the hazardous materials table.
struct HmtCounts {
    int tableRows = 0;      // every row, empty ones included
    int withId = 0;         // rows that carry an ID, their own or the entry's
    int distinctIds = 0;    // as written, "UN1993" and "NA1993" being two
    int forbidden = 0;
    int crossReferences = 0;  // "X, see Y" rows without a class
};

struct SpecialProvision {
    QString code;
    QString html;  // the provision's text as an HTML fragment
    // The provision on its group's page, reachable as "#CODE" in both anchor forms.
    QString anchoredHtml() const;
};

// One top-level block of a section's text, as HTML.
struct CfrNode {
    QString nodeId;
    QString html;
};

struct EcfrSection {
    QString number;   // "172.101"
    QString heading;  // "§ 172.101 Purpose and use of ..."
    QList<CfrNode> nodes;
    // Filled when the section holds them.
    QList<HmtRow> hmt;
    HmtCounts hmtCounts;
    QList<QStringList> vesselStowage;  // category, description
    QList<QStringList> placardTable;   // category of material, placard name
    QList<SpecialProvision> provisions;
};

// False with *error naming the file (and line) when the XML is not a section.
std::optional<EcfrSection> parseEcfrSection(const QByteArray& xml, const QString& fileName, QString* error);
std::optional<EcfrSection> readEcfrSection(const QString& path, QString* error);

// The placard key (the pack's placard artwork names) of a hazard class or
// division as the table writes it ("1.1D", "6.1", "Comb liq"); "" when no
// placard applies.
QString placardKeyForClass(const QString& hazardClass, bool inhalationHazard);
// Special provisions 1 to 6 mark a material poisonous by inhalation (zones A to D).
bool isInhalationHazard(const HmtRow& row);
// "1.1D" -> "1.1": the division without its compatibility group.
QString divisionOf(const QString& hazardClass);

// What the shipping sections give the pack, merged over all sections read.
class ShippingData {
public:
    void add(const EcfrSection& section);

    bool hasTable() const { return !m_hmt.isEmpty(); }
    bool hasPlacardTable() const { return !m_placardTable.isEmpty(); }
    const QList<HmtRow>& hmt() const { return m_hmt; }
    const QList<SpecialProvision>& provisions() const;

    // The placard key of a material from its ID and its inhalation-hazard
    // mark; "" when the table has no row for the ID or no placard applies.
    QString placardKey(const QString& unId, bool inhalationHazard) const;

    // Rows for the pack tables this data fills, by table name; tables the
    // imported sections do not cover are absent, so an import of one
    // section leaves the others' tables alone.
    ImportTables tables() const;

private:
    QList<HmtRow> m_hmt;
    QList<QStringList> m_stowage;
    QList<QStringList> m_placardTable;
    QList<QStringList> m_cfrText;  // section_id, node_id, node_text, section_name
    QList<QStringList> m_sectionTitles;  // "203", its heading's title
    QList<SpecialProvision> m_provisions;
};

} // namespace qor::import
