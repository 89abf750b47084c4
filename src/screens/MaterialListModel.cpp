#include "MaterialListModel.h"

#include "model/QORModel.h"

namespace qor {

MaterialListModel::MaterialListModel(QObject* parent) : QAbstractListModel(parent)
{
    QORModel* model = QORModel::sharedInstance();
    connect(model, &QORModel::modelLoadingStateChanged, this, &MaterialListModel::reload);
    connect(model, &QORModel::filterChanged, this, &MaterialListModel::reload);
    reload();
}

void MaterialListModel::reload()
{
    QORModel* model = QORModel::sharedInstance();
    beginResetModel();
    m_rows.clear();
    if (model->isLoading()) {
        for (const auto& m : model->getLoadingMaterials())
            m_rows.append({ m, QStringLiteral("A") });
    } else {
        const QStringList sections = model->getSections();
        for (int s = 0; s < sections.size(); ++s)
            for (const auto& m : model->materialsForSection(s))
                m_rows.append({ m, sections.at(s) });
    }
    endResetModel();
    m_title = model->currentFilter ? model->currentFilter->getFilterText() : QString();
    emit titleChanged();
}

int MaterialListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant MaterialListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case NameRole:
        return row.material->name;
    case UnIdRole:
        return row.material->unId;
    case GuideIdRole:
        return row.material->guideId;
    case SectionRole:
        return row.section;
    default:
        return {};
    }
}

QHash<int, QByteArray> MaterialListModel::roleNames() const
{
    return { { NameRole, "name" }, { UnIdRole, "unId" }, { GuideIdRole, "guideId" }, { SectionRole, "section" } };
}

} // namespace qor
