#pragma once
// The archived forms of the material record and of the legacy history.
//
// A Material archives "npgIndex", "name", "unId", "guideId", "casNo", "rtecNo"
// and "tih" (its toxic-inhalation mark); nothing else. A ViewedMaterial is a
// Material that also archives "viewCount". The legacy history root,
// MaterialViewedHistory, keeps its ViewedMaterials under "history" in a
// dictionary keyed by UN id.
#include "KeyedArchive.h"
#include "model/Material.h"

#include <QMap>
#include <optional>

namespace qor {

ArchivedObject archiveMaterial(const Material& material);
ArchivedObject archiveViewedMaterial(const Material& material);
// Fills the archived fields of a material; absent texts stay null.
void unarchiveMaterial(const ArchivedObject& archived, Material& material);

class MaterialViewedHistory {
public:
    // UN id -> viewed material (a Material with its viewCount).
    QMap<QString, MaterialPtr> materials;

    MaterialList history() const { return materials.values(); }

    ArchivedObject toArchive() const;
    // None when the value is not a MaterialViewedHistory. Entries that are not
    // materials are skipped.
    static std::optional<MaterialViewedHistory> fromArchive(const QVariant& root);
};

} // namespace qor
