#include "PropertyList.h"

#include "Clock.h"

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>
#include <QTimeZone>
#include <cmath>
#include <cstring>
#include <deque>
#include <limits>
#include <vector>
#include <memory>
#include <plist/plist.h>

namespace qor::plist {

namespace {

constexpr qint64 kReferenceDateMsecs = Clock::kReferenceDateMsecs;

struct NodeDeleter {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

enum class Kind { String, Bool, Int, UInt, Real, Data, Date, Array, Dict, Uid, Unsupported };

Kind kindOf(const QVariant& value)
{
    switch (value.metaType().id()) {
    case QMetaType::QString:
        return Kind::String;
    case QMetaType::Bool:
        return Kind::Bool;
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
        return Kind::Int;
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
        return Kind::UInt;
    case QMetaType::Double:
    case QMetaType::Float:
        return Kind::Real;
    case QMetaType::QByteArray:
        return Kind::Data;
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? Kind::Date : Kind::Unsupported;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return Kind::Array;
    case QMetaType::QVariantMap:
        return Kind::Dict;
    default:
        return value.metaType().id() == qMetaTypeId<PlistUid>() ? Kind::Uid : Kind::Unsupported;
    }
}

// The value held, without QVariant's conversions (which copy through the
// meta-type system); only for a variant known to hold exactly a T.
template <typename T>
const T& held(const QVariant& value)
{
    Q_ASSERT(value.metaType() == QMetaType::fromType<T>());
    return *static_cast<const T*>(value.constData());
}

bool unsupported(const QVariant& value, QString* error)
{
    if (error && error->isEmpty())
        *error = QStringLiteral("a property list cannot hold a value of type %1")
                     .arg(QString::fromLatin1(value.metaType().name() ? value.metaType().name() : "invalid"));
    return false;
}

// The binary form ("bplist00"), written directly: libplist's writer spends
// most of its time uniquing objects, far too slow for a large history.
// Short strings, integers and booleans are written once and shared. Objects are
// gathered into one payload buffer and one reference list, then laid out
// once the reference width is known.
class BinaryWriter {
public:
    bool add(const QVariant& value, QString* error)
    {
        if (value.metaType().id() == QMetaType::QVariantList)
            m_strings.reserve(value.toList().size() + 64);
        return collect(value, 0, error).has_value();
    }

    QByteArray finish() const
    {
        const int refSize = bytesFor(quint64(m_objects.size()));
        QByteArray out;
        out.reserve(8 + m_payload.size() + qsizetype(m_refs.size()) * refSize + qsizetype(m_objects.size()) * 4 + 32);
        out.append("bplist00", 8);
        std::vector<quint64> offsets;
        offsets.reserve(m_objects.size());
        for (const Object& o : m_objects) {
            offsets.push_back(quint64(out.size()));
            out.append(m_payload.constData() + o.start, o.length);
            for (quint32 i = 0; i < o.refCount; ++i)
                appendBigEndian(out, m_refs[o.refStart + i], refSize);
        }
        const quint64 tableOffset = quint64(out.size());
        const int offsetSize = bytesFor(tableOffset);
        for (quint64 off : offsets)
            appendBigEndian(out, off, offsetSize);
        out.append(6, '\0');
        out.append(char(offsetSize));
        out.append(char(refSize));
        appendBigEndian(out, quint64(m_objects.size()), 8);
        appendBigEndian(out, 0, 8);  // the root is the first object
        appendBigEndian(out, tableOffset, 8);
        return out;
    }

private:
    struct Object {
        qsizetype start = 0;   // marker and payload in m_payload
        qsizetype length = 0;
        size_t refStart = 0;   // for arrays and dictionaries, in m_refs
        quint32 refCount = 0;
    };
    std::vector<Object> m_objects;
    QByteArray m_payload;
    std::vector<quint32> m_refs;
    // One scratch list per nesting level, reused: a container's references
    // are complete only after its children have been gathered. A deque, so
    // that a deeper level being added leaves the outer lists in place.
    std::deque<std::vector<quint32>> m_scratch;
    QHash<QString, quint32> m_strings;
    QHash<qint64, quint32> m_ints;
    quint32 m_bools[2] = { ~0U, ~0U };

