#pragma once
// The material list screen: the current filter's materials by section, the
// search as the user types, the category menu and the sort button.
#include "MaterialRef.h"
#include "model/MaterialSearch.h"
#include "model/NameSuggestions.h"

#include <QAbstractListModel>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace qor {

class Filter;

class MaterialListController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY listChanged)
    Q_PROPERTY(bool searching READ searching NOTIFY listChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int searchScope READ searchScope WRITE setSearchScope NOTIFY searchScopeChanged)
    Q_PROPERTY(QString placeholderText READ placeholderText NOTIFY searchScopeChanged)
    Q_PROPERTY(QStringList sectionIndex READ sectionIndex NOTIFY listChanged)
    Q_PROPERTY(int sortType READ sortType NOTIFY listChanged)
    Q_PROPERTY(QString sortImage READ sortImage NOTIFY listChanged)
    Q_PROPERTY(QVariantList categories READ categories CONSTANT)
    Q_PROPERTY(QString categoryAbbrev READ categoryAbbrev NOTIFY listChanged)
    Q_PROPERTY(int selectedRow READ selectedRow WRITE setSelectedRow NOTIFY selectedRowChanged)
    Q_PROPERTY(QString incidentsNote READ incidentsNote NOTIFY listChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY listChanged)
    // "Did you mean": close names offered only when a search finds nothing.
    Q_PROPERTY(QVariantList suggestions READ suggestions NOTIFY listChanged)
public:
    enum Roles {
        NameRole = Qt::UserRole + 1,
        UnIdRole,
        GuideIdRole,
        PlacardImageRole,
        IncidentsTextRole,
        SectionRole,      // the section title shown above the row
        SectionKeyRole,
        EnabledRole,
        MaterialRole,
    };
    Q_ENUM(Roles)

    static constexpr int kSearchDelayMs = 50;

    explicit MaterialListController(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const { return m_title; }
    bool loading() const;
    bool searching() const { return !m_searchText.isEmpty(); }
    QString searchText() const { return m_searchText; }
    // Every change schedules one search 0.05 s later, so a burst of keys runs one search.
    void setSearchText(const QString& text);
    int searchScope() const { return m_scope; }
    void setSearchScope(int scope);
    QString placeholderText() const;
    // Under the incidents sort: where the counts come from and that they are
    // partial; empty under the other sorts and while searching.
    QString incidentsNote() const;
    // What an empty list says ("0 found" and why); empty when there are rows.
    QString emptyText() const;
    QStringList sectionIndex() const;
    int sortType() const;
    QString sortImage() const;
    QVariantList categories() const;
    QString categoryAbbrev() const;
    int selectedRow() const { return m_selectedRow; }
    void setSelectedRow(int row);

    // Section titles: sort 3 "Guide 128 - Name", sort 0/1 the key, sort 2 none.
    Q_INVOKABLE QString sectionTitle(const QString& key) const;
    const MaterialList& searchResults() const { return m_search.results(); }
    const QString& lastSearchText() const { return m_search.lastSearchText(); }

    Q_INVOKABLE void searchNow();
    Q_INVOKABLE void doneSearch();
    Q_INVOKABLE void nextSort();
    Q_INVOKABLE void chooseCategory(const QString& abbrev);
    Q_INVOKABLE qor::MaterialRef materialAt(int row) const;
    // Maps with "name", "unId" and "guideId", best first.
    QVariantList suggestions() const;
    Q_INVOKABLE qor::MaterialRef suggestionAt(int index) const;
    // First row of the section with that key; -1 means "scroll to the very top".
    Q_INVOKABLE int rowForSectionKey(const QString& key) const;
    // The side index for a height of `capacity` entries: [{label, key}], a subset
    // with "•" between when the keys do not fit.
    Q_INVOKABLE QVariantList sideIndexEntries(int capacity) const;
    // The section key under a finger at `fraction` of the side index's height.
    Q_INVOKABLE QString sideIndexKeyAt(double fraction) const;
    // The row to scroll to for a material (matched by its NPG index, letters only); -1 when none.
    Q_INVOKABLE int rowForMaterial(const qor::MaterialRef& material) const;
    Q_INVOKABLE void reload();

signals:
    void titleChanged();
    void listChanged();
    void searchTextChanged();
    void searchScopeChanged();
    void selectedRowChanged();
    // The list should scroll to its top (filter changed, sort changed).
    void scrollToTop();

private:
    struct Row {
        MaterialPtr material;
        QString sectionKey;
        QString sectionTitle;
    };
    void onFilterChanged(const Filter* filter);
    void onLoadingStateChanged();
    void rebuildRows();
    void setTitle(const QString& title);

    QList<Row> m_rows;
    QString m_title;
    QString m_searchText;
    int m_scope = 0;
    int m_selectedRow = -1;
    QTimer m_searchTimer;
    MaterialSearch m_search;
    NameSuggestions m_suggester;
    MaterialList m_suggestions;
};

} // namespace qor
