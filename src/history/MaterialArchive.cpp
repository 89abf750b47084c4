#include "MaterialArchive.h"

namespace qor {

namespace {
const QString kMaterial = QStringLiteral("Material");
const QString kViewedMaterial = QStringLiteral("ViewedMaterial");
const QString kHistoryClass = QStringLiteral("MaterialViewedHistory");
const QString kNSObject = QStringLiteral("NSObject");

QVariant text(const QString& s)
{
    return s.isNull() ? QVariant() : QVariant(s);
}

QString textField(const QVariantMap& fields, const char* key)
{
    const QVariant v = fields.value(QLatin1String(key));
    return v.metaType().id() == QMetaType::QString ? v.toString() : QString();
}
} // namespace

ArchivedObject archiveMaterial(const Material& m)
{
    ArchivedObject obj;
    obj.className = kMaterial;
    obj.classes = { kMaterial, kNSObject };
    obj.fields = {
        { QStringLiteral("npgIndex"), m.npgIndex },
        { QStringLiteral("name"), text(m.name) },
        { QStringLiteral("unId"), text(m.unId) },
        { QStringLiteral("guideId"), text(m.guideId) },
        { QStringLiteral("casNo"), text(m.casNo) },
        { QStringLiteral("rtecNo"), text(m.rtecNo) },
        { QStringLiteral("tih"), m.toxicInhalationHazard ? QVariant(*m.toxicInhalationHazard) : QVariant() },
    };
    return obj;
}

ArchivedObject archiveViewedMaterial(const Material& m)
{
    ArchivedObject obj = archiveMaterial(m);
    obj.className = kViewedMaterial;
    obj.classes = { kViewedMaterial, kMaterial, kNSObject };
    obj.fields.insert(QStringLiteral("viewCount"), m.viewCount);
    return obj;
}

void unarchiveMaterial(const ArchivedObject& archived, Material& m)
{
    const QVariantMap& f = archived.fields;
    m.npgIndex = f.value(QStringLiteral("npgIndex")).toInt();
    m.name = textField(f, "name");
    m.unId = textField(f, "unId");
    m.guideId = textField(f, "guideId");
    m.casNo = textField(f, "casNo");
    m.rtecNo = textField(f, "rtecNo");
    const QString tih = textField(f, "tih");
    if (!tih.isNull())
        m.toxicInhalationHazard = tih;
    if (f.contains(QStringLiteral("viewCount")))
        m.viewCount = f.value(QStringLiteral("viewCount")).toInt();
}

ArchivedObject MaterialViewedHistory::toArchive() const
{
    QVariantMap entries;
    for (auto it = materials.constBegin(); it != materials.constEnd(); ++it)
        entries.insert(it.key(), QVariant::fromValue(archiveViewedMaterial(*it.value())));
    return ArchivedObject{ kHistoryClass, { kHistoryClass, kNSObject }, { { QStringLiteral("history"), entries } } };
}

std::optional<MaterialViewedHistory> MaterialViewedHistory::fromArchive(const QVariant& root)
{
    if (root.metaType().id() != qMetaTypeId<ArchivedObject>())
        return std::nullopt;
    const ArchivedObject obj = root.value<ArchivedObject>();
    if (!obj.isKindOf(kHistoryClass))
        return std::nullopt;
    MaterialViewedHistory out;
    const QVariant entries = obj.fields.value(QStringLiteral("history"));
    auto take = [&](const QString& key, const QVariant& v) {
        if (v.metaType().id() != qMetaTypeId<ArchivedObject>())
            return;
        const ArchivedObject entry = v.value<ArchivedObject>();
        if (!entry.isKindOf(kMaterial))
            return;
        auto m = std::make_shared<Material>();
        unarchiveMaterial(entry, *m);
        out.materials.insert(key.isNull() ? m->unId : key, m);
    };
    if (entries.metaType().id() == QMetaType::QVariantMap) {
        const QVariantMap map = entries.toMap();
        for (auto it = map.constBegin(); it != map.constEnd(); ++it)
            take(it.key(), it.value());
    } else {
        for (const QVariant& v : entries.toList())
            take(QString(), v);
    }
    return out;
}

} // namespace qor
