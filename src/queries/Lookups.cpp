#include "model/QORModel.h"

// Per-material knowledge lookups; answered empty until the queries land.
namespace qor {

QString QORModel::incidentsSummaryForMaterial(Material&) { return QString(); }
void QORModel::addCount(QHash<QString, int>&, const QString&, const QString&) {}
StringMap QORModel::getNPGCasNumbersForMaterial(Material&) { return {}; }
StringMap QORModel::getNPGAttributesForMaterial(Material&) { return {}; }
StringMap QORModel::getCameoAttributesForMaterial(Material&) { return {}; }
StringMap QORModel::getWiserAttributesForMaterial(Material&) { return {}; }
StringMap QORModel::getGHSAttributesForMaterial(Material&) { return {}; }
std::optional<StringMap> QORModel::nfpaForMaterial(Material&) { return std::nullopt; }
QString QORModel::unicodeFormula(const QString&) const { return QString(); }
QList<StringMap> QORModel::getHmtEntriesForMaterial(Material&) { return {}; }
StringMap QORModel::getHmtAttributesForMaterial(Material&) { return {}; }
QString QORModel::titleForHMTRegSection(const QString&) { return QString(); }
QString QORModel::vesselStowageDescForCategory(const QString& category) { return category; }
QString QORModel::placardNameForMaterial(Material&) { return QStringLiteral("blank"); }
QString QORModel::getHTMLTextForCFRSection(const std::optional<QString>&, const QString&) { return QString(); }

} // namespace qor
