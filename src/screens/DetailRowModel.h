#pragma once
// The rows of a sectioned detail table as a list model: each row has a kind
// (which cell lays it out) and its texts; the first row of a section carries
// the section header. Built from the content layer by the screen controllers.
#include "content/MaterialContent.h"

#include <QAbstractListModel>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

namespace qor {

class DetailRowModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen controllers")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Kind { Top, Nfpa, Guide, Iso, Text, Incident, Entry, Shipping, Npg, Ghs, Provision, Source };
    Q_ENUM(Kind)
    enum Roles { KindRole = Qt::UserRole + 1, RowRole };

    struct Row {
        Kind kind;
        QVariantMap fields;
        ShippingRow shipping;  // Shipping rows: what choosing the row opens
        int entry = -1;        // Entry rows: the entry's index
    };
    using Rows = QList<Row>;

    using QAbstractListModel::QAbstractListModel;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setRows(const Rows& rows);
    const Rows& rows() const { return m_rows; }
    const Row* rowAt(int index) const { return index >= 0 && index < m_rows.size() ? &m_rows.at(index) : nullptr; }
    // A row's texts with its "kind" as a number, as the cells read them.
    Q_INVOKABLE QVariantMap get(int index) const;
    // The rows as maps with the kind named ("guide", "iso"), for logs and tests.
    static QVariantList maps(const Rows& rows);

signals:
    void countChanged();

private:
    Rows m_rows;
};

// Collects rows section by section; a section's source line closes it.
class DetailRowBuilder {
public:
    // infoPage names the information page behind the header's info button.
    void beginSection(const QString& header = QString(), const QString& infoPage = QString());
    DetailRowModel::Row& add(DetailRowModel::Kind kind, QVariantMap fields = QVariantMap());
    // A section without rows gets no source line, so no empty section is left behind.
    void addSource(const SourceLine& source);
    int sectionCount() const { return m_section + 1; }
    const DetailRowModel::Rows& rows() const { return m_rows; }

    // Cells shared by several tabs and screens.
    void addOverview(const MaterialOverview& overview);
    void addAttributes(const QList<AttributeRow>& rows);
    void addShippingRows(const ShippingEntry& entry);

private:
    DetailRowModel::Rows m_rows;
    QString m_header;
    QString m_infoPage;
    int m_section = -1;
    bool m_sectionStart = false;
    int m_sectionRows = 0;
};

} // namespace qor
