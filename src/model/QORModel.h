#pragma once
#include "Filter.h"
#include "Material.h"
#include "Sqlite.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QRecursiveMutex>
#include <QStringList>
#include <QTimer>

namespace qor {

// The one shared data model: opens the three databases, holds the materials,
// guides, filters and fixed tables, and answers every per-material lookup.
class QORModel : public QObject {
    Q_OBJECT
public:
    // Notification names; delivered as the signals below.
    static constexpr const char* kModelLoadingStateChanged = "ModelLoadingStateChanged";
    static constexpr const char* kFilterChanged = "filterchanged";

    // The shared model, created on first call (unless create is false).
    static QORModel* sharedInstance(bool create = true);

    // Records itself as the shared instance before building anything, opens the
    // databases (aborting when one cannot be opened) and schedules loadData.
    explicit QORModel(QObject* parent = nullptr);
    ~QORModel() override;

    // --- start-up and loading ---
    void loadData();
    bool isLoading() const { return m_isLoading; }
    void releaseUnneededMemory();
    // Writes the user's data (the viewed history).
    void saveData();
    // Binary property list into Documents/filename, atomically; false when
    // the value cannot be serialised or written (nothing is reported).
    bool serialize(const QVariant& value, const QString& filename);

    // --- fixed tables ---
    // The six standing filters by category letter.
    const QMap<QString, FilterPtr>& filters() const { return m_filters; }
    FilterPtr allFilter, methFilter, tihFilter, tihCommonFilter, polyFilter, waterReactiveFilter;
    FilterPtr chemicalWarfareFilter;  // declared, never assigned by start-up
    QMap<QString, QString> packageGroupTextList;
    QMap<QString, QString> classDescriptions;
    // placard key -> PDF resource name; "blank" deliberately shows placard 9
    QMap<QString, QString> placards;
    QMap<QString, QString> ghsPictograms;
    QStringList subscriptChars;
    QStringList infoPages;
    bool shouldShowCelsius() const { return m_showCelsius; }
    void setShowCelsius(bool v) { m_showCelsius = v; }
    bool shouldShowFahrenheit() const { return m_showFahrenheit; }
    void setShowFahrenheit(bool v) { m_showFahrenheit = v; }

    // --- materials ---
    // Every material of the materials file, in file order.
    const MaterialList& materials() const { return m_materials; }
    QHash<QString, QString> descriptions;
    void loadMaterials();
    const QHash<QString, int>& getMaterialsWithIncidents();
    void loadWikipediaDescriptions();
    std::optional<QString> descriptionForMaterial(Material& material);
    QString classForMaterial(const Material& material);
    std::optional<QString> classDescriptionForMaterial(const Material& material);

    // --- guides ---
    const QList<GuidePtr>& guides() const { return m_guides; }
    // Replaces the guides with the file's; announced by guidesChanged.
    void loadGuideList();
    GuidePtr dotGuideForMaterial(const Material* material) const;

    // --- isolation distances ---
    const IsolationDistances& isolationDistancesForMaterial(Material& material);
    // Where one UN number's names carry different figures, each has its own
    // condition: the zone its name ends in ("Inhalation Hazard Zone A") or
    // the name itself, perhaps followed by " - " and the spill condition.
    // True when the condition is this material's own (case aside, as
    // material names are shown capitalized).
    static bool isolationConditionNamesMaterial(const QString& condition, const QString& materialName);
    // The keys of the material's distances, its own conditions first and
    // otherwise in table order, so the figures for the name the responder
    // chose come first.
    QStringList isolationConditionsForMaterial(Material& material);
    // Large spills by transport container for the six gases of the
    // guidebook's Table 3: container name -> fourteen comma-separated figures
    // (isolate m, ft; day low, moderate, high wind and night low, moderate,
    // high wind, each km then mi). From the pack's large_spill_distances
    // table; a pack without its rows gets the built-in ones. A new map per call.
    OrderedMap<QString> largeSpillIsoDistancesForMaterial(const Material& material);
    static OrderedMap<QString> builtInLargeSpillIsoDistances(const QString& unId);

    // --- filters, sections, sort orders ---
    // The filter the material list shows; null after an unknown category.
    const Filter* currentFilter() const { return m_currentFilter.get(); }
    // Changes to the current filter; each does nothing without one. None
    // posts "filterchanged": the screens making them decide when it is due.
    void nextSortType();
    void changeSortType(int sort);
    void setSortImage(const QString& image);
    void setHasIncidents(bool on);
    // Changes the letter of the current filter object, not which filter is current.
    void setCategoryAbbrev(const QString& abbrev);
    // Drops the current filter's lists, so they are rebuilt on next use.
    void invalidateCurrentFilter();
    // Posts "filterchanged" with the current filter, or with none.
    void postFilterChanged();
    void postFilterChangeCancelled();
    void changeFilter(const QString& abbrev);
    void changeFilter(const QString& abbrev, int sort);
    MaterialList getMaterialsUsingFilter(const Filter& filter);
    void loadFilterWithData(Filter& filter);
    MaterialList getMaterials();
    int getNumMaterials();
    QStringList getSections();
    MaterialList materialsForSection(int section);
    MaterialPtr materialAtIndex(int section, int row);
    const MaterialList& getLoadingMaterials();
    QString getDefaultSortImage() const;

