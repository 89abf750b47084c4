#include "history/HistoryManager.h"
#include "model/QORModel.h"

namespace qor {

void QORModel::loadViewedHistory()
{
    HistoryManager* history = HistoryManager::sharedInstance();
    history->loadHistory();
    history->resolveMaterials(m_materials);
}

void QORModel::saveData()
{
    HistoryManager::sharedInstance()->saveHistory();
}

bool QORModel::serialize(const QVariant& value, const QString& filename)
{
    return serializePropertyList(value, homeFilePath(QStringLiteral("Documents"), filename));
}

} // namespace qor
