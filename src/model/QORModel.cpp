#include "QORModel.h"
#include "PackSchema.h"
#include "Resources.h"

#include <QFile>
#include <QLoggingCategory>
#include <QMutexLocker>
#include <QSet>
#include <QStringDecoder>
#include <algorithm>
#include <bit>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <cstdlib>
#include <cstring>

Q_LOGGING_CATEGORY(lcQorMemory, "qor.memory", QtWarningMsg)

namespace qor {

namespace {
QORModel* s_shared = nullptr;

// Reads a text resource whose encoding is not known: a BOM decides, else UTF-8.
QString readTextDetectingEncoding(const QString& path, bool* ok)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *ok = false;
        return QString();
    }
    *ok = true;
    const QByteArray bytes = file.readAll();
    auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    return decoder.decode(bytes);
}

// A short text as one number: up to seven characters below 0x100 and their
// count. None for other texts.
template <typename Char>
std::optional<quint64> packedText(const Char* text, size_t size)
{
    if (size > 7)
        return std::nullopt;
    quint64 key = quint64(size) << 56;
    for (size_t i = 0; i < size; ++i) {
        const auto unit = static_cast<std::make_unsigned_t<Char>>(text[i]);
        if (unit > 0xff)
            return std::nullopt;
        key |= quint64(unit) << (8 * i);
    }
    return key;
}

// A table keyed by packed texts, flat and probed in a row: a look-up is a
// multiplication and a comparison or two, with no text to compare.
template <typename Value>
class PackedTable {
public:
    explicit PackedTable(size_t expected = 0)
    {
        size_t size = 16;
        while (size < 2 * expected)  // at most half full
            size *= 2;
        m_slots.resize(size);
        m_shift = 64 - std::countr_zero(size);
    }
    const Value* find(quint64 key) const
    {
        const Slot& slot = m_slots[indexOf(key)];
        return slot.key == key ? &slot.value : nullptr;
    }
    Value& insert(quint64 key, Value value)
    {
        if (2 * (m_used + 1) > m_slots.size()) {
            PackedTable grown(m_slots.size());
            for (Slot& slot : m_slots)
                if (slot.key != kEmpty)
                    grown.insert(slot.key, std::move(slot.value));
            *this = std::move(grown);
        }
        Slot& slot = m_slots[indexOf(key)];
        m_used += slot.key == kEmpty;
        slot = { key, std::move(value) };
        return slot.value;
    }

private:
    static constexpr quint64 kEmpty = ~quint64(0);  // no packed text has a count of 0xff
    struct Slot {
        quint64 key = kEmpty;
        Value value{};
    };
    // The key's slot, or the empty one where it would go.
    size_t indexOf(quint64 key) const
    {
        size_t at = size_t((key * 0x9E3779B97F4A7C15ull) >> m_shift);
        while (m_slots[at].key != kEmpty && m_slots[at].key != key)
            at = (at + 1) & (m_slots.size() - 1);
        return at;
    }
    std::vector<Slot> m_slots;
    size_t m_used = 0;
    int m_shift = 64;
};
} // namespace

// Incident counts by UN number, for looking up every material's in a row:
// a flat table of short numbers, where the counts' hash compares texts held
// apart in memory. Other numbers are looked up in the hash.
class QORModel::IncidentCounts {
public:
    void add(const QString& unId, int count)
    {
        if (const auto key = packed(unId))
            m_packed.insert(*key, count);
    }
    int value(const QString& unId, const QHash<QString, int>& counts) const
    {
        const auto key = packed(unId);
        if (!key)
            return counts.value(unId, 0);
        const int* count = m_packed.find(*key);
        return count ? *count : 0;
    }

private:
    static std::optional<quint64> packed(const QString& text)
    {
        return packedText(reinterpret_cast<const char16_t*>(text.constData()), size_t(text.size()));
    }
    PackedTable<int> m_packed;
};

QORModel* QORModel::sharedInstance(bool create)
{
    if (!s_shared && create)
        new QORModel();
    return s_shared;
}

QORModel::QORModel(QObject* parent) : QObject(parent)
{
    // Recorded first, so code run during creation sees this partly built object.
    s_shared = this;
    m_isLoading = true;
    m_incidentsDb = Database::openReadOnlyOrAbort(Resources::path(QStringLiteral("hazmat_incidents"), QStringLiteral("dat")));
    m_cfrDb = Database::openReadOnlyOrAbort(Resources::path(QStringLiteral("cfr49"), QStringLiteral("db")));

    const auto& cats = CategoryManager::sharedInstance()->categories();
    auto make = [&](const char* abbrev) {
        auto f = std::make_shared<Filter>(cats.value(QString::fromLatin1(abbrev)).get());
        m_filters.insert(QString::fromLatin1(abbrev), f);
        return f;
    };
    allFilter = make("A");
    methFilter = make("M");
    tihFilter = make("T");
    tihCommonFilter = make("U");
    polyFilter = make("P");
    waterReactiveFilter = make("W");
    m_currentFilter = allFilter;

    m_npgDb = Database::openReadOnlyOrAbort(Resources::path(QStringLiteral("npg"), QStringLiteral("db")));
    buildFixedTables();

    m_loadTimer.setSingleShot(true);
    m_loadTimer.setInterval(100);
    connect(&m_loadTimer, &QTimer::timeout, this, &QORModel::loadData);
    m_loadTimer.start();
}

QORModel::~QORModel()
{
    if (s_shared == this)
        s_shared = nullptr;
}

