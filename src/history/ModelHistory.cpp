#include "model/QORModel.h"

namespace qor {

void QORModel::loadViewedHistory()
{
}

void QORModel::saveData()
{
}

} // namespace qor
