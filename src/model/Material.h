#pragma once
#include "OrderedMap.h"

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

namespace qor {

using StringMap = QMap<QString, QString>;
// One isolation distance record: "Condition" plus the twelve distance keys.
using IsolationRecord = QMap<QString, QString>;
// Condition name -> record, in database row order.
using IsolationDistances = OrderedMap<IsolationRecord>;

// A further resource link shown for a material (safety card, pocket guide).
struct OtherResource {
    QString text;
    QString url;
    QString type;
    OtherResource() = default;
    OtherResource(const QString& t, const QString& u, const QString& ty = QString()) : text(t), url(u), type(ty) {}
    bool operator==(const OtherResource&) const = default;
};

// One named substance under a UN number, with the caches of its lookups.
class Material {
public:
    int npgIndex = 0;
    QString name;
    QString guideId;
    QString unId;
    QString casNo;
    QString rtecNo;
    QString placardId;
    std::optional<QString> incidentsSummary;
    QList<OtherResource> otherResources;
    // Hazard captions built from the materials file; "mayPolymerize" is always
    // the boolean false, and "PlacardName" caches the placard lookup.
    QVariantMap qorAttributes;
    std::optional<StringMap> cameoAttributes;
    std::optional<StringMap> npgAttributes;
    std::optional<StringMap> ghsAttributes;
    std::optional<StringMap> hmtAttributes;
    std::optional<StringMap> wiserAttributes;
    std::optional<QList<StringMap>> hmtEntries;
    std::optional<StringMap> casNumbers;
    std::optional<QString> toxicInhalationHazard;
    std::optional<QString> waterReactive;
    std::optional<QString> chemicalWarefareAgent;
    int viewCount = 0;
    QDateTime lastViewDate;
    bool watchFlag = false;
    bool mayPolymerize = false;
    bool methLab = false;
    std::optional<IsolationDistances> isolationDistances;

    // Incident count from the shared model, with the N.O.S. rules.
    int numIncidents() const;
    // Whether the incidents reported under the UN number are this
    // material's: not without a number, and under 1760, 2810 and 1993,
    // which many generic names share, only for the N.O.S. name that stands
    // for the number, so the others do not repeat its count.
    bool carriesIncidentsOfItsNumber() const;
    // The same given the number read from a non-empty unId.
    bool carriesIncidentsOfNumber(int number) const;
    // CAMEO, then NPG, then GHS attributes; "USE" and "CameoHazardText" fall
    // back to the WISER texts. Runs the lookups on the shared model.
    std::optional<QString> attributeForKey(const QString& key);
    StringMap protectionProperties();
    StringMap firstAidProperties();
    StringMap chemicalProperties();

    // Drops the caches that are cheap to fetch again.
    void releaseUnneededMemory();

    // True when the file's mark says so (present and non-empty).
    bool isTIH() const { return toxicInhalationHazard.has_value(); }
};

using MaterialPtr = std::shared_ptr<Material>;
using MaterialList = QList<MaterialPtr>;
} // namespace qor

// A shared pointer moves in memory as its bytes: lists of thousands of
// materials then grow and copy without running each pointer's move.
Q_DECLARE_TYPEINFO(qor::MaterialPtr, Q_RELOCATABLE_TYPE);

namespace qor {

// Response guide: number and title.
class Guide {
public:
    Guide() = default;
    Guide(const QString& id, const QString& n) : guideId(id), name(n) {}
    QString guideId;
    QString name;
};
using GuidePtr = std::shared_ptr<Guide>;

} // namespace qor