    static int bytesFor(quint64 n)
    {
        return n <= 0xFF ? 1 : n <= 0xFFFF ? 2 : n <= 0xFFFFFFFFULL ? 4 : 8;
    }

    static void appendBigEndian(QByteArray& out, quint64 v, int size)
    {
        char bytes[8];
        for (int i = 0; i < size; ++i)
            bytes[i] = char((v >> ((size - 1 - i) * 8)) & 0xFF);
        out.append(bytes, size);
    }

    static void appendInt(QByteArray& out, qint64 v)
    {
        if (v < 0) {
            out.append(char(0x13));  // eight bytes, the only signed width
            appendBigEndian(out, quint64(v), 8);
            return;
        }
        const int size = bytesFor(quint64(v));
        out.append(char(0x10 | (size == 1 ? 0 : size == 2 ? 1 : size == 4 ? 2 : 3)));
        appendBigEndian(out, quint64(v), size);
    }

    static void appendMarker(QByteArray& out, int type, quint64 count)
    {
        if (count < 15) {
            out.append(char(type | int(count)));
            return;
        }
        out.append(char(type | 0xF));
        appendInt(out, qint64(count));
    }

    static void appendDouble(QByteArray& out, int marker, double d)
    {
        quint64 bits;
        std::memcpy(&bits, &d, sizeof bits);
        out.append(char(marker));
        appendBigEndian(out, bits, 8);
    }

    // Starts an object whose bytes the caller appends to m_payload next.
    quint32 begin()
    {
        m_objects.push_back(Object{ m_payload.size(), 0, 0, 0 });
        return quint32(m_objects.size() - 1);
    }
    quint32 end(quint32 index)
    {
        m_objects[index].length = m_payload.size() - m_objects[index].start;
        return index;
    }

    // Keys and short values (guide numbers, placard ids, marks) repeat in
    // every entry and are shared; longer texts such as names rarely repeat,
    // and are written as they come rather than hashed.
    static constexpr qsizetype kSharedStringLength = 8;

    quint32 string(const QString& s, bool key = false)
    {
        const bool shared = key || s.size() <= kSharedStringLength;
        if (shared) {
            const auto it = m_strings.constFind(s);
            if (it != m_strings.constEnd())
                return *it;
        }
        const quint32 index = begin();
        bool ascii = true;
        for (QChar c : s)
            ascii = ascii && c.unicode() < 0x80;
        appendMarker(m_payload, ascii ? 0x50 : 0x60, quint64(s.size()));  // UTF-16 counts code units
        const qsizetype at = m_payload.size();
        m_payload.resize(at + s.size() * (ascii ? 1 : 2));
        char* out = m_payload.data() + at;
        for (QChar c : s) {
            if (!ascii)
                *out++ = char(c.unicode() >> 8);
            *out++ = char(c.unicode() & 0xFF);
        }
        end(index);
        if (shared)
            m_strings.insert(s, index);
        return index;
    }

    std::vector<quint32>& scratch(int depth)
    {
        while (size_t(depth) >= m_scratch.size())
            m_scratch.emplace_back();
        std::vector<quint32>& refs = m_scratch[size_t(depth)];
        refs.clear();
        return refs;
    }

    // Completes a container whose marker is written: its references go last.
    void setRefs(quint32 index, const std::vector<quint32>& refs)
    {
        m_objects[index].refStart = m_refs.size();
        m_objects[index].refCount = quint32(refs.size());
        m_refs.insert(m_refs.end(), refs.begin(), refs.end());
    }