void QORModel::buildFixedTables()
{
    for (char16_t c = 0x2080; c <= 0x2089; ++c)
        subscriptChars.append(QString(QChar(c)));

    packageGroupTextList = {
        { QStringLiteral("I"), L::tr("Great Danger") },
        { QStringLiteral("II"), L::tr("Medium Danger") },
        { QStringLiteral("III"), L::tr("Minor Danger") },
    };

    const struct { const char* key; const char* text; } classes[] = {
        { "1.1", QT_TRANSLATE_NOOP("QOR", "Explosives with a mass explosion hazard.") },
        { "1.2", QT_TRANSLATE_NOOP("QOR", "Explosives with a blast/projection hazard.") },
        { "1.3", QT_TRANSLATE_NOOP("QOR", "Explosives with a minor blast hazard.") },
        { "1.4", QT_TRANSLATE_NOOP("QOR", "Explosives with a major fire hazard.") },
        { "1.5", QT_TRANSLATE_NOOP("QOR", "Blasting agents.") },
        { "1.6", QT_TRANSLATE_NOOP("QOR", "Extremely insensitive explosives.") },
        { "2.1", QT_TRANSLATE_NOOP("QOR", "Flammable Gas") },
        { "2.2", QT_TRANSLATE_NOOP("QOR", "Non-Flammable Gases") },
        { "2.3", QT_TRANSLATE_NOOP("QOR", "Poisonous Gases") },
        { "3", QT_TRANSLATE_NOOP("QOR", "Flammable Liquids") },
        { "4.1", QT_TRANSLATE_NOOP("QOR", "Flammable Solids") },
        { "4.2", QT_TRANSLATE_NOOP("QOR", "Spontaneously Combustible Solids") },
        { "4.3", QT_TRANSLATE_NOOP("QOR", "Dangerous when Wet") },
        { "5.1", QT_TRANSLATE_NOOP("QOR", "Oxidizing Agent") },
        { "5.2", QT_TRANSLATE_NOOP("QOR", "Organic Peroxide Oxidizing Agent") },
        { "6", QT_TRANSLATE_NOOP("QOR", "Toxic and Infectious Substances") },
        { "6.1", QT_TRANSLATE_NOOP("QOR", "Poison") },
        { "6.1-tih", QT_TRANSLATE_NOOP("QOR", "Poison Inhalation Hazard") },
        { "6.2", QT_TRANSLATE_NOOP("QOR", "Biohazard") },
        { "7", QT_TRANSLATE_NOOP("QOR", "Radioactive Substances ") },
        { "8", QT_TRANSLATE_NOOP("QOR", "Corrosive Substances") },
        { "8.1", QT_TRANSLATE_NOOP("QOR", "Corrosive Substances: Acids") },
        { "8.2", QT_TRANSLATE_NOOP("QOR", "Corrosive Substances Alkalis") },
        { "9", QT_TRANSLATE_NOOP("QOR", "Miscellaneous") },
    };
    for (const auto& c : classes)
        classDescriptions.insert(QString::fromLatin1(c.key), L::tr(c.text));

    // The artwork and pages every pack must carry: the pack's schema names them.
    for (const QString& key : packPlacardKeys())
        placards.insert(key, key + QStringLiteral(".pdf"));
    placards.insert(QStringLiteral("blank"), QStringLiteral("9.pdf"));

    for (const QString& key : packGhsPictograms())
        ghsPictograms.insert(key, key + QStringLiteral(".pdf"));

    infoPages = packInfoPages();
}

void QORModel::logMemory(const char* where) const
{
    if (!lcQorMemory().isDebugEnabled())
        return;
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (statm.open(QIODevice::ReadOnly))
        qCDebug(lcQorMemory) << where << "statm:" << statm.readAll().trimmed();
}

void QORModel::loadData()
{
    QMutexLocker locker(&m_lock);
    m_loadTimer.stop();
    m_isLoading = true;
    // The all-materials filter gets its sections when it is filled below;
    // the reader adds the new materials to them only when it is not.
    readMaterials(allFilter->filteredArray && !allFilter->filteredArray->isEmpty());
    // Materials just read hold no caches: loadFilterWithData's release of
    // them is left out here.
    for (const auto& filter : std::as_const(m_filters))
        if (!filter->filteredArray || filter->filteredArray->isEmpty())
            fillFilter(*filter);
    loadViewedHistory();
    m_isLoading = false;
    emit modelLoadingStateChanged();
    emit filterChanged(allFilter.get());
}

void QORModel::releaseUnneededMemory()
{
    for (const auto& m : std::as_const(m_materials))
        m->releaseUnneededMemory();
}

// ---------------------------------------------------------------- materials

