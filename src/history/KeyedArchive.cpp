#include "KeyedArchive.h"

#include "Clock.h"

#include <QDateTime>
#include <QHash>
#include <QSet>

namespace qor::keyedarchive {

namespace {

const QString kClass = QStringLiteral("$class");
const QString kClassName = QStringLiteral("$classname");
const QString kClasses = QStringLiteral("$classes");
const QString kObjects = QStringLiteral("NS.objects");
const QString kKeys = QStringLiteral("NS.keys");
const QString kNull = QStringLiteral("$null");
// Deeper nesting than this is treated as damage; it also bounds the recursion.
constexpr int kMaxDepth = 256;

bool isScalar(const QVariant& v)
{
    switch (v.metaType().id()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

class Encoder {
public:
    QVariantList objects{ kNull };
    QString error;

    // Appends the object and returns its reference.
    std::optional<PlistUid> encodeObject(const QVariant& value, int depth = 0)
    {
        if (depth > kMaxDepth) {
            error = QStringLiteral("objects nested too deeply");
            return std::nullopt;
        }
        const int type = value.metaType().id();
        // A null string is a missing value (nil), not an empty one.
        if (!value.isValid() || (type == QMetaType::QString && value.toString().isNull()))
            return PlistUid{ 0 };
        if (type == QMetaType::QString || type == QMetaType::QByteArray || isScalar(value))
            return add(value);
        if (type == QMetaType::QDateTime) {
            const double t = Clock::secondsSinceReferenceDate(value.toDateTime());
            return add(QVariantMap{ { kClass, QVariant::fromValue(classRef(QStringLiteral("NSDate"), {})) },
                                    { QStringLiteral("NS.time"), t } });
        }
        if (type == QMetaType::QVariantList || type == QMetaType::QStringList) {
            const PlistUid self = reserve();
            QVariantList refs;
            for (const QVariant& item : value.toList()) {
                auto ref = encodeObject(item, depth + 1);
                if (!ref)
                    return std::nullopt;
                refs.append(QVariant::fromValue(*ref));
            }
            objects[self.value] = QVariantMap{ { kClass, QVariant::fromValue(classRef(QStringLiteral("NSArray"), {})) },
                                               { kObjects, refs } };
            return self;
        }
        if (type == QMetaType::QVariantMap) {
            const PlistUid self = reserve();
            QVariantList keys, refs;
            const QVariantMap map = value.toMap();
            for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
                auto key = encodeObject(it.key(), depth + 1);
                auto ref = encodeObject(it.value(), depth + 1);
                if (!key || !ref)
                    return std::nullopt;
                keys.append(QVariant::fromValue(*key));
                refs.append(QVariant::fromValue(*ref));
            }
            objects[self.value] = QVariantMap{ { kClass, QVariant::fromValue(classRef(QStringLiteral("NSDictionary"), {})) },
                                               { kKeys, keys },
                                               { kObjects, refs } };
            return self;
        }
        if (type == qMetaTypeId<ArchivedObject>()) {
            const ArchivedObject obj = value.value<ArchivedObject>();
            if (obj.className.isEmpty()) {
                error = QStringLiteral("an archived object needs a class name");
                return std::nullopt;
            }
            const PlistUid self = reserve();
            QVariantMap dict{ { kClass, QVariant::fromValue(classRef(obj.className, obj.classes)) } };
            for (auto it = obj.fields.constBegin(); it != obj.fields.constEnd(); ++it) {
                if (it.key().startsWith(QLatin1Char('$'))) {
                    error = QStringLiteral("field name '%1' is reserved").arg(it.key());
                    return std::nullopt;
                }
                if (isScalar(it.value())) {
                    dict.insert(it.key(), it.value());
                    continue;
                }
                auto ref = encodeObject(it.value(), depth + 1);
                if (!ref)
                    return std::nullopt;
                dict.insert(it.key(), QVariant::fromValue(*ref));
            }
            objects[self.value] = dict;
            return self;
        }
        error = QStringLiteral("an archive cannot hold a value of type %1")
                    .arg(QString::fromLatin1(value.metaType().name() ? value.metaType().name() : "unknown"));
        return std::nullopt;
    }

private:
    QHash<QString, PlistUid> m_classRefs;

    PlistUid add(const QVariant& v)
    {
        objects.append(v);
        return PlistUid{ quint64(objects.size() - 1) };
    }
    // Containers take their slot before their contents, as the root must be 1.
    PlistUid reserve() { return add(QVariant()); }

    PlistUid classRef(const QString& name, QStringList classes)
    {
        if (classes.isEmpty())
            classes = { name, QStringLiteral("NSObject") };
        const QString key = classes.join(QLatin1Char('/'));
        auto it = m_classRefs.constFind(key);
        if (it != m_classRefs.constEnd())
            return *it;
        const PlistUid ref = add(QVariantMap{ { kClassName, name }, { kClasses, classes } });
        m_classRefs.insert(key, ref);
        return ref;
    }
};

class Decoder {
public:
    explicit Decoder(const QVariantList& objects) : m_objects(objects) {}
    QString error;

    std::optional<QVariant> resolve(quint64 uid, int depth)
    {
        if (uid >= quint64(m_objects.size()))
            return fail(QStringLiteral("reference %1 is outside the archive").arg(uid));
        const QVariant& stored = m_objects.at(qsizetype(uid));
        if (uid == 0 && stored.toString() == kNull)
            return QVariant();
        if (stored.metaType().id() != QMetaType::QVariantMap)
            return stored;  // strings, numbers, data: stored as themselves
        if (depth > kMaxDepth)
            return fail(QStringLiteral("objects nested too deeply"));
        // Objects referred to from many places are decoded once: an archive
        // whose objects each refer twice to the next would otherwise take
        // time exponential in its length.
        if (const auto done = m_decoded.constFind(uid); done != m_decoded.constEnd())
            return *done;
        if (m_inProgress.contains(uid))
            return fail(QStringLiteral("object %1 contains itself").arg(uid));
        m_inProgress.insert(uid);
        auto result = decodeObject(stored.toMap(), depth);
        m_inProgress.remove(uid);
        if (result)
            m_decoded.insert(uid, *result);
        return result;
    }

    // A value as it stands in an object's dictionary: inline, or a reference.
    std::optional<QVariant> value(const QVariant& v, int depth)
    {
        if (auto uid = uidOf(v))
            return resolve(*uid, depth + 1);
        if (v.metaType().id() == QMetaType::QVariantList) {
            QVariantList out;
            for (const QVariant& item : v.toList()) {
                auto r = value(item, depth + 1);
                if (!r)
                    return std::nullopt;
                out.append(*r);
            }
            return out;
        }
        return v;
    }

    // UIDs arrive as UID nodes, or as {"CF$UID": n} from XML writers that
    // have no UID element.
    static std::optional<quint64> uidOf(const QVariant& v)
    {
        if (v.metaType().id() == qMetaTypeId<PlistUid>())
            return v.value<PlistUid>().value;
        if (v.metaType().id() == QMetaType::QVariantMap) {
            const QVariantMap m = v.toMap();
            if (m.size() == 1 && m.contains(QStringLiteral("CF$UID"))) {
                bool ok = false;
                const qlonglong n = m.value(QStringLiteral("CF$UID")).toLongLong(&ok);
                if (ok && n >= 0)
                    return quint64(n);
            }
        }
        return std::nullopt;
    }

private:
    const QVariantList& m_objects;
    QSet<quint64> m_inProgress;
    QHash<quint64, QVariant> m_decoded;

    std::nullopt_t fail(const QString& message)
    {
        if (error.isEmpty())
            error = message;
        return std::nullopt;
    }

    std::optional<QVariantList> refList(const QVariantMap& dict, const QString& key, int depth)
    {
        const QVariant list = dict.value(key);
        if (list.isValid() && list.metaType().id() != QMetaType::QVariantList)
            return fail(QStringLiteral("'%1' is not an array").arg(key));
        QVariantList out;
        for (const QVariant& item : list.toList()) {
            auto r = value(item, depth);
            if (!r)
                return std::nullopt;
            out.append(*r);
        }
        return out;
    }

    std::optional<QVariant> decodeObject(const QVariantMap& dict, int depth)
    {
        const auto classUid = uidOf(dict.value(kClass));
        if (!classUid)
            return fail(QStringLiteral("an archived object has no class"));
        if (*classUid >= quint64(m_objects.size()))
            return fail(QStringLiteral("class reference %1 is outside the archive").arg(*classUid));
        const QVariantMap classDict = m_objects.at(qsizetype(*classUid)).toMap();
        const QString className = classDict.value(kClassName).toString();
        if (className.isEmpty())
            return fail(QStringLiteral("an archived class has no name"));
        QStringList classes;
        for (const QVariant& c : classDict.value(kClasses).toList())
            classes << c.toString();
        auto kindOf = [&](std::initializer_list<const char*> names) {
            for (const char* n : names)
                if (className == QLatin1String(n) || classes.contains(QLatin1String(n)))
                    return true;
            return false;
        };

        if (kindOf({ "NSDictionary", "NSMutableDictionary" })) {
            auto keys = refList(dict, kKeys, depth);
            auto objs = keys ? refList(dict, kObjects, depth) : std::nullopt;
            if (!objs)
                return std::nullopt;
            if (keys->size() != objs->size())
                return fail(QStringLiteral("a dictionary has %1 keys and %2 values").arg(keys->size()).arg(objs->size()));
            QVariantMap map;
            for (qsizetype i = 0; i < keys->size(); ++i)
                map.insert(keys->at(i).toString(), objs->at(i));
            return map;
        }
        if (kindOf({ "NSArray", "NSMutableArray", "NSSet", "NSMutableSet", "NSOrderedSet", "NSMutableOrderedSet" })) {
            auto objs = refList(dict, kObjects, depth);
            if (!objs)
                return std::nullopt;
            return *objs;
        }
        if (kindOf({ "NSDate" })) {
            bool ok = false;
            const double t = dict.value(QStringLiteral("NS.time")).toDouble(&ok);
            if (!ok)
                return fail(QStringLiteral("a date has no time"));
            return Clock::fromSecondsSinceReferenceDate(t);
        }
        if (kindOf({ "NSString", "NSMutableString" }))
            return value(dict.value(QStringLiteral("NS.string")), depth).value_or(QVariant()).toString();
        if (kindOf({ "NSData", "NSMutableData" }))
            return value(dict.value(QStringLiteral("NS.data")), depth).value_or(QVariant()).toByteArray();

        ArchivedObject obj;
        obj.className = className;
        obj.classes = classes;
        for (auto it = dict.constBegin(); it != dict.constEnd(); ++it) {
            if (it.key() == kClass)
                continue;
            auto v = value(it.value(), depth);
            if (!v)
                return std::nullopt;
            obj.fields.insert(it.key(), *v);
        }
        return QVariant::fromValue(obj);
    }
};

} // namespace

std::optional<QByteArray> archive(const QVariant& root, QString* error)
{
    Encoder encoder;
    if (!encoder.encodeObject(root)) {
        if (error)
            *error = encoder.error;
        return std::nullopt;
    }
    const QVariantMap archiveDict{
        { QStringLiteral("$archiver"), QStringLiteral("NSKeyedArchiver") },
        { QStringLiteral("$version"), 100000 },
        { QStringLiteral("$top"), QVariantMap{ { QStringLiteral("root"), QVariant::fromValue(PlistUid{ 1 }) } } },
        { QStringLiteral("$objects"), encoder.objects },
    };
    return plist::serialize(archiveDict, error);
}

std::optional<QVariant> unarchive(const QByteArray& bytes, QString* error)
{
    auto setError = [&](const QString& message) {
        if (error)
            *error = message;
        return std::nullopt;
    };
    const auto parsed = plist::parse(bytes);
    if (!parsed)
        return setError(QStringLiteral("the data is not a property list"));
    const QVariantMap dict = parsed->toMap();
    const QVariant objects = dict.value(QStringLiteral("$objects"));
    const QVariantMap top = dict.value(QStringLiteral("$top")).toMap();
    if (parsed->metaType().id() != QMetaType::QVariantMap || objects.metaType().id() != QMetaType::QVariantList)
        return setError(QStringLiteral("the data is not a keyed archive"));
    const auto rootUid = Decoder::uidOf(top.value(QStringLiteral("root")));
    if (!rootUid)
        return setError(QStringLiteral("the archive has no root object"));
    const QVariantList objectList = objects.toList();
    Decoder decoder(objectList);
    auto root = decoder.resolve(*rootUid, 0);
    if (!root)
        return setError(decoder.error);
    return root;
}

} // namespace qor::keyedarchive
