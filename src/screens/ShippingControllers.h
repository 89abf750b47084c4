#pragma once
// The shipping tab of the detail screen, one entry's regulation rows, the
// special-provision list and the provision page it opens.
#include "DetailRowModel.h"
#include "MaterialRef.h"
#include "model/PackManifest.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

class PageView;

// Opens what a regulation row names, pushed by the page of origin: its
// packaging section's text or its special provisions. entryName heads the
// provision list; an empty backText leaves the page's own.
void openShippingRow(QObject* origin, const ShippingRow& row, const QString& entryName, const QString& backText = QString());

// One shipping entry's rows: caption, key and value ("None" when empty).
class ShippingTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantMap attributes READ attributesMap WRITE setAttributesMap NOTIFY rowsChanged)
    Q_PROPERTY(qor::DetailRowModel* rowModel READ rowModel CONSTANT)
public:
    explicit ShippingTableDelegate(QObject* parent = nullptr);
    void setAttributes(const StringMap& attributes);
    const StringMap& attributes() const { return m_attributes; }
    QVariantMap attributesMap() const;
    void setAttributesMap(const QVariantMap& map);
    DetailRowModel* rowModel() const { return m_rowModel; }
    QVariantList rows() const { return DetailRowModel::maps(m_rowModel->rows()); }
    // Opens what the row names, if anything.
    Q_INVOKABLE void activate(int index);

signals:
    void rowsChanged();

private:
    StringMap m_attributes;
    DetailRowModel* m_rowModel;
};

class ShippingTabViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
    // The entry whose rows show inline; changes with the material.
    Q_PROPERTY(QVariantMap firstEntry READ firstEntry NOTIFY rowsChanged)
public:
    using QObject::QObject;
    void setMaterial(const MaterialPtr& material);
    QVariantMap firstEntry() const { return entryAt(0); }
    const DetailRowModel::Rows& detailRows() const { return m_rows; }
    QVariantList rows() const { return DetailRowModel::maps(m_rows); }
    // The entry behind an "entry" row, for its regulation table.
    Q_INVOKABLE QVariantMap entryAt(int index) const;

signals:
    void rowsChanged();

private:
    QList<ShippingEntry> m_entries;
    DetailRowModel::Rows m_rows;
};

class ShippingSpecialProvisionsTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList provisions READ provisions WRITE setProvisions NOTIFY rowsChanged)
    Q_PROPERTY(QString headerTitle READ headerTitle WRITE setHeaderTitle NOTIFY rowsChanged)
    Q_PROPERTY(qor::DetailRowModel* rowModel READ rowModel CONSTANT)
public:
    explicit ShippingSpecialProvisionsTableDelegate(QObject* parent = nullptr);
    QStringList provisions() const { return m_provisions; }
    void setProvisions(const QStringList& provisions);
    QString headerTitle() const { return m_headerTitle; }
    void setHeaderTitle(const QString& title);
    DetailRowModel* rowModel() const { return m_rowModel; }
    QVariantList rows() const { return DetailRowModel::maps(m_rowModel->rows()); }
    // Loads the code's group page and jumps to the code when the page is
    // there; gives {"category", "provision", "title"} for the provision screen.
    QVariantMap chooseProvision(int row);
    // Chooses the provision and opens its screen.
    Q_INVOKABLE void activate(int row);

signals:
    void rowsChanged();

private:
    void rebuildRows();

    QStringList m_provisions;
    QString m_headerTitle;
    DetailRowModel* m_rowModel;
};

// The provision screen: the group's page view.
class SpecialProvisionsViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY categoryChanged)
    Q_PROPERTY(QString provision MEMBER m_provision NOTIFY categoryChanged)
    Q_PROPERTY(QObject* pageView READ pageView NOTIFY categoryChanged)
    Q_PROPERTY(QString sourceLine READ sourceLine NOTIFY categoryChanged)
public:
    using QObject::QObject;
    QString category() const { return m_category; }
    void setCategory(const QString& category);
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("provisions") }); }
    QObject* pageView() const;

signals:
    void categoryChanged();

private:
    QString m_category;
    QString m_provision;
};

} // namespace qor