    std::optional<quint32> collect(const QVariant& value, int depth, QString* error)
    {
        switch (kindOf(value)) {
        case Kind::String:
            return string(held<QString>(value));
        case Kind::Bool: {
            const bool b = value.toBool();
            if (m_bools[b] == ~0U) {
                m_bools[b] = begin();
                m_payload.append(char(b ? 0x09 : 0x08));
                end(m_bools[b]);
            }
            return m_bools[b];
        }
        case Kind::Int:
        case Kind::UInt: {
            if (kindOf(value) == Kind::UInt && value.toULongLong() > quint64(std::numeric_limits<qint64>::max())) {
                const quint32 index = begin();  // sixteen bytes, the high half zero
                m_payload.append(char(0x14));
                appendBigEndian(m_payload, 0, 8);
                appendBigEndian(m_payload, value.toULongLong(), 8);
                return end(index);
            }
            const qint64 v = value.toLongLong();
            const auto it = m_ints.constFind(v);
            if (it != m_ints.constEnd())
                return *it;
            const quint32 index = begin();
            appendInt(m_payload, v);
            m_ints.insert(v, end(index));
            return index;
        }
        case Kind::Real: {
            const quint32 index = begin();
            appendDouble(m_payload, 0x23, value.toDouble());
            return end(index);
        }
        case Kind::Date: {
            const quint32 index = begin();
            appendDouble(m_payload, 0x33, Clock::secondsSinceReferenceDate(value.toDateTime()));
            return end(index);
        }
        case Kind::Data: {
            const QByteArray data = value.toByteArray();
            const quint32 index = begin();
            appendMarker(m_payload, 0x40, quint64(data.size()));
            m_payload.append(data);
            return end(index);
        }
        case Kind::Uid: {
            const quint64 v = value.value<PlistUid>().value;
            const int size = bytesFor(v);
            const quint32 index = begin();
            m_payload.append(char(0x80 | (size - 1)));
            appendBigEndian(m_payload, v, size);
            return end(index);
        }
        case Kind::Array: {
            const QVariantList list = value.metaType().id() == QMetaType::QVariantList ? held<QVariantList>(value) : value.toList();
            const quint32 index = begin();
            appendMarker(m_payload, 0xA0, quint64(list.size()));
            end(index);
            std::vector<quint32>& refs = scratch(depth);
            refs.resize(size_t(list.size()));
            for (qsizetype i = 0; i < list.size(); ++i) {
                const auto ref = collect(list.at(i), depth + 1, error);
                if (!ref)
                    return std::nullopt;
                refs[size_t(i)] = *ref;
            }
            setRefs(index, refs);
            return index;
        }
        case Kind::Dict: {
            const QVariantMap& map = held<QVariantMap>(value);
            const quint32 index = begin();
            appendMarker(m_payload, 0xD0, quint64(map.size()));
            end(index);
            // All keys, then all values.
            std::vector<quint32>& refs = scratch(depth);
            const size_t n = size_t(map.size());
            refs.resize(n * 2);
            size_t i = 0;
            for (auto it = map.constBegin(); it != map.constEnd(); ++it, ++i) {
                refs[i] = string(it.key(), true);
                const auto ref = collect(it.value(), depth + 1, error);
                if (!ref)
                    return std::nullopt;
                refs[n + i] = *ref;
            }
            setRefs(index, refs);
            return index;
        }
        case Kind::Unsupported:
            break;
        }
        unsupported(value, error);
        return std::nullopt;
    }
};

// Reads the binary form directly into Qt values; libplist's parser builds a
// node tree first, which costs as much again. Every offset, count and
// reference is checked against the bytes. Each object is converted once,
// however often it is referred to (keys shared by every entry, or a damaged
// list whose arrays each refer twice to the next); an object that contains
// itself, or nesting deeper than any real file, fails the whole parse.
class BinaryReader {
public:
    static constexpr int kMaxDepth = 512;

    explicit BinaryReader(const QByteArray& bytes)
        : m_b(reinterpret_cast<const uchar*>(bytes.constData())), m_size(quint64(bytes.size()))
    {
    }

