#include "PropertyList.h"

#include <QDateTime>
#include <QTimeZone>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace qor::plist {

namespace {

constexpr qint64 kReferenceDateMsecs = 978307200000LL;  // property-list dates count from 2001-01-01Z

struct NodeDeleter {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

Node toNode(const QVariant& value, QString* error)
{
    const int type = value.metaType().id();
    switch (type) {
    case QMetaType::QString:
        return Node(plist_new_string(value.toString().toUtf8().constData()));
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
        // Two's complement: negative values read back as the same signed value.
        return Node(plist_new_uint(quint64(value.toLongLong())));
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
        return Node(plist_new_uint(value.toULongLong()));
    case QMetaType::Double:
    case QMetaType::Float:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return Node(plist_new_data(bytes.constData(), quint64(bytes.size())));
    }
    case QMetaType::QDateTime: {
        const QDateTime dt = value.toDateTime();
        if (!dt.isValid())
            break;
        const qint64 ms = dt.toMSecsSinceEpoch() - kReferenceDateMsecs;
        qint64 sec = ms / 1000;
        qint64 msRest = ms % 1000;
        if (msRest < 0) {
            --sec;
            msRest += 1000;
        }
        if (sec < std::numeric_limits<int32_t>::min() || sec > std::numeric_limits<int32_t>::max())
            break;
        return Node(plist_new_date(int32_t(sec), int32_t(msRest * 1000)));
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        Node array(plist_new_array());
        for (const QVariant& item : value.toList()) {
            Node child = toNode(item, error);
            if (!child)
                return {};
            plist_array_append_item(array.get(), child.release());
        }
        return array;
    }
    case QMetaType::QVariantMap: {
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
    default:
        if (type == qMetaTypeId<PlistUid>())
            return Node(plist_new_uid(value.value<PlistUid>().value));
        break;
    }
    if (error && error->isEmpty())
        *error = QStringLiteral("a property list cannot hold a value of type %1")
                     .arg(QString::fromLatin1(value.metaType().name() ? value.metaType().name() : "invalid"));
    return {};
}

QVariant fromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
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
        const qint64 ms = kReferenceDateMsecs + qint64(sec) * 1000 + usec / 1000;
        return QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc());
    }
    case PLIST_ARRAY: {
        QVariantList list;
        const uint32_t n = plist_array_get_size(node);
        list.reserve(n);
        for (uint32_t i = 0; i < n; ++i)
            list.append(fromNode(plist_array_get_item(node, i)));
        return list;
    }
    case PLIST_DICT: {
        QVariantMap map;
        plist_dict_iter it = nullptr;
        plist_dict_new_iter(node, &it);
        for (;;) {
            char* key = nullptr;
            plist_t child = nullptr;
            plist_dict_next_item(node, it, &key, &child);
            if (!child) {
                free(key);
                break;
            }
            map.insert(QString::fromUtf8(key), fromNode(child));
            free(key);
        }
        free(it);
        return map;
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

} // namespace

std::optional<QByteArray> serialize(const QVariant& value, Format format, QString* error)
{
    Node root = toNode(value, error);
    if (!root)
        return std::nullopt;
    char* out = nullptr;
    uint32_t length = 0;
    if (format == Format::Binary)
        plist_to_bin(root.get(), &out, &length);
    else
        plist_to_xml(root.get(), &out, &length);
    if (!out) {
        if (error)
            *error = QStringLiteral("the property list could not be encoded");
        return std::nullopt;
    }
    QByteArray bytes(out, qsizetype(length));
    if (format == Format::Binary)
        plist_to_bin_free(out);
    else
        plist_to_xml_free(out);
    return bytes;
}

std::optional<QVariant> parse(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > qsizetype(std::numeric_limits<uint32_t>::max()))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), uint32_t(bytes.size()), &root);
    if (!root)
        return std::nullopt;
    Node holder(root);
    return fromNode(root);
}

} // namespace qor::plist
