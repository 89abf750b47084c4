#include "PropertyList.h"

#include "Clock.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTimeZone>
#include <limits>
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

bool unsupported(const QVariant& value, QString* error)
{
    if (error && error->isEmpty())
        *error = QStringLiteral("a property list cannot hold a value of type %1")
                     .arg(QString::fromLatin1(value.metaType().name() ? value.metaType().name() : "invalid"));
    return false;
}

Node toNode(const QVariant& value, QString* error)
{
    switch (kindOf(value)) {
    case Kind::String:
        return Node(plist_new_string(value.toString().toUtf8().constData()));
    case Kind::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case Kind::Int:
        // Two's complement: negative values read back as the same signed value.
        return Node(plist_new_uint(quint64(value.toLongLong())));
    case Kind::UInt:
        return Node(plist_new_uint(value.toULongLong()));
    case Kind::Real:
        return Node(plist_new_real(value.toDouble()));
    case Kind::Data: {
        const QByteArray bytes = value.toByteArray();
        return Node(plist_new_data(bytes.constData(), quint64(bytes.size())));
    }
    case Kind::Date: {
        const qint64 ms = value.toDateTime().toMSecsSinceEpoch() - kReferenceDateMsecs;
        const qint64 sec = ms >= 0 ? ms / 1000 : -((-ms + 999) / 1000);
        if (sec < std::numeric_limits<int32_t>::min() || sec > std::numeric_limits<int32_t>::max())
            break;
        return Node(plist_new_date(int32_t(sec), int32_t((ms - sec * 1000) * 1000)));
    }
    case Kind::Array: {
        Node array(plist_new_array());
        for (const QVariant& item : value.toList()) {
            Node child = toNode(item, error);
            if (!child)
                return {};
            plist_array_append_item(array.get(), child.release());
        }
        return array;
    }
    case Kind::Dict: {
        Node dict(plist_new_dict());
        const QVariantMap map = value.toMap();
        for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
            Node child = toNode(it.value(), error);
            if (!child)
                return {};
            plist_dict_set_item(dict.get(), it.key().toUtf8().constData(), child.release());
        }
        return dict;
    }
    case Kind::Uid:
        return Node(plist_new_uid(value.value<PlistUid>().value));
    case Kind::Unsupported:
        break;
    }
    unsupported(value, error);
    return {};
}

// libplist asserts (ending the process) when asked for the text of a
// dictionary key that holds a NUL, so such lists are refused before it sees
// them. A NUL in a value does it no harm. Binary lists: the
// strings that dictionaries use as keys; XML lists: any raw NUL, and NUL
// references in <key> elements.
bool holdsNulInKey(const QByteArray& bytes)
{
    if (!bytes.startsWith("bplist")) {
        // XML never holds a raw NUL; a reference to one matters only in a key.
        static const QRegularExpression nulKey(QStringLiteral("<key>[^<]*&#(0+|[xX]0+);"));
        return bytes.contains('\0') || nulKey.match(QString::fromLatin1(bytes)).hasMatch();
    }
    const qsizetype size = bytes.size();
    if (size < 8 + 32)
        return false;  // libplist refuses it
    const auto* b = reinterpret_cast<const uchar*>(bytes.constData());
    const auto readInt = [&](quint64 at, int width) {
        quint64 v = 0;
        for (int i = 0; i < width; ++i)
            v = v << 8 | b[at + quint64(i)];
        return v;
    };
    const uchar* trailer = b + size - 32;
    const int offsetSize = trailer[6];
    const int refSize = trailer[7];
    const quint64 objects = readInt(quint64(size) - 24, 8);
    const quint64 table = readInt(quint64(size) - 8, 8);
    const quint64 end = quint64(size) - 32;
    if (offsetSize < 1 || offsetSize > 8 || refSize < 1 || refSize > 8 || table >= end || objects > quint64(size))
        return false;
    // Where object `i` starts, or `end` when the table does not say.
    const auto objectAt = [&](quint64 i) {
        const quint64 entry = table + i * quint64(offsetSize);
        if (i >= objects || entry + quint64(offsetSize) > end)
            return end;
        return std::min(readInt(entry, offsetSize), end);
    };
    // A marker's count: the low nibble, or an integer object after it.
    const auto countAt = [&](quint64 at, quint64* count, quint64* start) {
        *count = b[at] & 0x0F;
        *start = at + 1;
        if (*count != 0x0F)
            return true;
        if (*start >= end || (b[*start] & 0xF0) != 0x10)
            return false;
        const int width = 1 << (b[*start] & 0x0F);
        if (width > 8 || *start + 1 + quint64(width) > end)
            return false;
        *count = readInt(*start + 1, width);
        *start += 1 + quint64(width);
        return true;
    };
    const auto stringHoldsNul = [&](quint64 at) {
        if (at >= end || ((b[at] & 0xF0) != 0x50 && (b[at] & 0xF0) != 0x60))
            return false;
        quint64 length = 0, start = 0;
        if (!countAt(at, &length, &start))
            return false;
        const int unit = (b[at] & 0xF0) == 0x60 ? 2 : 1;
        const quint64 stop = std::min<quint64>(end, start + std::min<quint64>(length, end) * quint64(unit));
        for (quint64 p = start; p + quint64(unit) <= stop; p += quint64(unit))
            if (b[p] == 0 && (unit == 1 || b[p + 1] == 0))
                return true;
        return false;
    };
    for (quint64 i = 0; i < objects; ++i) {
        const quint64 at = objectAt(i);
        if (at >= end || (b[at] & 0xF0) != 0xD0)
            continue;
        quint64 count = 0, keys = 0;
        if (!countAt(at, &count, &keys))
            continue;
        for (quint64 k = 0; k < count && keys + (k + 1) * quint64(refSize) <= end; ++k)
            if (stringHoldsNul(objectAt(readInt(keys + k * quint64(refSize), refSize))))
                return true;
    }
    return false;
}

// Converts a parsed tree to Qt values. Nesting deeper than any real file
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
    Node root = toNode(value, error);
    if (!root)
        return std::nullopt;
    char* out = nullptr;
    uint32_t length = 0;
    plist_to_bin(root.get(), &out, &length);
    if (!out) {
        if (error)
            *error = QStringLiteral("the property list could not be encoded");
        return std::nullopt;
    }
    QByteArray bytes(out, qsizetype(length));
    plist_to_bin_free(out);
    return bytes;
}

std::optional<QVariant> parse(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > qsizetype(std::numeric_limits<uint32_t>::max()))
        return std::nullopt;
    if (holdsNulInKey(bytes))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), uint32_t(bytes.size()), &root);
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
