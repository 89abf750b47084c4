#pragma once
// Row texts shared by every list that shows materials.
#include "model/Material.h"

#include <QString>

namespace qor {

class QORModel;

// The placard artwork of a material: its placard id, or when that is blank
// the placard the chemistry database names for it. A PDF resource name.
QString placardImageForMaterial(QORModel& model, Material& material);
// "%d Incident%@": "1 Incident", "3 Incidents".
QString incidentsText(int count);
// Whether the user has viewed the material before (it is in the history).
bool isViewedMaterial(const Material& material);

} // namespace qor