    std::optional<QVariant> read()
    {
        if (m_size < 8 + 32 || std::memcmp(m_b, "bplist00", 8) != 0)
            return std::nullopt;
        m_end = m_size - 32;
        const uchar* trailer = m_b + m_end;
        m_offsetSize = trailer[6];
        m_refSize = trailer[7];
        m_count = be(m_end + 8, 8);
        const quint64 top = be(m_end + 16, 8);
        m_table = be(m_end + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_refSize < 1 || m_refSize > 8 || m_table < 8 || m_table > m_end
            || m_count == 0 || m_count > (m_end - m_table) / quint64(m_offsetSize) || top >= m_count)
            return std::nullopt;
        m_values.resize(size_t(m_count));
        m_state.assign(size_t(m_count), Unread);
        return object(top, 0);
    }

private:
    enum State : uchar { Unread, Reading, Read };
    const uchar* m_b;
    quint64 m_size;
    quint64 m_end = 0;    // where the trailer starts
    quint64 m_table = 0;  // where the offset table starts
    quint64 m_count = 0;
    int m_offsetSize = 0;
    int m_refSize = 0;
    std::vector<QVariant> m_values;
    std::vector<State> m_state;

    quint64 be(quint64 at, int width) const
    {
        quint64 v = 0;
        for (int i = 0; i < width; ++i)
            v = v << 8 | m_b[at + quint64(i)];
        return v;
    }

    // Whether `count` items of `unit` bytes fit between `at` and the trailer.
    bool fits(quint64 at, quint64 count, quint64 unit) const { return at <= m_end && count <= (m_end - at) / unit; }

    std::optional<QVariant> object(quint64 index, int depth)
    {
        if (index >= m_count || depth > kMaxDepth)
            return std::nullopt;
        switch (m_state[size_t(index)]) {
        case Read:
            return m_values[size_t(index)];
        case Reading:
            return std::nullopt;
        case Unread:
            break;
        }
        const quint64 at = be(m_table + index * quint64(m_offsetSize), m_offsetSize);
        if (at < 8 || at >= m_end)
            return std::nullopt;
        m_state[size_t(index)] = Reading;
        auto value = objectAt(at, depth);
        if (!value)
            return std::nullopt;
        m_state[size_t(index)] = Read;
        m_values[size_t(index)] = *value;
        return value;
    }

    // The count after a marker: its low half, or an integer object after it.
    bool count(quint64 at, quint64* n, quint64* start) const
    {
        *n = m_b[at] & 0x0F;
        *start = at + 1;
        if (*n != 0x0F)
            return true;
        if (*start >= m_end || (m_b[*start] & 0xF0) != 0x10 || (m_b[*start] & 0x0F) > 3)
            return false;
        const int width = 1 << (m_b[*start] & 0x0F);
        if (!fits(*start + 1, quint64(width), 1))
            return false;
        *n = be(*start + 1, width);
        *start += 1 + quint64(width);
        return true;
    }

