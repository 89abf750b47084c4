#pragma once
// Reader of the guidebook's yellow index and its green Tables 1 to 3.
// Sections are found by their headings, so the same code reads the section
// extracts and the whole book; a section read from several files keeps the
// most complete reading.
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace qor::import {

class ShippingData;

class PdfText;

struct ErgIndexRow {
    QString id;        // four digits, or "—" for the explosives rows
    QString guide;     // as printed, with its "P"
    QString name;      // wrapped lines joined
    bool highlighted = false;  // green fill behind the row (toxic inhalation hazard)
};

// One spill size of a Table 1 row, every figure as printed ("11.0+").
struct ErgDistances {
    QString isolateM, isolateFt, dayKm, dayMi, nightKm, nightMi;
    QStringList values() const { return { isolateM, isolateFt, dayKm, dayMi, nightKm, nightMi }; }
};

struct ErgTable1Row {
    QString id;
    QString guide;
    QString name;       // without the "(when spilled ...)" suffix
    QString condition;  // "When Spilled in Water", "When Spilled on Land" or empty
    ErgDistances small;
    std::optional<ErgDistances> large;  // absent where the table says "Refer to Table 3"
};

struct ErgTable2Row {
    QString id;
    QString guide;
    QString name;
    QStringList gases;  // "HCl", "H2S", ...
};

struct ErgTable3Row {
    QStringList ids;    // "1050", "2186": one block can serve several IDs
    QString container;  // as printed, wrapped lines joined
    // Isolate m, ft; then day low, moderate, high wind and night low,
    // moderate, high wind, each km then mi: fourteen figures as printed.
    QStringList values;
    bool operator==(const ErgTable3Row&) const = default;
};

struct ErgTables {
    QList<ErgIndexRow> index;
    QList<ErgTable1Row> table1;
    QList<ErgTable2Row> table2;
    QList<ErgTable3Row> table3;
    QStringList unusedFiles;  // files holding none of these sections
};

class ErgImport {
public:
    // Reads every section found in the files. Fails with "FILE: page N:
    // reason" or "FILE: reason" on an unreadable file or section, and with a
    // message naming the files when a section is in none of them.
    static std::optional<ErgTables> read(const QStringList& files, QString* error);
    // The same on one document in memory; sections it lacks are not an error.
    static std::optional<ErgTables> readData(const QByteArray& bytes, const QString& name, QString* error);

    // Index rows whose highlight disagrees with Table 1 (a Table 1 material
    // not highlighted, or a highlighted row not in Table 1), as "ID name".
    static QStringList highlightMismatches(const ErgTables& tables);

    // Condition texts of Table 1, from the name suffixes.
    static const QString kWater;
    static const QString kLand;
};

// Lines of the materials file: name^placard^guide^UN^TIH^W^ (TIH "X" or the
// gases Table 2 names for highlighted rows; "W" where Table 2 lists the ID).
// The placard key is the shipping table's for the UN number and TIH mark,
// empty without shipping data or where the table has none. The explosives
// rows carry no UN number.
QStringList materialsLines(const ErgTables& tables, const ShippingData* shipping = nullptr);
// One guidebook-order CSV per table, with a header line.
QString table1Csv(const ErgTables& tables);
QString table2Csv(const ErgTables& tables);
QString table3Csv(const ErgTables& tables);
// The iso_distances condition of each Table 1 row, in row order. It is the
// row's spill condition, unless rows of one ID and spill condition print
// different figures: then each row is told apart by the inhalation hazard
// zone its name ends in ("Inhalation Hazard Zone A") or else by its name,
// followed by " - " and the spill condition where there is one.
QStringList isoConditions(const QList<ErgTable1Row>& rows);
// SQL inserts for the pack's iso_distances and large_spill_distances tables.
QString isoDistancesSql(const ErgTables& tables);
QString largeSpillSql(const ErgTables& tables);

} // namespace qor::import
