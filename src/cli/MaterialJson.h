#pragma once
#include "model/Material.h"

#include <QJsonObject>
#include <functional>

namespace qor {
class QORModel;
}

namespace qor::cli {

// Everything known of one material, keyed by the model's own names. The
// lookups run in the order the detail screen triggers them, because later
// ones depend on what earlier ones stored on the material.
QJsonObject materialJson(QORModel& model, Material& material);
QJsonObject stringMapJson(const StringMap& map);
// Materials whose UN id equals arg, or else whose name equals it ignoring case.
MaterialList findMaterials(QORModel& model, const QString& arg);
// Whether the user has viewed a material (from the history in --data-dir).
std::function<bool(const Material&)> viewedPredicate();
// Creates the shared model and loads everything synchronously.
QORModel& loadedModel();

} // namespace qor::cli
