#include "MaterialListController.h"

#include "AppDelegate.h"
#include "SideIndex.h"

#include "MaterialRows.h"
#include "model/PackManifest.h"
#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

namespace {
// Shown as the side index while loading; "J" is deliberately absent.
const QStringList kLoadingIndex = { "A", "B", "C", "D", "E", "F", "G", "H", "I", "K", "L", "M", "N",
                                    "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z" };
constexpr int kLoadingSections = 26;
} // namespace

MaterialListController::MaterialListController(QObject* parent)
    : QAbstractListModel(parent), m_search([](const Material& m) { return isViewedMaterial(m); })
{
    m_searchTimer.setSingleShot(true);
    m_searchTimer.setInterval(kSearchDelayMs);
    connect(&m_searchTimer, &QTimer::timeout, this, &MaterialListController::searchNow);
    QORModel* model = QORModel::sharedInstance();
    connect(model, &QORModel::filterChanged, this, &MaterialListController::onFilterChanged);
    connect(model, &QORModel::modelLoadingStateChanged, this, &MaterialListController::onLoadingStateChanged);
    // Guide sections are titled with the guides' names, which may arrive after the rows.
    connect(model, &QORModel::guidesChanged, this, [this] {
        if (!searching() && sortType() == SortGuide)
            rebuildRows();
    });
    // An index row of Reference puts the image of its order on the sort button.
    connect(QORAppDelegate::sharedInstance(), &QORAppDelegate::sortImageRequested, this, [this](const QString& image) {
        QORModel::sharedInstance()->setSortImage(image);
        emit listChanged();
    });
    m_title = model->currentFilter() ? model->currentFilter()->getFilterText() : L::tr(" Loading...");
    rebuildRows();
}

bool MaterialListController::loading() const
{
    return QORModel::sharedInstance()->isLoading();
}

int MaterialListController::sortType() const
{
    const Filter* f = QORModel::sharedInstance()->currentFilter();
    return f ? f->sortType : 0;
}

QString MaterialListController::sortImage() const
{
    const Filter* f = QORModel::sharedInstance()->currentFilter();
    return f ? f->sortImage : QORModel::sharedInstance()->getDefaultSortImage();
}

QString MaterialListController::categoryAbbrev() const
{
    const Filter* f = QORModel::sharedInstance()->currentFilter();
    return f ? f->categoryAbbrev : QString();
}

QVariantList MaterialListController::categories() const
{
    QVariantList out;
    for (const auto& c : CategoryManager::sharedInstance()->orderedCategories())
        out.append(QVariantMap{ { QStringLiteral("abbrev"), c->abbrev }, { QStringLiteral("name"), c->name } });
    return out;
}

QString MaterialListController::placeholderText() const
{
    return m_scope == 1 ? L::tr("Search by UN Number") : L::tr("Search by Name or UN Number");
}

QStringList MaterialListController::sectionIndex() const
{
    if (searching())
        return {};
    QORModel* model = QORModel::sharedInstance();
    if (model->isLoading())
        return kLoadingIndex;
    return model->getSections();
}

void MaterialListController::setTitle(const QString& title)
{
    if (title == m_title)
        return;
    m_title = title;
    emit titleChanged();
}

void MaterialListController::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    emit searchTextChanged();
    m_searchTimer.stop();
    if (text.isEmpty()) {
        const Filter* f = QORModel::sharedInstance()->currentFilter();
        setTitle(f ? f->getFilterText() : QString());
        m_search.reset();
        m_suggestions.clear();
        rebuildRows();
        return;
    }
    m_searchTimer.start();
}

void MaterialListController::setSearchScope(int scope)
{
    if (scope == m_scope)
        return;
    m_scope = scope;
    emit searchScopeChanged();
    setSearchText(QString());
}