namespace {
// The materials file is cut as UTF-8 bytes: its separators are ASCII, and no
// byte of a multi-byte character is, so the parts are those of the decoded
// text. Only the fields a material keeps are decoded.
template <typename Each>
void forEachPart(std::string_view text, char separator, Each each)
{
    for (;;) {
        const void* at = text.empty() ? nullptr : std::memchr(text.data(), separator, text.size());
        if (!at) {
            each(text);
            return;
        }
        const size_t end = size_t(static_cast<const char*>(at) - text.data());
        each(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
}

bool isAscii(std::string_view text)
{
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

// A material's name, capitalised from four characters on; ASCII, nearly
// every name, is capitalised straight from the file's bytes.
QString materialName(std::string_view bytes)
{
    if (!isAscii(bytes)) {
        const QString name = fromUtf8(bytes);
        return name.size() >= 4 ? capitalized(name) : name;
    }
    const QLatin1String name(bytes.data(), qsizetype(bytes.size()));
    if (name.size() < 4)
        return QString(name);
    QString out(name.size(), Qt::Uninitialized);
    capitalizeInto(name, reinterpret_cast<char16_t*>(out.data()));
    return out;
}

// A short field as text: ASCII, nearly every one, without the UTF-8 decoder.
QString fieldText(std::string_view bytes)
{
    return isAscii(bytes) ? QString(QLatin1String(bytes.data(), qsizetype(bytes.size()))) : fromUtf8(bytes);
}

// The prefix index's keys of one name: 0..3 leading characters of its lower
// case, short names using one character fewer than they have. Lower case can
// only lengthen a text, so the first three characters of a long name's lower
// case come from its first five characters.
QString lowerPrefix(const QString& name)
{
    return name.size() > 5 ? QStringView(name).left(5).toString().toLower() : name.toLower();
}

// Lines of a file, counted with memchr, which scans many bytes per step.
qsizetype lineCount(const QByteArray& bytes)
{
    qsizetype lines = 1;
    const char* p = bytes.constData();
    const char* end = p + bytes.size();
    while (const void* nl = p < end ? std::memchr(p, '\n', size_t(end - p)) : nullptr) {
        ++lines;
        p = static_cast<const char*>(nl) + 1;
    }
    return lines;
}

// Guide, placard and the marks take few distinct values: each is made once
// and shared by every material carrying it.
class SharedTexts {
public:
    QString operator()(std::string_view text)
    {
        const std::optional<quint64> key = packedText(text.data(), text.size());
        if (!key)
            return fromUtf8(text);
        if (const QString* known = m_texts.find(*key))
            return *known;
        return m_texts.insert(*key, fromUtf8(text));
    }

private:
    PackedTable<QString> m_texts;
};

// UN numbers mostly repeat the line before (several names per number): such
// a text is shared with the previous material, not made again.
class RepeatedText {
public:
    QString operator()(std::string_view text)
    {
        if (text != m_bytes || m_text.isNull()) {
            m_bytes = text;
            m_text = fieldText(text);
        }
        return m_text;
    }

private:
    std::string_view m_bytes;  // into the file's bytes, which outlive this
    QString m_text;
};

// Alphabetical sections of list[from..], added in list order: a material
// goes under the upper-cased first letter of its name, and a name not
// starting with a letter goes where the material before it went (nowhere
// for the first). Gathered per letter before they reach the hash, as in a
// file not sorted by name the letter changes at nearly every row.
void addAlphaSections(QHash<QString, MaterialList>& sections, const MaterialList& list, qsizetype from = 0)
{
    std::vector<std::pair<QChar, MaterialList>> letters;  // in order of first use
    int asciiSlot[26];
    std::fill(std::begin(asciiSlot), std::end(asciiSlot), -1);
    auto slotOf = [&](QChar letter) {
        const char16_t u = letter.unicode();
        int* known = u >= 'A' && u <= 'Z' ? &asciiSlot[u - 'A'] : nullptr;
        if (known && *known >= 0)
            return *known;
        if (!known)
            for (size_t s = 0; s < letters.size(); ++s)
                if (letters[s].first == letter)
                    return int(s);
        letters.emplace_back(letter, MaterialList());
        const int slot = int(letters.size()) - 1;
        if (known)
            *known = slot;
        return slot;
    };
    int slot = -1;
    QChar letter;
    for (qsizetype i = from; i < list.size(); ++i) {
        const MaterialPtr& m = list.at(i);
        const char16_t u = m->name.isEmpty() ? 0 : m->name.at(0).unicode();
        QChar first;
        bool isLetter;
        if (u < 0x80) {
            first = QChar(u >= 'a' && u <= 'z' ? char16_t(u - 32) : u);
            isLetter = first >= u'A' && first <= u'Z';
        } else {
            first = QChar(u).toUpper();
            isLetter = first.isLetter();
        }
        if (isLetter && (slot < 0 || first != letter)) {
            slot = slotOf(first);
            letter = first;
        }
        if (slot >= 0)
            letters[size_t(slot)].second.append(m);
    }
    for (auto& [first, members] : letters) {
        MaterialList& section = sections[QString(first)];
        if (section.isEmpty())
            section = std::move(members);
        else
            section.append(members);
    }
}

// The materials at the given places of all, each pointer copied once.
MaterialList materialsAt(const MaterialList& all, const std::vector<int>& places)
{
    MaterialList out(qsizetype(places.size()));
    MaterialPtr* o = out.data();
    for (const int i : places)
        *o++ = all.at(i);
    return out;
}

// Sections of a sorted list (sorted[j] is the material at order[j]):
// neighbours mostly share theirs, so each run of equal keys is copied into
// its section in one piece. keyOf takes a material's place.
template <typename KeyOf, typename SectionName>
void addSectionRuns(QHash<QString, MaterialList>& sections, const MaterialList& sorted, const std::vector<int>& order,
                    KeyOf keyOf, SectionName sectionName)
{
    for (size_t start = 0; start < order.size();) {
        const auto key = keyOf(order[start]);
        size_t end = start + 1;
        while (end < order.size() && keyOf(order[end]) == key)
            ++end;
        const MaterialList run(sorted.constBegin() + qsizetype(start), sorted.constBegin() + qsizetype(end));
        MaterialList& section = sections[sectionName(key)];
        if (section.isEmpty())
            section = run;
        else
            section.append(run);
        start = end;
    }
}
} // namespace

void QORModel::loadMaterials()
{
    readMaterials(true);
}

void QORModel::readMaterials(bool withAllSections)
{
    QFile file(Resources::path(QStringLiteral("chemicals_2024.csv")));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    m_sharedOrders.reset();

    // The same texts for every material: translated once.
    const QString waterReactiveText = L::tr("WATER REACTIVE MATERIAL");
    const QString warfareText = L::tr("CHEMICAL WARFARE AGENT");
    const QString tihText = L::tr("TOXIC INHALATION HAZARD");
    const QString waterReactiveKey = QStringLiteral("waterReactive");
    const QString warfareKey = QStringLiteral("chemicalWarefareAgent");
    const QString tihKey = QStringLiteral("toxicInhalationHazard");
    const QString polymerizeKey = QStringLiteral("mayPolymerize");
    // The attributes a line can give, one shared map per combination.
    enum { WaterReactive = 1, Warfare = 2, Tih = 4 };
    QVariantMap attributeSets[8];
    for (int bits = 0; bits < 8; ++bits) {
        if (bits & WaterReactive)
            attributeSets[bits].insert(waterReactiveKey, waterReactiveText);
        if (bits & Warfare)
            attributeSets[bits].insert(warfareKey, warfareText);
        if (bits & Tih)
            attributeSets[bits].insert(tihKey, tihText);
        // Deliberately false even when the guide carries the "P" suffix.
        attributeSets[bits].insert(polymerizeKey, false);
    }
    int lineNumber = 0;
    const qsizetype firstNew = m_materials.size();
    const qsizetype lines = lineCount(bytes);
    // Material::numIncidents, with the counts looked up in a flat table.
    const QHash<QString, int>& incidentCounts = getMaterialsWithIncidents();
    SharedTexts texts;
    RepeatedText unIdText;
    // The file's materials in one allocation; each pointer to one of them
    // shares the ownership of all. A line makes at most one material, so the
    // vector never grows past this and the pointers into it stay valid.
    auto materials = std::make_shared<std::vector<Material>>();
    materials->reserve(size_t(lines));
    m_materials.reserve(firstNew + lines);
    m_sortKeys.reserve(size_t(firstNew + lines));
    forEachPart(std::string_view(bytes.constData(), size_t(bytes.size())), '\n', [&](std::string_view line) {
        ++lineNumber;
        std::string_view fields[8];
        int count = 0;
        forEachPart(line, '^', [&](std::string_view f) {
            if (count < 8)
                fields[count] = f;
            ++count;
        });
        if (count < 6)
            return;
        if (count == 6) {
            // Every data line must carry the seventh field; the data is broken.
            qCritical().noquote() << QStringLiteral("materials file line %1 has 6 fields").arg(lineNumber);
            qCritical().noquote() << fromUtf8(line);
            std::abort();
        }
        Material& m = materials->emplace_back();
        m.name = materialName(fields[0]);
        m.placardId = texts(fields[1]);
        const std::string_view guide = fields[2];
        if (!guide.empty() && guide.back() == 'P') {
            m.mayPolymerize = true;
            m.guideId = isAscii(guide) ? texts(guide.substr(0, 3)) : fromUtf8(guide).left(3);
        } else {
            m.guideId = texts(guide);
        }
        m.unId = unIdText(fields[3]);
        int attributes = 0;
        if (!fields[4].empty()) {
            m.toxicInhalationHazard = texts(fields[4]);
            attributes |= Tih;
        }
        if (!fields[5].empty()) {
            m.waterReactive = texts(fields[5]);
            attributes |= WaterReactive;
        }
        if (!fields[6].empty()) {
            if (fields[6] == "M")
                m.methLab = true;
            else
                m.chemicalWarefareAgent = texts(fields[6]);
            if (fields[6] != "M" && fields[6] != "X" && fields[6] != " ")
                attributes |= Warfare;
        }
        m.qorAttributes = attributeSets[attributes];
        m_materials.emplaceBack(materials, &m);

        SortKeys& keys = m_sortKeys.emplace_back();
        keys.guide = leadingInt(m.guideId);
        keys.unId = leadingInt(m.unId);
        const bool carries = !m.unId.isEmpty() && m.carriesIncidentsOfNumber(keys.unId);
        keys.incidents = carries ? m_incidentCounts->value(m.unId, incidentCounts) : 0;
        // Warfare agents go under " No Id" whatever their number.
        const int number = m.chemicalWarefareAgent && *m.chemicalWarefareAgent == QLatin1String("Z") ? 0 : keys.unId;
        keys.unIdBucket = number == 0 ? SortKeys::kNoId : (number / 100) * 100;
    });
    Filter& all = *allFilter;
    if (withAllSections)
        addAlphaSections(all.alphaSections, m_materials, firstNew);
    all.invalidateSectionKeys();

    // Prefix index: keys of 0..3 leading characters; short names use length-1.
    // Neighbouring names mostly share their keys, so each level remembers its
    // last list; lists are gathered where adding keys moves no list, then
    // handed to the index.
    // A key of up to three UTF-16 units and its length fit one 64-bit
    // number: no text per key, and comparing or hashing one is one step.
    const auto packedKey = [](QStringView text, qsizetype len) {
        quint64 key = quint64(len) << 48;
        for (qsizetype c = 0; c < len; ++c)
            key |= quint64(text.at(c).unicode()) << (16 * c);
        return key;
    };
    std::unordered_map<quint64, MaterialList> lists;
    struct Level {
        quint64 key = 0;
        MaterialList* list = nullptr;
    } levels[4];
    // Every name has the key "" at level 0; a name whose lower case has at
    // most one character has it at all four levels.
    std::vector<qsizetype> shortNames;
    for (qsizetype i = firstNew; i < m_materials.size(); ++i) {
        const MaterialPtr& m = m_materials.at(i);
        // ASCII, the usual case, is lowered on the stack.
        char16_t ascii[5];
        const qsizetype take = std::min<qsizetype>(m->name.size(), 5);
        bool isAscii = true;
        for (qsizetype c = 0; c < take && isAscii; ++c) {
            const char16_t u = m->name.at(c).unicode();
            isAscii = u < 0x80;
            ascii[c] = u >= 'A' && u <= 'Z' ? char16_t(u + ('a' - 'A')) : u;
        }
        const QString other = isAscii ? QString() : lowerPrefix(m->name);
        const QStringView lower = isAscii ? QStringView(ascii, take) : QStringView(other);
        if (lower.size() <= 1) {
            shortNames.push_back(i);
            continue;
        }
        for (int k = 1; k <= 3; ++k) {
            const quint64 key = packedKey(lower, lower.size() <= k ? lower.size() - 1 : k);
            Level& level = levels[k];
            if (!level.list || level.key != key) {
                level.key = key;
                level.list = &lists[key];  // a node of the map stays in place
            }
            level.list->append(m);
        }
    }
    if (firstNew < m_materials.size()) {
        // Without short names, the list of "" is the new materials themselves.
        MaterialList& everyName = lists[packedKey({}, 0)];
        if (shortNames.empty()) {
            everyName = firstNew == 0 ? m_materials : m_materials.sliced(firstNew);
        } else {
            everyName.reserve(m_materials.size() - firstNew + 3 * qsizetype(shortNames.size()));
            auto nextShort = shortNames.cbegin();
            for (qsizetype i = firstNew; i < m_materials.size(); ++i) {
                const bool isShort = nextShort != shortNames.cend() && *nextShort == i;
                nextShort += isShort;
                for (int times = isShort ? 4 : 1; times > 0; --times)
                    everyName.append(m_materials.at(i));
            }
        }
    }
    all.alphaIndex.clear();
    all.alphaIndex.reserve(qsizetype(lists.size()));
    for (auto& [key, list] : lists) {
        const qsizetype len = qsizetype(key >> 48);
        QString text(len, Qt::Uninitialized);
        for (qsizetype c = 0; c < len; ++c)
            text[c] = QChar(char16_t(key >> (16 * c)));
        all.alphaIndex.insert(text, std::move(list));
    }
}

const QHash<QString, int>& QORModel::getMaterialsWithIncidents()
{
    if (!m_materialsWithIncidents) {
        QHash<QString, int> counts;
        auto table = std::make_unique<IncidentCounts>();
        Statement st(m_incidentsDb, QStringLiteral("select count(*), un_id from incidents group by un_id"));
        while (st.step()) {
            const QString unId = st.text(1);
            counts.insert(unId, st.integer(0));
            table->add(unId, st.integer(0));
        }
        m_materialsWithIncidents = std::move(counts);
        m_incidentCounts = std::move(table);
    }
    return *m_materialsWithIncidents;
}

void QORModel::loadWikipediaDescriptions()
{
    bool ok = false;
    const QString text = readTextDetectingEncoding(Resources::path(QStringLiteral("wikipedia_descriptions_by_un_number.csv")), &ok);
    if (!ok)
        return;
    for (QStringView line : QStringView(text).split(u'\n')) {
        const auto fields = line.split(u'^');
        if (fields.size() >= 2)
            descriptions.insert(fields[0].toString(), fields[1].toString());
    }
}

std::optional<QString> QORModel::descriptionForMaterial(Material& material)
{
    const StringMap cameo = getCameoAttributesForMaterial(material);
    auto it = cameo.constFind(QStringLiteral("physDesc"));
    if (it != cameo.cend())
        return *it;
    const StringMap npg = getNPGAttributesForMaterial(material);
    it = npg.constFind(QStringLiteral("physDesc"));
    if (it != npg.cend())
        return *it;
    return std::nullopt;
}

QString QORModel::classForMaterial(const Material& material)
{
    Statement st(m_npgDb, QStringLiteral("select class_id from dot_classes where un_number = %1").arg(sqlBareUnId(material.unId)));
    if (!st.step())
        return QString();
    return st.text(0);
}

std::optional<QString> QORModel::classDescriptionForMaterial(const Material& material)
{
    auto it = classDescriptions.constFind(classForMaterial(material));
    if (it == classDescriptions.cend())
        return std::nullopt;
    return *it;
}

// ---------------------------------------------------------------- guides

void QORModel::loadGuideList()
{
    QList<GuidePtr> list;
    bool ok = false;
    const QString text = readTextDetectingEncoding(Resources::path(QStringLiteral("guides.csv")), &ok);
    if (ok) {
        for (QStringView line : QStringView(text).split(u'\n')) {
            const auto fields = line.split(u'^');
            if (fields.size() >= 2)
                list.append(std::make_shared<Guide>(fields[0].toString(), fields[1].toString()));
        }
    }
    m_guides = std::move(list);
    emit guidesChanged();
}

GuidePtr QORModel::dotGuideForMaterial(const Material* material) const
{
    if (!material)
        return nullptr;
    for (const auto& g : m_guides)
        if (g->guideId == material->guideId)
            return g;
    return nullptr;
}

// ---------------------------------------------------------------- isolation distances

const IsolationDistances& QORModel::isolationDistancesForMaterial(Material& material)
{
    if (material.isolationDistances)
        return *material.isolationDistances;
    // Cached before the query, so a material without rows is not asked again.
    material.isolationDistances.emplace();
    IsolationDistances& map = *material.isolationDistances;

    static const char* smallKeys[] = {
        "Small Spill Initial isolation distance Metric", "Small Spill Initial isolation distance Imp",
        "Small Spill Protect distance Day Metric", "Small Spill Protect distance Day Imp",
        "Small Spill Protect distance Night Metric", "Small Spill Protect distance Night Imp",
    };
    static const char* largeKeys[] = {
        "Large Spill Initial isolation distance Metric", "Large Spill Initial isolation distance Imp",
        "Large Spill Protect distance Day Metric", "Large Spill Protect distance Day Imp",
        "Large Spill Protect distance Night Metric", "Large Spill Protect distance Night Imp",
    };
    Statement st(m_npgDb, QStringLiteral("select * from iso_distances where un_id = %1 ").arg(sqlBareUnId(material.unId)));
    while (st.step()) {
        (void)st.text(0);
        QString condition = st.text(1);
        if (condition.isEmpty())
            condition = L::tr("default");
        IsolationRecord record;
        record.insert(QStringLiteral("Condition"), QCoreApplication::translate("QOR", condition.toUtf8().constData()));
        for (int i = 0; i < 6; ++i)
            record.insert(QString::fromLatin1(smallKeys[i]), st.text(2 + i));
        if (!st.isNull(8) && !st.text(8).isEmpty())
            for (int i = 0; i < 6; ++i)
                record.insert(QString::fromLatin1(largeKeys[i]), st.text(8 + i));
        map.insert(condition, record);
    }
    return map;
}

bool QORModel::isolationConditionNamesMaterial(const QString& condition, const QString& materialName)
{
    static const QString kSeparator = QStringLiteral(" - ");
    auto names = [&](QStringView label) {
        if (label.isEmpty())
            return false;
        if (materialName.compare(label, Qt::CaseInsensitive) == 0)
            return true;
        // A zone: the name ends in "(Inhalation Hazard Zone A)".
        const qsizetype at = materialName.size() - label.size() - 1;
        return at > 0 && materialName.at(at - 1) == u'(' && materialName.endsWith(u')')
            && QStringView(materialName).mid(at, label.size()).compare(label, Qt::CaseInsensitive) == 0;
    };
    if (names(condition))
        return true;
    const qsizetype sep = condition.lastIndexOf(kSeparator);
    return sep > 0 && names(QStringView(condition).left(sep));
}

QStringList QORModel::isolationConditionsForMaterial(Material& material)
{
    const QStringList& keys = isolationDistancesForMaterial(material).keys();
    QStringList own, others;
    for (const QString& key : keys)
        (isolationConditionNamesMaterial(key, material.name) ? own : others) << key;
    return own + others;
}

// ---------------------------------------------------------------- large spills by container

namespace {

struct ContainerRow {
    const char* name;
    const char* row;
};

// Built-in rows for packs without the table. They hold the guidebook's figures;
// a test keeps them equal to the imported table.
const ContainerRow k1005[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "300,1000,1.6,1.0,1.2,0.8,1.0,0.6,4.1,2.6,2.1,1.3,1.3,0.8" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "150,500,0.8,0.5,0.5,0.3,0.4,0.3,1.8,1.1,0.7,0.4,0.6,0.4" },
    { QT_TRANSLATE_NOOP("QOR", "Agricultural Nurse Tank"), "60,200,0.5,0.3,0.3,0.2,0.3,0.2,1.4,0.9,0.3,0.2,0.3,0.2" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders"), "30,100,0.3,0.2,0.2,0.1,0.1,0.1,0.7,0.5,0.3,0.2,0.2,0.1" },
};
const ContainerRow k1017[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "1000,3000,9.6,6.0,6.3,3.9,5.1,3.2,11+,7+,8.9,5.6,6.5,4.1" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "600,2000,5.6,3.5,3.3,2.1,2.5,1.6,6.4,4.0,4.7,2.9,3.8,2.4" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple ton cylinders"), "300,1000,1.9,1.2,1.3,0.8,1.0,0.6,3.5,2.2,2.3,1.4,1.3,0.8" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders or single ton cylinder"), "150,500,1.3,0.9,0.7,0.5,0.5,0.3,2.4,1.5,1.2,0.8,0.6,0.4" },
};
const ContainerRow k1040[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "200,600,1.5,1.0,0.8,0.5,0.7,0.4,3.0,1.8,1.4,0.9,0.8,0.5" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "100,300,0.9,0.6,0.5,0.3,0.4,0.3,2.0,1.3,0.7,0.4,0.4,0.3" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders or single ton cylinder"), "30,100,0.4,0.3,0.2,0.1,0.1,0.1,0.8,0.5,0.3,0.2,0.2,0.1" },
};
// Shared by 1050 and 2186.
const ContainerRow k1050[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "500,1500,3.7,2.3,2.0,1.3,1.7,1.1,9.7,6.1,3.3,2.1,2.2,1.4" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "200,600,1.5,0.9,0.8,0.5,0.6,0.4,3.7,2.3,1.5,0.9,0.8,0.5" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple ton cylinders"), "30,100,0.4,0.3,0.2,0.1,0.1,0.1,1.0,0.6,0.3,0.2,0.1,0.1" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders or single ton cylinder"), "30,100,0.3,0.2,0.2,0.1,0.1,0.1,0.9,0.6,0.3,0.2,0.2,0.1" },
};
const ContainerRow k1052[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "500,1500,3.4,2.1,2.1,1.3,1.8,1.1,6.4,4.0,3.0,1.9,1.9,1.2" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "200,700,2.0,1.2,1.0,0.7,0.9,0.6,3.6,2.3,1.5,1.0,0.9,0.6" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders or single ton cylinder"), "100,300,0.8,0.5,0.4,0.2,0.3,0.2,1.7,1.1,0.5,0.3,0.3,0.2" },
};
const ContainerRow k1079[] = {
    { QT_TRANSLATE_NOOP("QOR", "Rail Tank Car"), "1000,3000,11+,7+,11+,7+,6.9,4.3,11+,7+,11+,7+,9.6,6.0" },
    { QT_TRANSLATE_NOOP("QOR", "Highway Tank Car or Trailer"), "1000,3000,11+,7+,6.0,3.8,5.0,3.3,11+,7+,7.9,5.1,6.0,3.9" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple ton cylinders"), "500,1500,5.2,3.3,2.2,1.4,1.7,1.1,7.4,4.3,4.0,2.5,2.7,1.7" },
    { QT_TRANSLATE_NOOP("QOR", "Multiple Small Cylinders or single ton cylinder"), "200,600,3.1,1.9,1.5,0.9,1.1,0.7,5.6,3.5,2.4,1.5,1.5,0.9" },
};

template <size_t N>
OrderedMap<QString> containerMap(const ContainerRow (&rows)[N])
{
    OrderedMap<QString> map;
    for (const ContainerRow& r : rows)
        map.insert(L::tr(r.name), QString::fromLatin1(r.row));
    return map;
}

} // namespace

