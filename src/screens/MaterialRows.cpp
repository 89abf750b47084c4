#include "MaterialRows.h"

#include "history/HistoryManager.h"
#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

QString placardImageForMaterial(QORModel& model, Material& material)
{
    QString key = material.placardId.trimmed();
    if (key.isEmpty())
        key = model.placardNameForMaterial(material);
    return model.placards.value(key, key + QStringLiteral(".pdf"));
}

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
