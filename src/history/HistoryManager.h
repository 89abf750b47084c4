#pragma once
// The viewed-materials history: one entry per UN id with its view count and
// last view date, kept in "viewedHistory.dat" in the Library folder.
#include "model/Material.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QVariantMap>
#include <memory>
#include <optional>

namespace qor {

// One history entry. `properties` is what is saved; `material` is the viewed
// material, or for an entry read from disk a partial one made from the
// properties.
class HistoryObject {
public:
    HistoryObject() = default;
    // A new entry for a first view: one view, dated now.
    explicit HistoryObject(const MaterialPtr& material);
    // An entry read back from a saved dictionary, keeping only the keys an
    // entry has, each with its own type; *dropped says whether anything else
    // was left out. None without a UN id.
    static std::shared_ptr<HistoryObject> fromProperties(const QVariantMap& properties, bool* dropped = nullptr);

    QVariantMap properties;
    MaterialPtr material;
    // True while `material` is the partial one made from the properties.
    bool partialMaterial = false;

    QString unId() const { return properties.value(QStringLiteral("unId")).toString(); }
    QString name() const { return properties.value(QStringLiteral("name")).toString(); }
    int viewCount() const { return properties.value(QStringLiteral("viewCount")).toInt(); }
    QDateTime lastViewDate() const { return properties.value(QStringLiteral("lastViewDate")).toDateTime(); }
    bool watchFlag() const { return properties.value(QStringLiteral("watchFlag")).toBool(); }
};
using HistoryObjectPtr = std::shared_ptr<HistoryObject>;
using HistoryList = QList<HistoryObjectPtr>;

class ViewedHistory {
public:
    static constexpr int kListLimit = 12;

    // UN id -> entry; at most one entry per UN id.
    QHash<QString, HistoryObjectPtr> objects;
    std::optional<HistoryList> alphaSortCache;
    bool dirty = false;  // kept for the record; nothing reads it

    void clearHistory();
    HistoryList history() const;
    void clearSortCaches() { alphaSortCache.reset(); }
    // By material name, literal and case-sensitive; cached until the next change.
    HistoryList allAlpha();
    // Newest first / most viewed first, at most 12; ties go by name.
    HistoryList recent() const;
    HistoryList mostViewed() const;
    // Entries marked with "watchFlag", by name.
    HistoryList watching() const;
};

class HistoryManager {
public:
    static constexpr const char* kHistoryFileName = "viewedHistory.dat";
    static constexpr const char* kLegacyFileName = "materialViewedHistory.dat";
    // Where an unreadable history file is kept instead of being overwritten.
    static constexpr const char* kUnreadableSuffix = ".unreadable";

    // The shared manager, created on first call (unless create is false).
    static HistoryManager* sharedInstance(bool create = true);

    HistoryManager();
    ~HistoryManager();

    ViewedHistory& viewedHistory() { return m_viewedHistory; }

    void addToHistory(const MaterialPtr& material);
    void addToHistory(const MaterialPtr& material, const QDateTime& lastViewDate);
    HistoryObjectPtr historyObjectForKey(const QString& unId) const;

    // Reads the history file; without one, imports the legacy archive once.
    void loadHistory();
    // Gives entries read from disk the pack's own material with the same UN
    // id and name; the others keep their partial material.
    void resolveMaterials(const MaterialList& materials);
    void loadVersion1History();
    // Writes the history file. False when nothing could be written; that is
    // not reported to the user, and the previous file stays as it was.
    // Nothing is written before loadHistory has run.
    bool saveHistory();
    bool hasLoaded() const { return m_loaded; }
    // Binary property list into Library/filename, atomically.
    bool serialize(const QVariant& value, const QString& filename);

    // True after loadHistory found a history file it could not fully use;
    // the next save moves it aside first.
    bool keepsUnreadableFile() const { return m_setAsideBeforeSave; }
    // True after the legacy archive was imported and not yet saved.
    bool importedLegacyHistory() const { return m_importedLegacy; }

private:
    bool setAsideUnreadableFile();

    ViewedHistory m_viewedHistory;
    bool m_setAsideBeforeSave = false;
    bool m_importedLegacy = false;
    bool m_loaded = false;
};

// The "%@/%@/%@" form of a user file path: home folder, folder name, file.
QString homeFilePath(const QString& folder, const QString& fileName);
// Writes value as a binary property list to path; false when it cannot be
// serialised or written.
bool serializePropertyList(const QVariant& value, const QString& path);

} // namespace qor