OrderedMap<QString> QORModel::builtInLargeSpillIsoDistances(const QString& unId)
{
    switch (leadingInt(unId)) {
    case 1005: return containerMap(k1005);
    case 1017: return containerMap(k1017);
    case 1040: return containerMap(k1040);
    case 1050:
    case 2186: return containerMap(k1050);
    case 1052: return containerMap(k1052);
    case 1079: return containerMap(k1079);
    default: return {};
    }
}

OrderedMap<QString> QORModel::largeSpillIsoDistancesForMaterial(const Material& material)
{
    if (!m_packHasLargeSpillRows) {
        Statement probe(m_npgDb, QStringLiteral("select 1 from large_spill_distances limit 1"));
        m_packHasLargeSpillRows = probe.step();
    }
    if (!*m_packHasLargeSpillRows)
        return builtInLargeSpillIsoDistances(material.unId);
    OrderedMap<QString> map;
    Statement st(m_npgDb, QStringLiteral("select * from large_spill_distances where un_id = %1 order by rowid").arg(sqlQuoted(material.unId)));
    while (st.step()) {
        QStringList figures;
        for (int i = 2; i < 16; ++i)
            figures << st.text(i);
        map.insert(QCoreApplication::translate("QOR", st.text(1).toUtf8().constData()), figures.join(QLatin1Char(',')));
    }
    return map;
}

