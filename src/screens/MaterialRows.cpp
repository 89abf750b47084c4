#include "MaterialRows.h"

#include "history/HistoryManager.h"
#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

QString incidentsText(int count)
{
    return L::tr("%1 Incident%2").arg(count).arg(count == 1 ? QString() : QStringLiteral("s"));
}

bool isViewedMaterial(const Material& material)
{
    HistoryManager* history = HistoryManager::sharedInstance(false);
    return history && history->historyObjectForKey(material.unId) != nullptr;
}

} // namespace qor
