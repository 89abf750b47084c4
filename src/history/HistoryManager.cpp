#include "HistoryManager.h"

#include "Clock.h"
#include "FileManager.h"
#include "MaterialArchive.h"
#include "PropertyList.h"
#include "UserPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <limits>

namespace qor {

namespace {
HistoryManager* s_shared = nullptr;

const QString kUnId = QStringLiteral("unId");
const QString kName = QStringLiteral("name");
const QString kGuideId = QStringLiteral("guideId");
const QString kPlacardId = QStringLiteral("placardId");
const QString kMayPolymerize = QStringLiteral("mayPolymerize");
const QString kTih = QStringLiteral("tih");
const QString kViewCount = QStringLiteral("viewCount");
const QString kLastViewDate = QStringLiteral("lastViewDate");
const QString kWatchFlag = QStringLiteral("watchFlag");

const QString& sortName(const HistoryObjectPtr& e)
{
    return e->material->name;
}

bool byName(const HistoryObjectPtr& a, const HistoryObjectPtr& b)
{
    const int c = QString::compare(sortName(a), sortName(b), Qt::CaseSensitive);
    if (c != 0)
        return c < 0;
    return QString::compare(a->unId(), b->unId(), Qt::CaseSensitive) < 0;
}

qint64 dateKey(const HistoryObjectPtr& e)
{
    const QDateTime d = e->lastViewDate();
    return d.isValid() ? d.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

// The first `limit` entries in `before` order; ties by name keep lists stable.
// The first `limit` entries by descending key, ties by name. Keys are read
// once up front: each read is a property look-up and conversion.
template <typename Key>
HistoryList topEntries(const QHash<QString, HistoryObjectPtr>& objects, Key key, qsizetype limit)
{
    using K = decltype(key(HistoryObjectPtr()));
    std::vector<std::pair<K, HistoryObjectPtr>> keyed;
    keyed.reserve(size_t(objects.size()));
    for (const HistoryObjectPtr& e : objects)
        keyed.emplace_back(key(e), e);
    const auto cmp = [](const auto& a, const auto& b) {
        if (a.first != b.first)
            return a.first > b.first;
        return byName(a.second, b.second);
    };
    const size_t n = size_t(std::min(limit, objects.size()));
    std::partial_sort(keyed.begin(), keyed.begin() + qsizetype(n), keyed.end(), cmp);
    HistoryList out;
    out.reserve(qsizetype(n));
    for (size_t i = 0; i < n; ++i)
        out.append(keyed[i].second);
    return out;
}
} // namespace

// ------------------------------------------------------------ HistoryObject

HistoryObject::HistoryObject(const MaterialPtr& m) : material(m)
{
    // A material without UN id or name keeps what was copied before it, like
    // an entry whose copy broke off; it is stored all the same.
    if (m->unId.isNull())
        return;
    properties.insert(kUnId, m->unId);
    if (m->name.isNull())
        return;
    properties.insert(kName, m->name);
    if (!m->guideId.isNull())
        properties.insert(kGuideId, m->guideId);
    if (!m->placardId.isNull())
        properties.insert(kPlacardId, m->placardId);
    properties.insert(kMayPolymerize, m->mayPolymerize);
    properties.insert(kViewCount, 1);
    properties.insert(kLastViewDate, Clock::currentDateTime());
    if (m->toxicInhalationHazard)
        properties.insert(kTih, *m->toxicInhalationHazard);
}

namespace {
enum class FieldType { String, Bool, Integer, Date };

// The keys an entry keeps, each with the one type it may have.
// `material` names the partial material's string the value goes to.
struct Field {
    const QString& key;
    FieldType type;
    QString Material::*material = nullptr;
};
const Field kFields[] = {
    { kUnId, FieldType::String, &Material::unId },
    { kName, FieldType::String, &Material::name },
    { kGuideId, FieldType::String, &Material::guideId },
    { kPlacardId, FieldType::String, &Material::placardId },
    { kMayPolymerize, FieldType::Bool },
    { kTih, FieldType::String },
    { kViewCount, FieldType::Integer },
    { kLastViewDate, FieldType::Date },
    { kWatchFlag, FieldType::Bool },
};

bool hasType(const QVariant& v, FieldType type)
{
    switch (type) {
    case FieldType::String:
        return v.metaType().id() == QMetaType::QString;
    case FieldType::Bool:
        return v.metaType().id() == QMetaType::Bool;
    case FieldType::Integer: {
        const int id = v.metaType().id();
        if (id == QMetaType::Int)
            return true;
        if (id != QMetaType::LongLong)
            return false;
        const qlonglong n = *static_cast<const qlonglong*>(v.constData());
        return n >= std::numeric_limits<int>::min() && n <= std::numeric_limits<int>::max();
    }
    case FieldType::Date:
        return v.metaType().id() == QMetaType::QDateTime && static_cast<const QDateTime*>(v.constData())->isValid();
    }
    return false;
}
} // namespace

HistoryObjectPtr HistoryObject::fromProperties(const QVariantMap& props, bool* dropped)
{
    // One pass over the dictionary: each key is checked once and fills the
    // partial material as it goes.
    auto m = std::make_shared<Material>();
    QStringList unknown;
    for (auto it = props.constBegin(); it != props.constEnd(); ++it) {
        const Field* field = nullptr;
        for (const Field& f : kFields)
            if (f.key == it.key()) {
                field = &f;
                break;
            }
        if (!field || !hasType(it.value(), field->type)) {
            unknown.append(it.key());
            continue;
        }
        // The type is checked: the text is taken without a conversion.
        const QVariant& v = it.value();
        if (field->material)
            (*m).*field->material = *static_cast<const QString*>(v.constData());
        else if (&field->key == &kTih)
            m->toxicInhalationHazard = *static_cast<const QString*>(v.constData());
        else if (&field->key == &kMayPolymerize)
            m->mayPolymerize = v.toBool();
    }
    if (dropped)
        *dropped = !unknown.isEmpty();
    if (m->unId.isEmpty())
        return nullptr;
    auto entry = std::make_shared<HistoryObject>();
    entry->properties = props;
    for (const QString& key : std::as_const(unknown))
        entry->properties.remove(key);
    entry->material = std::move(m);
    entry->partialMaterial = true;
    return entry;
}

// ------------------------------------------------------------ ViewedHistory

void ViewedHistory::clearHistory()
{
    objects.clear();
    clearSortCaches();
}

HistoryList ViewedHistory::history() const
{
    return objects.values();
}

HistoryList ViewedHistory::allAlpha()
{
    if (!alphaSortCache) {
        HistoryList all = history();
        std::sort(all.begin(), all.end(), byName);
        alphaSortCache = std::move(all);
    }
    return *alphaSortCache;
}

HistoryList ViewedHistory::recent() const
{
    return topEntries(objects, dateKey, kListLimit);
}

HistoryList ViewedHistory::mostViewed() const
{
    return topEntries(objects, [](const HistoryObjectPtr& e) { return e->viewCount(); }, kListLimit);
}

HistoryList ViewedHistory::watching() const
{
    HistoryList all = history();
    std::sort(all.begin(), all.end(), byName);
    all.removeIf([](const HistoryObjectPtr& e) { return !e->watchFlag(); });
    return all;
}

// ------------------------------------------------------------ HistoryManager

HistoryManager* HistoryManager::sharedInstance(bool create)
{
    if (!s_shared && create)
        s_shared = new HistoryManager();
    return s_shared;
}

HistoryManager::HistoryManager() = default;

HistoryManager::~HistoryManager()
{
    if (s_shared == this)
        s_shared = nullptr;
}

void HistoryManager::addToHistory(const MaterialPtr& material)
{
    addToHistory(material, Clock::currentDateTime());
}

void HistoryManager::addToHistory(const MaterialPtr& material, const QDateTime& lastViewDate)
{
    if (!material)
        return;
    m_viewedHistory.clearSortCaches();
    const QString key = material->unId.isNull() ? QString(QLatin1String("")) : material->unId;
    if (const HistoryObjectPtr existing = m_viewedHistory.objects.value(key)) {
        // Name and other fields stay as first recorded.
        // A hand-edited count at the top of the range stays there.
        const int count = existing->viewCount();
        existing->properties.insert(kViewCount, count < std::numeric_limits<int>::max() ? count + 1 : count);
        existing->properties.insert(kLastViewDate, lastViewDate.toUTC());
        return;
    }
    auto entry = std::make_shared<HistoryObject>(material);
    entry->properties.insert(kLastViewDate, lastViewDate.toUTC());
    m_viewedHistory.objects.insert(key, entry);
}

HistoryObjectPtr HistoryManager::historyObjectForKey(const QString& unId) const
{
    return m_viewedHistory.objects.value(unId);
}

void HistoryManager::loadHistory()
{
    m_loaded = true;
    const QString path = homeFilePath(QStringLiteral("Library"), QLatin1String(kHistoryFileName));
    QFile file(path);
    if (!file.exists()) {
        loadVersion1History();
        return;
    }
    // From here on the file is never reported; whatever cannot be used is
    // kept aside at the next save rather than overwritten.
    if (!file.open(QIODevice::ReadOnly)) {
        m_setAsideBeforeSave = true;
        return;
    }
    const auto parsed = plist::parse(file.readAll());
    if (!parsed || parsed->metaType().id() != QMetaType::QVariantList) {
        m_setAsideBeforeSave = true;
        return;
    }
    const QVariantList items = parsed->toList();
    m_viewedHistory.objects.reserve(m_viewedHistory.objects.size() + items.size());
    for (const QVariant& item : items) {
        bool dropped = false;
        HistoryObjectPtr entry = item.metaType().id() == QMetaType::QVariantMap
                                     ? HistoryObject::fromProperties(item.toMap(), &dropped)
                                     : nullptr;
        // Anything dropped would be lost by the next save: keep the file.
        if (!entry || dropped)
            m_setAsideBeforeSave = true;
        if (entry)
            m_viewedHistory.objects.insert(entry->unId(), entry);
    }
    m_viewedHistory.clearSortCaches();
}

void HistoryManager::resolveMaterials(const MaterialList& materials)
{
    int partial = 0;
    for (const HistoryObjectPtr& e : std::as_const(m_viewedHistory.objects))
        partial += e->partialMaterial ? 1 : 0;
    // One pass over the pack, one look-up per material; the first material
    // with the entry's UN id and name wins, as in the list.
    for (const MaterialPtr& m : materials) {
        if (partial == 0)
            break;
        const auto it = m_viewedHistory.objects.constFind(m->unId);
        if (it == m_viewedHistory.objects.constEnd() || !(*it)->partialMaterial || (*it)->name() != m->name)
            continue;
        (*it)->material = m;
        (*it)->partialMaterial = false;
        --partial;
    }
}

void HistoryManager::loadVersion1History()
{
    FileManager files;
    const QString docs = files.documentFilePath();
    const QString legacyName = QLatin1String(kLegacyFileName);
    const auto attributes = files.fileAttributes(legacyName, docs);
    if (!attributes)
        return;
    const QDateTime date = attributes->modificationDate;
    if (const auto root = files.loadDataFromFileName(legacyName, docs)) {
        if (const auto legacy = MaterialViewedHistory::fromArchive(*root)) {
            // Each material starts again at one view, dated when the file was
            // last written; the old counts are not carried over.
            for (const MaterialPtr& m : legacy->history())
                addToHistory(m, date);
            m_importedLegacy = !legacy->materials.isEmpty();
        }
    }
    // Moved even when it could not be read, so it is never tried again; the
    // bytes stay in the .bak file. A failed move is ignored.
    const QString legacyPath = QStringLiteral("%1/%2").arg(docs, legacyName);
    QFile::rename(legacyPath, QStringLiteral("%1/%2.bak").arg(docs, legacyName));
}

bool HistoryManager::setAsideUnreadableFile()
{
    const QString path = homeFilePath(QStringLiteral("Library"), QLatin1String(kHistoryFileName));
    if (!QFile::exists(path)) {
        m_setAsideBeforeSave = false;
        return true;
    }
    // Never over an earlier unreadable file: each one is somebody's history.
    // Numbering goes on past the highest one there, however many there are.
    const QFileInfo info(path);
    const QString base = info.fileName() + QLatin1String(kUnreadableSuffix);
    qint64 highest = 0;
    const QStringList kept = info.dir().entryList({ base + QLatin1Char('*') }, QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : kept) {
        if (name == base) {
            highest = std::max<qint64>(highest, 1);
            continue;
        }
        bool ok = false;
        const qint64 n = QStringView(name).mid(base.size() + 1).toLongLong(&ok);
        // Numbers no one would reach are names someone made up; ignored.
        if (ok && name.at(base.size()) == QLatin1Char('.') && n < 1000000000)
            highest = std::max(highest, n);
    }
    bool moved = false;
    // A file that appears meanwhile takes its number; the next one is tried.
    for (qint64 n = highest + 1; !moved && n <= highest + 100; ++n) {
        const QString target = info.dir().filePath(n == 1 ? base : base + QLatin1Char('.') + QString::number(n));
        moved = !QFile::exists(target) && QFile::rename(path, target);
    }
    if (!moved) {
        qWarning().noquote() << "history: cannot move the unreadable" << path << "aside; not saving over it";
        return false;
    }
    m_setAsideBeforeSave = false;
    return true;
}

bool HistoryManager::saveHistory()
{
    // Before the file has been read, what is in memory is not the history:
    // writing it would replace the user's file with next to nothing.
    if (!m_loaded)
        return false;
    if (m_setAsideBeforeSave && !setAsideUnreadableFile())
        return false;
    QVariantList entries;
    entries.reserve(m_viewedHistory.objects.size());
    for (const HistoryObjectPtr& entry : std::as_const(m_viewedHistory.objects))
        entries.append(entry->properties);
    const bool ok = serialize(entries, QLatin1String(kHistoryFileName));
    if (ok)
        m_importedLegacy = false;
    return ok;
}

bool HistoryManager::serialize(const QVariant& value, const QString& filename)
{
    return serializePropertyList(value, homeFilePath(QStringLiteral("Library"), filename));
}

QString homeFilePath(const QString& folder, const QString& fileName)
{
    return QStringLiteral("%1/%2/%3").arg(UserPaths::homeDir(), folder, fileName);
}

bool serializePropertyList(const QVariant& value, const QString& path)
{
    const auto bytes = plist::serialize(value);
    if (!bytes)
        return false;
    return writeFileAtomically(path, *bytes);
}

} // namespace qor