// ---------------------------------------------------------------- filters

void QORModel::changeFilter(const QString& abbrev)
{
    changeFilter(abbrev, -1);
}

void QORModel::changeFilter(const QString& abbrev, int sort)
{
    const int previousSort = m_currentFilter ? m_currentFilter->sortType : 0;
    m_currentFilter = m_filters.value(abbrev);
    if (m_currentFilter)
        // The plain setter: sortImage deliberately stays as it was.
        m_currentFilter->sortType = sort == -1 ? previousSort : sort;
    emit filterChanged(m_currentFilter.get());
}

void QORModel::nextSortType()
{
    if (m_currentFilter)
        m_currentFilter->nextSortType();
}

void QORModel::changeSortType(int sort)
{
    if (m_currentFilter)
        m_currentFilter->changeSortType(sort);
}

void QORModel::setSortImage(const QString& image)
{
    if (m_currentFilter)
        m_currentFilter->sortImage = image;
}

void QORModel::setHasIncidents(bool on)
{
    if (m_currentFilter)
        m_currentFilter->hasIncidents = on;
}

void QORModel::setCategoryAbbrev(const QString& abbrev)
{
    if (m_currentFilter)
        m_currentFilter->categoryAbbrev = abbrev;
}

void QORModel::invalidateCurrentFilter()
{
    if (m_currentFilter)
        m_currentFilter->filteredArray.reset();
}