    // --- per-material knowledge (incidents, chemistry, shipping, regulations) ---
    QString incidentsSummaryForMaterial(Material& material);
    static void addCount(QHash<QString, int>& counts, const QString& amountToAdd, const QString& key);
    StringMap getNPGCasNumbersForMaterial(Material& material);
    StringMap getNPGAttributesForMaterial(Material& material);
    StringMap getCameoAttributesForMaterial(Material& material);
    StringMap getWiserAttributesForMaterial(Material& material);
    StringMap getGHSAttributesForMaterial(Material& material);
    std::optional<StringMap> nfpaForMaterial(Material& material);
    QString unicodeFormula(const QString& formula) const;
    QList<StringMap> getHmtEntriesForMaterial(Material& material);
    StringMap getHmtAttributesForMaterial(Material& material);
    QString titleForHMTRegSection(const QString& section);
    QString vesselStowageDescForCategory(const QString& category);
    QString placardNameForMaterial(Material& material);
    // An ID the guidebook's index leaves out (explosives are listed only by
    // division) but the shipping table has rows for: a new material named by
    // its proper shipping names, carrying the guide of the index's unnumbered
    // row for its explosives division, if any. Null unless unId is four
    // digits with shipping rows. Not added to materials.
    MaterialPtr shippingTableMaterial(const QString& unId);
    // The index's row without a UN number whose name covers the division of
    // an explosives class ("1.4" or "1.4S" -> "Explosives, division 1.4 or
    // 1.6"); null for other classes or when no row names the division.
    MaterialPtr guidebookRowForClass(const QString& hazardClass) const;
    // section may be absent (std::nullopt): the node id is used instead.
    QString getHTMLTextForCFRSection(const std::optional<QString>& section, const QString& node);

    // --- databases, held for the life of the process ---
    const Database& incidentsDatabase() const { return m_incidentsDb; }
    const Database& regulationsDatabase() const { return m_cfrDb; }
    const Database& chemistryDatabase() const { return m_npgDb; }

    QRecursiveMutex& lock() { return m_lock; }

signals:
    // "ModelLoadingStateChanged"
    void modelLoadingStateChanged();
    // "filterchanged"; the filter is null when there is none
    void filterChanged(const qor::Filter* filter);
    // loadGuideList replaced the guides.
    void guidesChanged();

private:
    void buildFixedTables();
    void loadViewedHistory();
    void logMemory(const char* where) const;

    QMap<QString, FilterPtr> m_filters;
    FilterPtr m_currentFilter;
    MaterialList m_materials;
    QList<GuidePtr> m_guides;
    bool m_isLoading = true;
    bool m_showCelsius = false;
    bool m_showFahrenheit = false;
    Database m_incidentsDb;
    Database m_cfrDb;
    Database m_npgDb;
    std::optional<QHash<QString, int>> m_materialsWithIncidents;
    // The same counts in a flat table of short UN numbers, made with them.
    class IncidentCounts;
    std::unique_ptr<IncidentCounts> m_incidentCounts;
    // Each material's sort keys, by its place in materials(): read with the
    // material, while it is at hand.
    struct SortKeys {
        int guide = 0;
        int incidents = 0;
        int unId = 0;
        int unIdBucket = 0;  // its hundred of UN numbers (its section), or kNoId
        static constexpr int kNoId = -2;
    };
    std::vector<SortKeys> m_sortKeys;
    // Every material's place in the three sorted orders, shared by all
    // filters: a filter's stable order is the shared one restricted to its
    // members, since its members keep the materials' order.
    struct SharedOrders {
        qsizetype count = 0;  // of materials
        std::vector<int> byGuide, byIncidents, byUnId;
    };
    std::optional<SharedOrders> m_sharedOrders;
    const SharedOrders& sharedOrders();
    void fillFilter(Filter& filter);
    // loadMaterials, adding the new materials to the all-materials filter's
    // sections only when asked (loadData fills that filter afresh).
    void readMaterials(bool withAllSections);
    std::optional<MaterialList> m_loadingMaterials;
    std::optional<bool> m_packHasLargeSpillRows;
    QRecursiveMutex m_lock;
    QTimer m_loadTimer;
};

// The placard artwork of a material: its placard id, or when that is blank
// the placard the chemistry database names for it. A PDF resource name.
QString placardImageForMaterial(QORModel& model, Material& material);

} // namespace qor
