#include "PropertyList.h"

#include "Clock.h"

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>
#include <cstring>
#include <vector>
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

// Used for the XML form only; the binary form has its own writer below.
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

// Binary form ("bplist00"), written directly: the library's writer spends
// most of its time uniquing objects, far too slow for a large history.
// Strings, integers and booleans are written once and shared.
class BinaryWriter {
public:
    bool add(const QVariant& value, QString* error) { return collect(value, error).has_value(); }

    QByteArray finish() const
    {
        const int refSize = bytesFor(quint64(m_objects.size()));
        QByteArray out("bplist00");
        out.reserve(m_payloadEstimate + qsizetype(m_objects.size()) * 4 + 40);
        std::vector<quint64> offsets;
        offsets.reserve(m_objects.size());
        for (const Object& o : m_objects) {
            offsets.push_back(quint64(out.size()));
            out.append(o.bytes);
            for (quint64 ref : o.refs)
                appendBigEndian(out, ref, refSize);
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
        QByteArray bytes;           // marker and payload
        std::vector<quint64> refs;  // for arrays and dictionaries, after the payload
    };
    std::vector<Object> m_objects;
    QHash<QString, quint64> m_strings;
    QHash<qint64, quint64> m_ints;
    quint64 m_bools[2] = { ~0ULL, ~0ULL };
    qsizetype m_payloadEstimate = 0;

    static int bytesFor(quint64 n)
    {
        return n <= 0xFF ? 1 : n <= 0xFFFF ? 2 : n <= 0xFFFFFFFFULL ? 4 : 8;
    }

    static void appendBigEndian(QByteArray& out, quint64 v, int size)
    {
        for (int shift = (size - 1) * 8; shift >= 0; shift -= 8)
            out.append(char((v >> shift) & 0xFF));
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

    quint64 push(QByteArray bytes)
    {
        m_payloadEstimate += bytes.size();
        m_objects.push_back(Object{ std::move(bytes), {} });
        return quint64(m_objects.size() - 1);
    }

    quint64 string(const QString& s)
    {
        auto it = m_strings.constFind(s);
        if (it != m_strings.constEnd())
            return *it;
        QByteArray bytes;
        bool ascii = true;
        for (QChar c : s)
            ascii = ascii && c.unicode() < 0x80;
        if (ascii) {
            appendMarker(bytes, 0x50, quint64(s.size()));
            bytes.append(s.toLatin1());
        } else {
            appendMarker(bytes, 0x60, quint64(s.size()));  // UTF-16 code units
            for (QChar c : s)
                appendBigEndian(bytes, c.unicode(), 2);
        }
        const quint64 index = push(std::move(bytes));
        m_strings.insert(s, index);
        return index;
    }

    std::optional<quint64> collect(const QVariant& value, QString* error)
    {
        switch (kindOf(value)) {
        case Kind::String:
            return string(value.toString());
        case Kind::Bool: {
            const bool b = value.toBool();
            if (m_bools[b] == ~0ULL)
                m_bools[b] = push(QByteArray(1, char(b ? 0x09 : 0x08)));
            return m_bools[b];
        }
        case Kind::Int:
        case Kind::UInt: {
            const bool big = kindOf(value) == Kind::UInt && value.toULongLong() > quint64(std::numeric_limits<qint64>::max());
            if (big) {  // sixteen bytes, the high half zero
                QByteArray bytes(1, char(0x14));
                appendBigEndian(bytes, 0, 8);
                appendBigEndian(bytes, value.toULongLong(), 8);
                return push(std::move(bytes));
            }
            const qint64 v = value.toLongLong();
            auto it = m_ints.constFind(v);
            if (it != m_ints.constEnd())
                return *it;
            QByteArray bytes;
            appendInt(bytes, v);
            const quint64 index = push(std::move(bytes));
            m_ints.insert(v, index);
            return index;
        }
        case Kind::Real: {
            QByteArray bytes;
            appendDouble(bytes, 0x23, value.toDouble());
            return push(std::move(bytes));
        }
        case Kind::Date: {
            QByteArray bytes;
            appendDouble(bytes, 0x33, Clock::secondsSinceReferenceDate(value.toDateTime()));
            return push(std::move(bytes));
        }
        case Kind::Data: {
            const QByteArray data = value.toByteArray();
            QByteArray bytes;
            appendMarker(bytes, 0x40, quint64(data.size()));
            bytes.append(data);
            return push(std::move(bytes));
        }
        case Kind::Uid: {
            const quint64 v = value.value<PlistUid>().value;
            const int size = bytesFor(v);
            QByteArray bytes(1, char(0x80 | (size - 1)));
            appendBigEndian(bytes, v, size);
            return push(std::move(bytes));
        }
        case Kind::Array: {
            const QVariantList list = value.toList();
            QByteArray bytes;
            appendMarker(bytes, 0xA0, quint64(list.size()));
            const quint64 index = push(std::move(bytes));
            std::vector<quint64> refs;
            refs.reserve(size_t(list.size()));
            for (const QVariant& item : list) {
                const auto ref = collect(item, error);
                if (!ref)
                    return std::nullopt;
                refs.push_back(*ref);
            }
            m_objects[index].refs = std::move(refs);
            return index;
        }
        case Kind::Dict: {
            const QVariantMap map = value.toMap();
            QByteArray bytes;
            appendMarker(bytes, 0xD0, quint64(map.size()));
            const quint64 index = push(std::move(bytes));
            std::vector<quint64> refs(size_t(map.size()) * 2);
            size_t i = 0;
            for (auto it = map.constBegin(); it != map.constEnd(); ++it, ++i) {
                refs[i] = string(it.key());
                const auto ref = collect(it.value(), error);
                if (!ref)
                    return std::nullopt;
                refs[size_t(map.size()) + i] = *ref;
            }
            m_objects[index].refs = std::move(refs);
            return index;
        }
        case Kind::Unsupported:
            break;
        }
        unsupported(value, error);
        return std::nullopt;
    }
};

// libplist asserts (ending the process) when asked for a key whose text holds
// a NUL, so such lists are refused before libplist sees them. Binary lists:
// every string object is checked; XML lists: raw NULs and &#0; references.
bool holdsNulInText(const QByteArray& bytes)
{
    if (!bytes.startsWith("bplist")) {
        static const QRegularExpression nulReference(QStringLiteral("&#(0+|[xX]0+);"));
        return bytes.contains('\0') || nulReference.match(QString::fromLatin1(bytes)).hasMatch();
    }
    const qsizetype size = bytes.size();
    if (size < 8 + 32)
        return false;  // libplist refuses it
    const auto* b = reinterpret_cast<const uchar*>(bytes.constData());
    const auto readInt = [&](qsizetype at, int width) {
        quint64 v = 0;
        for (int i = 0; i < width; ++i)
            v = v << 8 | b[at + i];
        return v;
    };
    const uchar* trailer = b + size - 32;
    const int offsetSize = trailer[6];
    const quint64 objects = readInt(size - 24, 8);
    const quint64 table = readInt(size - 8, 8);
    if (offsetSize < 1 || offsetSize > 8 || table >= quint64(size) || objects > quint64(size))
        return false;
    for (quint64 i = 0; i < objects; ++i) {
        const quint64 entry = table + i * offsetSize;
        if (entry + offsetSize > quint64(size) - 32)
            break;
        const quint64 at = readInt(qsizetype(entry), offsetSize);
        if (at >= quint64(size))
            continue;
        const uchar marker = b[at];
        if ((marker & 0xF0) != 0x50 && (marker & 0xF0) != 0x60)
            continue;
        quint64 length = marker & 0x0F;
        quint64 start = at + 1;
        if (length == 0x0F) {
            if (start >= quint64(size) || (b[start] & 0xF0) != 0x10)
                continue;
            const int width = 1 << (b[start] & 0x0F);
            if (width > 8 || start + 1 + width > quint64(size))
                continue;
            length = readInt(qsizetype(start + 1), width);
            start += 1 + width;
        }
        const int unit = (marker & 0xF0) == 0x60 ? 2 : 1;
        const quint64 end = std::min<quint64>(quint64(size), start + std::min<quint64>(length, quint64(size)) * unit);
        for (quint64 p = start; p + unit <= end; p += unit)
            if (b[p] == 0 && (unit == 1 || b[p + 1] == 0))
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

std::optional<QByteArray> serialize(const QVariant& value, Format format, QString* error)
{
    if (format == Format::Binary) {
        BinaryWriter writer;
        if (!writer.add(value, error))
            return std::nullopt;
        return writer.finish();
    }
    Node root = toNode(value, error);
    if (!root)
        return std::nullopt;
    char* out = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &out, &length);
    if (!out) {
        if (error)
            *error = QStringLiteral("the property list could not be encoded");
        return std::nullopt;
    }
    QByteArray bytes(out, qsizetype(length));
    plist_to_xml_free(out);
    return bytes;
}

std::optional<QVariant> parse(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > qsizetype(std::numeric_limits<uint32_t>::max()))
        return std::nullopt;
    if (holdsNulInText(bytes))
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
