#include "FilterController.h"

#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

FilterController::FilterController(QObject* parent) : QObject(parent)
{
}

bool FilterController::incidentsOnly() const
{
    const Filter* f = QORModel::sharedInstance()->currentFilter();
    return f && f->hasIncidents;
}

void FilterController::setIncidentsOnly(bool on)
{
    QORModel* model = QORModel::sharedInstance();
    const Filter* f = model->currentFilter();
    if (!f || f->hasIncidents == on)
        return;
    model->setHasIncidents(on);
    model->changeSortType(on ? SortIncidents : SortAlpha);
    emit incidentsOnlyChanged();
}

void FilterController::refresh()
{
    emit incidentsOnlyChanged();
}

void FilterController::done()
{
    QORModel* model = QORModel::sharedInstance();
    model->invalidateCurrentFilter();
    model->postFilterChanged();
}

void FilterController::cancel()
{
    QORModel::sharedInstance()->postFilterChangeCancelled();
}

CategoriesController::CategoriesController(QObject* parent) : QAbstractListModel(parent)
{
    connect(QORModel::sharedInstance(), &QORModel::filterChanged, this, &CategoriesController::reload);
}

int CategoriesController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(CategoryManager::sharedInstance()->orderedCategories().size());
}

QVariant CategoriesController::data(const QModelIndex& index, int role) const
{
    const auto cats = CategoryManager::sharedInstance()->orderedCategories();
    if (!index.isValid() || index.row() >= cats.size())
        return {};
    const auto& cat = cats.at(index.row());
    QORModel* model = QORModel::sharedInstance();
    const bool current = model->currentFilter() && model->currentFilter()->categoryAbbrev == cat->abbrev;
    switch (role) {
    case TextRole:
        if (current)
            return L::tr("%1 (%2 %3)").arg(cat->name).arg(model->getMaterialsUsingFilter(*model->currentFilter()).size()).arg(L::tr("found"));
        return cat->name;
    case CheckedRole:
        return current;
    case AbbrevRole:
        return cat->abbrev;
    default:
        return {};
    }
}

QHash<int, QByteArray> CategoriesController::roleNames() const
{
    return { { TextRole, "categoryText" }, { CheckedRole, "isCurrent" }, { AbbrevRole, "abbrev" } };
}

void CategoriesController::select(int row)
{
    const auto cats = CategoryManager::sharedInstance()->orderedCategories();
    QORModel* model = QORModel::sharedInstance();
    if (row < 0 || row >= cats.size() || !model->currentFilter())
        return;
    // The first key that maps to the chosen category.
    const auto& all = CategoryManager::sharedInstance()->categories();
    for (auto it = all.cbegin(); it != all.cend(); ++it)
        if (it.value() == cats.at(row)) {
            model->setCategoryAbbrev(it.key());
            break;
        }
    reload();
}

void CategoriesController::reload()
{
    beginResetModel();
    endResetModel();
}

} // namespace qor
