#pragma once
// Row texts shared by every list that shows materials.
#include "model/Material.h"
#include "model/QORModel.h"  // placardImageForMaterial

#include <QString>

namespace qor {

// "%d Incident%@": "1 Incident", "3 Incidents".
QString incidentsText(int count);
// Whether the user has viewed the material before (it is in the history).
bool isViewedMaterial(const Material& material);

} // namespace qor