void MaterialListController::searchNow()
{
    m_searchTimer.stop();
    if (m_searchText.isEmpty()) {
        rebuildRows();
        return;
    }
    QORModel* model = QORModel::sharedInstance();
    if (!m_search.search(m_searchText, model->currentFilter(), model->materials(), sortType()))
        return;  // the same text as last time: the results stand
    // Names are not searched in the UN-number sort, so not suggested there either.
    m_suggestions = m_search.results().isEmpty() && sortType() != 1
        ? m_suggester.suggestMaterials(m_searchText, model->materials())
        : MaterialList();
    setTitle(L::tr("%1 %2").arg(m_search.results().size()).arg(L::tr("search results")));
    rebuildRows();
}

QVariantList MaterialListController::suggestions() const
{
    QVariantList out;
    if (!searching())
        return out;
    for (const auto& m : m_suggestions)
        out.append(QVariantMap{ { QStringLiteral("name"), m->name }, { QStringLiteral("unId"), m->unId }, { QStringLiteral("guideId"), m->guideId } });
    return out;
}

MaterialRef MaterialListController::suggestionAt(int index) const
{
    if (!searching() || index < 0 || index >= m_suggestions.size())
        return {};
    return MaterialRef(m_suggestions.at(index));
}

void MaterialListController::doneSearch()
{
    setSearchText(QString());
    const Filter* f = QORModel::sharedInstance()->currentFilter();
    setTitle(f ? f->getFilterText() : QString());
}

void MaterialListController::nextSort()
{
    QORModel* model = QORModel::sharedInstance();
    if (!model->currentFilter())
        return;
    model->nextSortType();
    rebuildRows();
    emit scrollToTop();
}

void MaterialListController::chooseCategory(const QString& abbrev)
{
    QORModel::sharedInstance()->changeFilter(abbrev);
}

void MaterialListController::onFilterChanged(const Filter* filter)
{
    setTitle(filter ? L::tr(" %1").arg(filter->getFilterText()) : L::tr(" Loading..."));
    setSelectedRow(-1);
    m_search.reset();
    m_suggestions.clear();
    if (searching())
        searchNow();
    else
        rebuildRows();
    emit scrollToTop();
}

void MaterialListController::onLoadingStateChanged()
{
    QORModel* model = QORModel::sharedInstance();
    if (model->currentFilter())
        setTitle(model->currentFilter()->getFilterText());
    model->postFilterChanged();
    setSelectedRow(-1);
    rebuildRows();
}

QString MaterialListController::sectionTitle(const QString& key) const
{
    QORModel* model = QORModel::sharedInstance();
    if (model->isLoading())
        return QStringLiteral("A");
    switch (sortType()) {
    case SortGuide:
        for (const auto& g : model->guides())
            if (g->guideId == key)
                return L::tr("%1 %2 - %3").arg(L::tr("Guide"), key, capitalized(g->name));
        return key;
    case SortIncidents:
        return QString();
    default:
        return key;
    }
}

void MaterialListController::rebuildRows()
{
    beginResetModel();
    m_rows.clear();
    QORModel* model = QORModel::sharedInstance();
    if (searching()) {
        for (const auto& m : m_search.results())
            m_rows.append({ m, QString(), QString() });
    } else if (model->isLoading()) {
        const MaterialList& placeholder = model->getLoadingMaterials();
        for (int s = 0; s < kLoadingSections; ++s)
            for (const auto& m : placeholder)
                m_rows.append({ m, QStringLiteral("A%1").arg(s), QStringLiteral("A") });
    } else if (sortType() == SortIncidents) {
        for (const auto& m : model->materialsForSection(0))
            m_rows.append({ m, QString(), QString() });
    } else {
        const QStringList keys = model->getSections();
        for (int s = 0; s < keys.size(); ++s) {
            const QString title = sectionTitle(keys.at(s));
            for (const auto& m : model->materialsForSection(s))
                m_rows.append({ m, keys.at(s), title });
        }
    }
    endResetModel();
    emit listChanged();
}

void MaterialListController::reload()
{
    rebuildRows();
}