void QORModel::postFilterChanged()
{
    emit filterChanged(m_currentFilter.get());
}

void QORModel::postFilterChangeCancelled()
{
    emit filterChanged(nullptr);
}

MaterialList QORModel::getMaterialsUsingFilter(const Filter& filter)
{
    const QString& abbrev = filter.categoryAbbrev;
    const bool inc = filter.hasIncidents;
    auto select = [&](auto pred) {
        MaterialList out;
        for (const auto& m : std::as_const(m_materials))
            if (pred(*m) && (!inc || m->numIncidents() > 0))
                out.append(m);
        return out;
    };
    if (abbrev == QLatin1String("A"))
        return inc ? select([](const Material&) { return true; }) : m_materials;
    if (abbrev == QLatin1String("P"))
        return select([](const Material& m) { return m.mayPolymerize; });
    if (abbrev == QLatin1String("T"))
        return select([](const Material& m) { return m.toxicInhalationHazard.has_value(); });
    if (abbrev == QLatin1String("U")) {
        static const QSet<QString> common = { QStringLiteral("1005"), QStringLiteral("1040"), QStringLiteral("1052"),
                                              QStringLiteral("1079"), QStringLiteral("1050"), QStringLiteral("2186"),
                                              QStringLiteral("1017") };
        return select([](const Material& m) { return m.toxicInhalationHazard.has_value() && common.contains(m.unId); });
    }
    if (abbrev == QLatin1String("W"))
        return select([&](const Material& m) { return m.waterReactive && *m.waterReactive == abbrev; });
    if (abbrev == QLatin1String("Z"))
        return select([&](const Material& m) { return m.chemicalWarefareAgent && *m.chemicalWarefareAgent == abbrev; });
    if (abbrev == QLatin1String("M"))
        return select([](const Material& m) { return m.methLab; });
    if (!abbrev.isEmpty() && abbrev.at(0).isDigit())
        return {};  // hazard-class categories: materials carry no class field
    return m_materials;
}