    std::optional<QVariant> objectAt(quint64 at, int depth)
    {
        const uchar marker = m_b[at];
        const int low = marker & 0x0F;
        quint64 n = 0, start = 0;
        switch (marker >> 4) {
        case 0x0:
            if (marker == 0x08 || marker == 0x09)
                return QVariant(marker == 0x09);
            return std::nullopt;
        case 0x1: {
            if (low > 4 || !fits(at + 1, quint64(1) << low, 1))
                return std::nullopt;
            // Sixteen bytes: the low half, as libplist reads it.
            const quint64 v = low == 4 ? be(at + 9, 8) : be(at + 1, 1 << low);
            return QVariant(qlonglong(v));
        }
        case 0x2:
            if (low == 2 && fits(at + 1, 4, 1)) {
                const quint32 bits = quint32(be(at + 1, 4));
                float f;
                std::memcpy(&f, &bits, sizeof f);
                return QVariant(double(f));
            }
            if (low == 3 && fits(at + 1, 8, 1))
                return QVariant(realAt(at + 1));
            return std::nullopt;
        case 0x3: {
            if (marker != 0x33 || !fits(at + 1, 8, 1))
                return std::nullopt;
            const double seconds = realAt(at + 1);
            if (!std::isfinite(seconds) || std::abs(seconds) > 1e12)
                return std::nullopt;
            return QVariant(Clock::fromSecondsSinceReferenceDate(seconds));
        }
        case 0x4:
            if (!count(at, &n, &start) || !fits(start, n, 1))
                return std::nullopt;
            return QVariant(QByteArray(reinterpret_cast<const char*>(m_b + start), qsizetype(n)));
        case 0x5:
            if (!count(at, &n, &start) || !fits(start, n, 1))
                return std::nullopt;
            return QVariant(QString::fromUtf8(reinterpret_cast<const char*>(m_b + start), qsizetype(n)));
        case 0x6: {
            if (!count(at, &n, &start) || !fits(start, n, 2))
                return std::nullopt;
            QString text(qsizetype(n), Qt::Uninitialized);
            for (quint64 i = 0; i < n; ++i)
                text[qsizetype(i)] = QChar(char16_t(be(start + 2 * i, 2)));
            return QVariant(text);
        }
        case 0x8:
            if (low > 7 || !fits(at + 1, quint64(low) + 1, 1))
                return std::nullopt;
            return QVariant::fromValue(PlistUid{ be(at + 1, low + 1) });
        case 0xA:
        case 0xC: {  // arrays, and sets read as arrays
            if (!count(at, &n, &start) || !fits(start, n, quint64(m_refSize)))
                return std::nullopt;
            QVariantList list;
            list.reserve(qsizetype(n));
            for (quint64 i = 0; i < n; ++i) {
                auto item = object(be(start + i * quint64(m_refSize), m_refSize), depth + 1);
                if (!item)
                    return std::nullopt;
                list.append(std::move(*item));
            }
            return QVariant(std::move(list));
        }
        case 0xD: {  // all keys, then all values
            if (!count(at, &n, &start) || n > (quint64(1) << 62) || !fits(start, n * 2, quint64(m_refSize)))
                return std::nullopt;
            QVariantMap map;
            const quint64 values = start + n * quint64(m_refSize);
            for (quint64 i = 0; i < n; ++i) {
                const auto key = object(be(start + i * quint64(m_refSize), m_refSize), depth + 1);
                if (!key || key->metaType().id() != QMetaType::QString)
                    return std::nullopt;
                // Such a key means nothing; libplist could not even read it.
                const QString text = key->toString();
                if (text.contains(QChar(0)))
                    return std::nullopt;
                auto value = object(be(values + i * quint64(m_refSize), m_refSize), depth + 1);
                if (!value)
                    return std::nullopt;
                // Keys come sorted from most writers: inserting at the end
                // then needs no search.
                map.insert(map.cend(), text, std::move(*value));
            }
            return QVariant(std::move(map));
        }
        default:
            return std::nullopt;
        }
    }

    double realAt(quint64 at) const
    {
        const quint64 bits = be(at, 8);
        double d;
        std::memcpy(&d, &bits, sizeof d);
        return d;
    }
};

// libplist asserts (ending the process) when asked for the text of a key
// that holds a NUL, so such XML lists are refused before it sees them. XML
// never holds a raw NUL; a reference to one matters only in a key.
bool xmlHoldsNulInKey(const QByteArray& bytes)
{
    static const QRegularExpression nulKey(QStringLiteral("<key>[^<]*&#(0+|[xX]0+);"));
    return bytes.contains('\0') || nulKey.match(QString::fromLatin1(bytes)).hasMatch();
}

// Converts libplist's tree (XML lists) to Qt values. Nesting deeper than any real file
// fails the whole parse rather than the stack.
class Reader {
public:
    static constexpr int kMaxDepth = 512;
    // Nested too deep, or a tree libplist cannot be asked about safely.
    bool unusable = false;

    QVariant fromNode(plist_t node)
    {
        const plist_type type = plist_get_node_type(node);
        if (type != PLIST_ARRAY && type != PLIST_DICT)
            return scalar(node, type);
        if (m_depth >= kMaxDepth) {
            unusable = true;
            return {};
        }
        ++m_depth;
        QVariant value = type == PLIST_ARRAY ? array(node) : dict(node);
        --m_depth;
        return value;
    }

private:
    int m_depth = 0;
    // Dictionary keys repeat in every element of a large array; sharing one
    // QString per distinct key saves an allocation per entry.
    std::vector<std::pair<QByteArray, QString>> m_keys;

