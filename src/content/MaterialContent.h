#pragma once
// What the material detail shows, as typed values both front ends read: the
// app's tabs lay these out, the command line prints them. The rules that turn
// pack rows into detail rows (captions, their order, titles, labels) live here
// and nowhere else. Each group of values carries the source line the screens
// show under it.
#include "model/Material.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace qor {

class QORModel;

struct SourceLine {
    QString text;
    QString note;  // a partial-extract note, shown above the line
    static SourceLine forTables(const QStringList& tables, const QString& note = QString());
    QJsonObject toJson() const;
};

// A caption and its text; key names the material attribute it shows.
struct AttributeRow {
    QString key;
    QString caption;
    QString text;
    QJsonObject toJson() const;
};

// The top cell of the summary and shipping tabs.
struct MaterialOverview {
    QString name;
    QString unId;  // "UN1005", or the guidebook's dash for rows without a number
    QString placardImage;
    QString hazardClass;
    QString classDescription;
    QString copyText;
    SourceLine source;
    QJsonObject toJson() const;
};

struct NfpaRecord {
    QString health, fire, risk, other;
    SourceLine source;
    QJsonObject toJson() const;
};

struct SummaryContent {
    MaterialOverview overview;
    std::optional<NfpaRecord> nfpa;
    QString guideText;  // "Guide 125", "Guide 128P"
    QString guideId;
    // The row that opens the isolation distances; absent without figures.
    struct IsolationLink {
        QString title;
        QString tihLabel;  // "TIH Gas Produced: ...", or empty
    };
    std::optional<IsolationLink> isolation;
    QList<AttributeRow> attributes;  // in display order
    SourceLine detailSource;          // under the guide, isolation and attribute rows
    QJsonObject toJson() const;
};

// What choosing a regulation row opens.
enum class ShippingAction { None, PackagingSection, SpecialProvisions };

struct ShippingRow {
    QString key;
    QString caption;
    QString text;  // the value, or "None"
    ShippingAction action = ShippingAction::None;
    QString section;          // PackagingSection: "314" of 49 CFR 173.314
    QStringList provisions;   // SpecialProvisions: the codes
    QJsonObject toJson() const;
};

struct ShippingEntry {
    QString name;
    QString detail;  // packing group or International/Domestic, when several entries
    StringMap attributes;
    QList<ShippingRow> rows;  // in the regulation table's caption order
    QJsonObject toJson() const;
};

struct ShippingContent {
    MaterialOverview overview;
    QString incidentSummary;
    SourceLine incidentSource;
    QList<ShippingEntry> entries;
    // One entry named as the material shows its rows inline instead of a list.
    bool inlineEntry = false;
    SourceLine source;
    QJsonObject toJson() const;
};

struct ProtectionContent {
    // Whether the material has a protection tab at all.
    bool available = false;
    QString name, formula, cas, rtecs, copyText;
    SourceLine overviewSource;
    QList<AttributeRow> exposure;  // captions in numeric-aware order
    SourceLine exposureSource;
    struct Ghs {
        QStringList pictograms;  // image files
        QStringList statements;
        SourceLine source;
    };
    std::optional<Ghs> ghs;
    QJsonObject toJson() const;
};

enum class Units { Imperial = 0, Metric = 1 };

// Condition figures in one unit system, units appended ("100 ft").
struct SpillFigures {
    QString isolate, day, night;
};
struct ConditionFigures {
    SpillFigures small, large;
};
struct ContainerFigures {
    QString isolate;
    QStringList windCaptions, day, night;  // low, moderate, high wind
};

struct IsolationSection {
    enum class Kind { Condition, Container };
    Kind kind = Kind::Condition;
    QString title;
    bool hasLargeSpill = false;  // the record has large-spill figures
    // The container table stands in for the large-spill half of this condition.
    bool replacedByContainers = false;
    bool hideLargeSpill() const { return replacedByContainers || !hasLargeSpill; }
    ConditionFigures condition[2];  // by Units
    ContainerFigures container[2];  // by Units; empty for a malformed row
    QJsonObject toJson() const;
};

struct IsolationContent {
    // The material's own condition first, then the container table, then other conditions.
    QList<IsolationSection> sections;
    SourceLine source;
    QJsonObject toJson() const;
};

struct MaterialContent {
    SummaryContent summary;
    ShippingContent shipping;
    ProtectionContent protection;
    IsolationContent isolation;
    QStringList segmentImages;  // the tabs the detail offers
    QString backTitle;           // back button of screens pushed from the detail
    QJsonObject toJson() const;
};

// Runs the lookups in the order the detail triggers them: later ones read what
// earlier ones stored on the material.
SummaryContent summaryContent(QORModel& model, Material& material);
ShippingContent shippingContent(QORModel& model, Material& material);
ProtectionContent protectionContent(QORModel& model, Material& material);
IsolationContent isolationContent(QORModel& model, Material& material);
MaterialContent materialContent(QORModel& model, Material& material);

MaterialOverview materialOverview(QORModel& model, Material& material);
// The tabs of the detail: summary and shipping, and protection with chemistry data.
QStringList segmentImages(const ProtectionContent& protection);
// Attribute key -> caption of the exposure rows, in the order they show.
QList<QPair<QString, QString>> exposureLabels();
// Under shipping rows: the table, its stowage wording and section titles.
SourceLine shippingSource();
ShippingEntry shippingEntry(const StringMap& attributes, bool withDetail = false);
// "A1, B2" gives two codes; "A1,B2" one.
QStringList splitProvisions(const QString& text);
// The regulation rows' keys in caption order.
const QStringList& shippingKeys();
// Whether the one entry is the material itself, so its rows show inline.
bool hmtEntryIsSameAsMaterialName(const StringMap& entry, const Material& material);
QString backTitle(const Material* material);
// "TIH Gas Produced: ..." or "TIH Gases Produced: ..." from the material's
// hazard text; empty when the text is empty or just "X".
QString tihProducedText(const Material& material);
ConditionFigures conditionFigures(const IsolationRecord& record, Units units);
// Empty for a row without its fourteen figures.
ContainerFigures containerFigures(const QString& row, Units units);

} // namespace qor