void QORModel::loadFilterWithData(Filter& filter)
{
    releaseUnneededMemory();
    fillFilter(filter);
}

const QORModel::SharedOrders& QORModel::sharedOrders()
{
    if (m_sharedOrders && m_sharedOrders->count == m_materials.size())
        return *m_sharedOrders;
    SharedOrders& orders = m_sharedOrders.emplace(SharedOrders{});
    const int n = int(m_materials.size());
    orders.count = n;
    // The keys were read with the materials, once each.
    Q_ASSERT(m_sortKeys.size() == size_t(n));
    auto sortedBy = [n, this](int SortKeys::*field, bool descending) {
        std::vector<int> key(static_cast<size_t>(n));
        for (size_t i = 0; i < key.size(); ++i)
            key[i] = m_sortKeys[i].*field;
        std::vector<int> order(static_cast<size_t>(n));
        if (n == 0)
            return order;
        // Plain iterators, not a structured binding: lambdas below use them.
        const auto bounds = std::minmax_element(key.begin(), key.end());
        const auto low = bounds.first, high = bounds.second;
        const qint64 range = qint64(*high) - qint64(*low) + 1;
        if (range > 4 * qint64(n) + 1024) {
            for (int i = 0; i < n; ++i)
                order[size_t(i)] = i;
            std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
                return descending ? key[size_t(a)] > key[size_t(b)] : key[size_t(a)] < key[size_t(b)];
            });
            return order;
        }
        // Keys in a narrow range (guide numbers, UN numbers, most incident
        // counts): a counting sort, stable like the comparison sort above.
        const int base = *low;
        const auto slot = [&](int k) { return size_t(descending ? qint64(*high) - k : qint64(k) - base); };
        std::vector<int> start(size_t(range) + 1, 0);
        for (const int k : key)
            ++start[slot(k) + 1];
        for (size_t b = 1; b < start.size(); ++b)
            start[b] += start[b - 1];
        for (int i = 0; i < n; ++i)
            order[size_t(start[slot(key[size_t(i)])]++)] = i;
        return order;
    };
    orders.byGuide = sortedBy(&SortKeys::guide, false);
    orders.byIncidents = sortedBy(&SortKeys::incidents, true);
    orders.byUnId = sortedBy(&SortKeys::unId, false);
    return orders;
}