    QString key(const char* key)
    {
        for (const auto& [bytes, text] : m_keys)
            if (bytes == key)
                return text;
        QString text = QString::fromUtf8(key);
        if (m_keys.size() < 32)
            m_keys.emplace_back(QByteArray(key), text);
        return text;
    }

    QVariant array(plist_t node)
    {
        // Iterated: indexed access walks the list from the start every time.
        QVariantList list;
        list.reserve(plist_array_get_size(node));
        plist_array_iter it = nullptr;
        plist_array_new_iter(node, &it);
        for (plist_t child = nullptr;;) {
            plist_array_next_item(node, it, &child);
            if (!child || unusable)
                break;
            list.append(fromNode(child));
        }
        free(it);
        return list;
    }

    QVariant dict(plist_t node)
    {
        QVariantMap map;
        plist_dict_iter it = nullptr;
        plist_dict_new_iter(node, &it);
        for (;;) {
            plist_t child = nullptr;
            plist_dict_next_item(node, it, nullptr, &child);
            if (!child || unusable)
                break;
            // A damaged binary list can put another kind of node where a key
            // belongs, and libplist asserts when asked for its text.
            const plist_t keyNode = plist_dict_item_get_key(child);
            if (!keyNode || plist_get_node_type(keyNode) != PLIST_KEY) {
                unusable = true;
                break;
            }
            char* k = nullptr;
            plist_get_key_val(keyNode, &k);
            map.insert(key(k ? k : ""), fromNode(child));
            free(k);
        }
        free(it);
        return map;
    }

    static QVariant scalar(plist_t node, plist_type type)
    {
        switch (type) {
        case PLIST_BOOLEAN: {
            uint8_t b = 0;
            plist_get_bool_val(node, &b);
            return bool(b);
        }
        case PLIST_UINT: {
            uint64_t v = 0;
            plist_get_uint_val(node, &v);
            return qlonglong(v);
        }
        case PLIST_REAL: {
            double v = 0;
            plist_get_real_val(node, &v);
            return v;
        }
        case PLIST_STRING: {
            uint64_t len = 0;
            const char* s = plist_get_string_ptr(node, &len);
            return s ? QString::fromUtf8(s, qsizetype(len)) : QString(QLatin1String(""));
        }
        case PLIST_DATA: {
            uint64_t len = 0;
            const char* d = plist_get_data_ptr(node, &len);
            return QByteArray(d, qsizetype(len));
        }
        case PLIST_DATE: {
            int32_t sec = 0, usec = 0;
            plist_get_date_val(node, &sec, &usec);
            // The library splits the stored double into truncated seconds and
            // the fraction's magnitude, so the fraction takes the sign of the
            // seconds (only the last second before 2001 is ambiguous), and
            // rounding undoes the truncation.
            const qint64 fraction = qRound64(usec / 1000.0);
            const qint64 ms = kReferenceDateMsecs + qint64(sec) * 1000 + (sec < 0 ? -fraction : fraction);
            return QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc());
        }
        case PLIST_UID: {
            uint64_t v = 0;
            plist_get_uid_val(node, &v);
            return QVariant::fromValue(PlistUid{ v });
        }
        default:
            return {};
        }
    }
};

} // namespace

std::optional<QByteArray> serialize(const QVariant& value, QString* error)
{
    BinaryWriter writer;
    if (!writer.add(value, error))
        return std::nullopt;
    return writer.finish();
}

std::optional<QVariant> parse(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > qsizetype(std::numeric_limits<uint32_t>::max()))
        return std::nullopt;
    if (bytes.startsWith("bplist"))
        return BinaryReader(bytes).read();
    if (xmlHoldsNulInKey(bytes))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_xml(bytes.constData(), uint32_t(bytes.size()), &root);
    if (!root)
        return std::nullopt;
    Node holder(root);
    Reader reader;
    QVariant value = reader.fromNode(root);
    if (reader.unusable)
        return std::nullopt;
    return value;
}

} // namespace qor::plist
