#include "DetailRowModel.h"

#include <QMetaEnum>

namespace qor {

int DetailRowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant DetailRowModel::data(const QModelIndex& index, int role) const
{
    const Row* row = index.isValid() ? rowAt(index.row()) : nullptr;
    if (!row)
        return {};
    switch (role) {
    case KindRole: return int(row->kind);
    case RowRole: return row->fields;
    default: return {};
    }
}

QHash<int, QByteArray> DetailRowModel::roleNames() const
{
    return { { KindRole, "kind" }, { RowRole, "row" } };
}

void DetailRowModel::setRows(const Rows& rows)
{
    const bool countChanges = rows.size() != m_rows.size();
    beginResetModel();
    m_rows = rows;
    endResetModel();
    if (countChanges)
        emit countChanged();
}

QVariantMap DetailRowModel::get(int index) const
{
    const Row* row = rowAt(index);
    if (!row)
        return {};
    QVariantMap map = row->fields;
    map.insert(QStringLiteral("kind"), int(row->kind));
    return map;
}

QVariantList DetailRowModel::maps(const Rows& rows)
{
    const QMetaEnum kinds = QMetaEnum::fromType<Kind>();
    QVariantList list;
    for (const Row& row : rows) {
        QVariantMap map = row.fields;
        QString name = QLatin1String(kinds.valueToKey(row.kind));
        name[0] = name.at(0).toLower();
        map.insert(QStringLiteral("kind"), name);
        list.append(map);
    }
    return list;
}

// ---------------------------------------------------------------- builder

void DetailRowBuilder::beginSection(const QString& header, const QString& infoPage)
{
    ++m_section;
    m_header = header;
    m_infoPage = infoPage;
    m_sectionStart = true;
    m_sectionRows = 0;
}

DetailRowModel::Row& DetailRowBuilder::add(DetailRowModel::Kind kind, QVariantMap fields)
{
    fields.insert(QStringLiteral("section"), m_section);
    fields.insert(QStringLiteral("sectionStart"), m_sectionStart);
    fields.insert(QStringLiteral("header"), m_sectionStart ? m_header : QString());
    fields.insert(QStringLiteral("infoPage"), m_sectionStart ? m_infoPage : QString());
    m_sectionStart = false;
    ++m_sectionRows;
    m_rows.append({ kind, fields, {}, -1 });
    return m_rows.last();
}

void DetailRowBuilder::addSource(const SourceLine& source)
{
    if (m_sectionRows == 0)
        return;
    add(DetailRowModel::Source, { { QStringLiteral("text"), source.text }, { QStringLiteral("note"), source.note } });
}

void DetailRowBuilder::addOverview(const MaterialOverview& o)
{
    beginSection();
    add(DetailRowModel::Top, { { QStringLiteral("name"), o.name },
                               { QStringLiteral("unId"), o.unId },
                               { QStringLiteral("placardImage"), o.placardImage },
                               { QStringLiteral("hazardClass"), o.hazardClass },
                               { QStringLiteral("classDescription"), o.classDescription },
                               { QStringLiteral("copyText"), o.copyText } });
    addSource(o.source);
}

void DetailRowBuilder::addAttributes(const QList<AttributeRow>& rows)
{
    for (const AttributeRow& r : rows)
        add(DetailRowModel::Text, { { QStringLiteral("key"), r.key }, { QStringLiteral("caption"), r.caption }, { QStringLiteral("text"), r.text } });
}

void DetailRowBuilder::addShippingRows(const ShippingEntry& entry)
{
    for (const ShippingRow& r : entry.rows) {
        const bool opens = r.action != ShippingAction::None;
        add(DetailRowModel::Shipping, { { QStringLiteral("key"), r.key },
                                        { QStringLiteral("caption"), r.caption },
                                        { QStringLiteral("text"), r.text },
                                        { QStringLiteral("opens"), opens } })
            .shipping = r;
    }
}

} // namespace qor