void QORModel::fillFilter(Filter& filter)
{
    logMemory("before filter rebuild");

    filter.alphaSections.clear();
    filter.guideSections.clear();
    filter.unIdSections.clear();
    filter.filteredArray = getMaterialsUsingFilter(filter);
    const MaterialList& list = *filter.filteredArray;
    addAlphaSections(filter.alphaSections, list);

    // The filter's members, by their place among all materials; the whole
    // list when the filter has every material.
    // The members come in the materials' order: one walk along both finds them.
    const SharedOrders& orders = sharedOrders();
    const bool everything = list.size() == m_materials.size();
    std::vector<char> member;
    if (!everything) {
        member.assign(size_t(m_materials.size()), 0);
        qsizetype next = 0;
        for (qsizetype i = 0; i < m_materials.size() && next < list.size(); ++i)
            if (m_materials.at(i) == list.at(next)) {
                member[size_t(i)] = 1;
                ++next;
            }
        if (next != list.size()) {  // not in that order after all: look each one up
            QSet<const Material*> members;
            for (const auto& m : list)
                members.insert(m.get());
            for (qsizetype i = 0; i < m_materials.size(); ++i)
                member[size_t(i)] = members.contains(m_materials.at(i).get());
        }
    }
    // A shared order restricted to the members; valid until the next call.
    std::vector<int> places;
    auto restricted = [&](const std::vector<int>& order) -> const std::vector<int>& {
        if (everything)
            return order;
        places.clear();
        for (const int i : order)
            if (member[size_t(i)])
                places.push_back(i);
        return places;
    };
    filter.incidentsSortedArray = materialsAt(m_materials, restricted(orders.byIncidents));

    const std::vector<int>& byGuide = restricted(orders.byGuide);
    filter.guideSortedArray = materialsAt(m_materials, byGuide);
    addSectionRuns(
        filter.guideSections, filter.guideSortedArray, byGuide,
        [&](int i) -> const QString& { return m_materials.at(i)->guideId; }, [](const QString& guide) { return guide; });

    const std::vector<int>& byUnId = restricted(orders.byUnId);
    filter.unIdSortedArray = materialsAt(m_materials, byUnId);
    addSectionRuns(
        filter.unIdSections, filter.unIdSortedArray, byUnId, [&](int i) { return m_sortKeys[size_t(i)].unIdBucket; },
        [](int bucket) { return bucket == SortKeys::kNoId ? QStringLiteral(" No Id") : QString::number(bucket); });
    filter.invalidateSectionKeys();
    logMemory("after filter rebuild");
}

MaterialList QORModel::getMaterials()
{
    if (!m_currentFilter)
        return {};
    if (!m_currentFilter->filteredArray)
        loadFilterWithData(*m_currentFilter);
    return *m_currentFilter->filteredArray;
}

int QORModel::getNumMaterials()
{
    return int(getMaterials().size());
}

QStringList QORModel::getSections()
{
    if (!m_currentFilter)
        return {};
    if (!m_currentFilter->filteredArray)
        loadFilterWithData(*m_currentFilter);
    return m_currentFilter->sectionKeys(m_currentFilter->sortType);
}

MaterialList QORModel::materialsForSection(int section)
{
    if (m_isLoading)
        return getLoadingMaterials();
    if (!m_currentFilter)
        return {};
    Filter& f = *m_currentFilter;
    if (!f.filteredArray)
        loadFilterWithData(f);
    if (f.sortType == SortIncidents)
        return f.incidentsSortedArray;
    const QStringList& keys = f.sectionKeys(f.sortType);
    if (keys.isEmpty())
        return {};  // no sections: nothing to show rather than out of range
    const QString key = keys.at(std::clamp(section, 0, int(keys.size()) - 1));
    const auto& dict = f.sortType == SortAlpha ? f.alphaSections : f.sortType == SortUnId ? f.unIdSections : f.guideSections;
    return dict.value(key);
}

MaterialPtr QORModel::materialAtIndex(int section, int row)
{
    const MaterialList list = materialsForSection(section);
    if (row < 0 || row >= list.size())
        return nullptr;
    return list.at(row);
}

const MaterialList& QORModel::getLoadingMaterials()
{
    if (m_loadingMaterials)
        return *m_loadingMaterials;
    MaterialList list;
    auto ac = std::make_shared<Material>();
    ac->name = QStringLiteral("AC");
    ac->unId = QStringLiteral("1051");
    ac->toxicInhalationHazard = QStringLiteral("X");
    ac->chemicalWarefareAgent = QStringLiteral("Z");
    ac->placardId = QStringLiteral("6.1");
    list.append(ac);

    const QString lang = Preferences::firstPreferredLanguage();
    struct Pair { const char* name; const char* unId; };
    static const Pair es[] = {
        { "Aceite de alcanfor", "1130" }, { "Aceite de colofonia", "1286" }, { "Aceite de esquisto", "1288" },
        { "Aceite de fusel", "1201" }, { "Aceite de petróleo crudo", "1267" }, { "Aceite de petróleo", "1270" },
        { "Aceite de pino", "1272" }, { "Aceite mineral para caldeo, ligero", "1202" },
    };
    static const Pair fr[] = {
        { "Accumulateurs au sodium", "2800" },
        { "Accumulateurs électriques, inversables remplis d'électrolyte liquide", "2794" },
        { "Accumulateurs électriques, remplis d'électrolyte liquide acide", "1754" },
        { "Accumulateurs électriques, remplis d'électrolyte liquide alcalin", "2795" },
        { "Accumulateurs électriques, secs, contenant de l'hydroxyde de potassium solide", "3028" },
        { "Accumulateurs, sous pression, pneumatique ou hydraulique", "1956" },
        { "Acétal", "1088" }, { "Acétaldéhyde", "1089" },
    };
    static const Pair en[] = {
        { "Acetal", "1088" }, { "Acetaldehyde", "1089" }, { "Acetaldehyde Ammonia", "1841" },
        { "Acetaldehyde Oxime", "2332" }, { "Acetic Acid, Glacial", "2789" },
        { "Acetic acid, solution, more than 10% but not more than 80% acid", "2789" },
        { "Acetic acid, solution, more than 80% acid", "2790" }, { "Acetic anhydride", "1715" },
        { "Acetone", "1090" }, { "Acetone Cyanohydrin, Stabilized", "1541" }, { "Acetone Oils", "1091" },
        { "Acetonitrile", "1648" }, { "Acetyl Bromide", "1718" },
    };
    auto add = [&](const Pair* begin, const Pair* end) {
        for (const Pair* p = begin; p != end; ++p) {
            auto m = std::make_shared<Material>();
            m->name = QString::fromUtf8(p->name);
            m->unId = QString::fromLatin1(p->unId);
            list.append(m);
        }
    };
    if (lang.startsWith(QLatin1String("es")))
        add(std::begin(es), std::end(es));
    else if (lang.startsWith(QLatin1String("fr")))
        add(std::begin(fr), std::end(fr));
    else
        add(std::begin(en), std::end(en));
    m_loadingMaterials = std::move(list);
    return *m_loadingMaterials;
}

QString QORModel::getDefaultSortImage() const
{
    if (m_currentFilter && !m_currentFilter->defaultSortImage.isEmpty())
        return m_currentFilter->defaultSortImage;
    return packDefaultSortImageFallback();
}

} // namespace qor