void MaterialListController::setSelectedRow(int row)
{
    if (row == m_selectedRow)
        return;
    const int old = m_selectedRow;
    m_selectedRow = row;
    if (old >= 0 && old < m_rows.size())
        emit dataChanged(index(old), index(old));
    if (row >= 0 && row < m_rows.size())
        emit dataChanged(index(row), index(row));
    emit selectedRowChanged();
}

QString MaterialListController::incidentsNote() const
{
    if (searching() || sortType() != SortIncidents)
        return QString();
    const QString note = PackManifest::activePartialNote(QStringLiteral("incidents"));
    const QString source = PackManifest::sourceLine({ QStringLiteral("incidents") });
    return note.isEmpty() ? source : QStringLiteral("%1\n%2").arg(note, source);
}

QString MaterialListController::emptyText() const
{
    if (!m_rows.isEmpty() || loading())
        return QString();
    if (searching())
        return L::tr("0 found");
    return L::tr("0 found: this data pack has no materials in %1").arg(m_title.trimmed());
}

int MaterialListController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant MaterialListController::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row& row = m_rows.at(index.row());
    Material& m = *row.material;
    switch (role) {
    case NameRole:
        return m.name;
    case UnIdRole:
        return m.unId;
    case GuideIdRole:
        return m.guideId;
    case PlacardImageRole:
        return placardImageForMaterial(*QORModel::sharedInstance(), m);
    case IncidentsTextRole:
        return !searching() && sortType() == SortIncidents ? incidentsText(m.numIncidents()) : QString();
    case SectionRole:
        return row.sectionTitle;
    case SectionKeyRole:
        return row.sectionKey;
    case EnabledRole:
        return !loading();
    case MaterialRole:
        return QVariant::fromValue(MaterialRef(row.material));
    default:
        return {};
    }
}

QHash<int, QByteArray> MaterialListController::roleNames() const
{
    return { { NameRole, "name" },           { UnIdRole, "unId" },
             { GuideIdRole, "guideId" },     { PlacardImageRole, "placardImage" },
             { IncidentsTextRole, "incidentsText" }, { SectionRole, "section" },
             { SectionKeyRole, "sectionKey" }, { EnabledRole, "rowEnabled" },
             { MaterialRole, "material" } };
}

MaterialRef MaterialListController::materialAt(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return {};
    return MaterialRef(m_rows.at(row).material);
}

int MaterialListController::rowForSectionKey(const QString& key) const
{
    if (key == QLatin1String("A") || key == QLatin1String("111") || key == QLatin1String("0") || key == QLatin1String("search"))
        return -1;
    for (int r = 0; r < m_rows.size(); ++r)
        if (m_rows.at(r).sectionKey == key)
            return r;
    return -1;
}

QVariantList MaterialListController::sideIndexEntries(int capacity) const
{
    const QStringList keys = sectionIndex();
    QVariantList entries;
    for (const SideIndexEntry& entry : condenseSideIndex(keys, capacity))
        entries.append(QVariantMap{ { QStringLiteral("label"), entry.label }, { QStringLiteral("key"), keys.at(entry.keyIndex) } });
    return entries;
}

QString MaterialListController::sideIndexKeyAt(double fraction) const
{
    const QStringList keys = sectionIndex();
    const int index = qor::sideIndexKeyAt(int(keys.size()), fraction);
    return index < 0 ? QString() : keys.at(index);
}

int MaterialListController::rowForMaterial(const MaterialRef& ref) const
{
    if (!ref.ptr || ref.ptr->name.isEmpty())
        return -1;
    const QString first = ref.ptr->name.left(1);
    for (int r = 0; r < m_rows.size(); ++r) {
        const Row& row = m_rows.at(r);
        if (row.sectionKey.compare(first, Qt::CaseInsensitive) == 0 && row.material->npgIndex == ref.ptr->npgIndex)
            return r;
    }
    return -1;
}

} // namespace qor
