#pragma once
// The material detail screen: a summary, a shipping and (with chemistry data)
// a protection tab, switched by a segmented control.
#include "MaterialRef.h"
#include "ShippingControllers.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

// The material as the top cell of the summary and shipping tabs show it.
QVariantMap materialOverviewRow(Material& material);
// The tables that top cell shows values of, for its source line.
QStringList materialOverviewTables();

class SummaryTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
public:
    using QObject::QObject;
    void setMaterial(const MaterialPtr& material);
    QVariantList rows() const { return m_rows; }
    int numberOfSections() const { return m_sections; }
    // Key -> text, in display order.
    const QList<QPair<QString, QString>>& availableAttributes() const { return m_available; }

signals:
    void rowsChanged();

private:
    MaterialPtr m_material;
    QList<QPair<QString, QString>> m_available;
    QVariantList m_rows;
    int m_sections = 0;
};

class ProtectionTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
public:
    explicit ProtectionTableDelegate(QObject* parent = nullptr);
    void setMaterial(const MaterialPtr& material);
    QVariantList rows() const { return m_rows; }
    // Attribute key -> caption; the keys that decide whether the tab exists.
    const QList<QPair<QString, QString>>& labels() const { return m_labels; }
    const QStringList& keys() const { return m_keys; }
    // Touching the GHS row shows or hides its statements.
    Q_INVOKABLE void toggleGhsDetails();

signals:
    void rowsChanged();

private:
    void rebuildRows();

    MaterialPtr m_material;
    QList<QPair<QString, QString>> m_labels;
    QStringList m_keys;
    QVariantList m_rows;
    bool m_ghsExpanded = false;
};

class MaterialViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qor::MaterialRef material READ material WRITE setMaterialGuide NOTIFY materialChanged)
    Q_PROPERTY(int selectedViewIndex READ selectedViewIndex WRITE setSelectedViewIndex NOTIFY selectedViewIndexChanged)
    Q_PROPERTY(QStringList segmentImages READ segmentImages NOTIFY materialChanged)
    Q_PROPERTY(int segmentWidth READ segmentWidth NOTIFY materialChanged)
    Q_PROPERTY(QString backTitle READ backTitle NOTIFY materialChanged)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    Q_PROPERTY(qor::SummaryTableDelegate* summary READ summary CONSTANT)
    Q_PROPERTY(qor::ShippingTabViewController* shipping READ shipping CONSTANT)
    Q_PROPERTY(qor::ProtectionTableDelegate* protection READ protection CONSTANT)
public:
    enum Tab { SummaryTab = 0, ShippingTab = 1, ProtectionTab = 2 };
    Q_ENUM(Tab)

    explicit MaterialViewController(QObject* parent = nullptr);

    MaterialRef material() const { return MaterialRef(m_material); }
    // Records the view, pre-loads the guide and fills the three tabs.
    void setMaterialGuide(const MaterialRef& material);
    // Kept across materials and screens, as the user last chose.
    int selectedViewIndex() const;
    void setSelectedViewIndex(int index);
    int segmentCount() const { return int(m_segmentImages.size()); }
    QStringList segmentImages() const { return m_segmentImages; }
    int segmentWidth() const { return segmentCount() == 3 ? 400 : 300; }
    // Back button text of screens pushed from here.
    QString backTitle() const;
    // The rows of the selected tab.
    QVariantList rows() const;

    SummaryTableDelegate* summary() const { return m_summary; }
    ShippingTabViewController* shipping() const { return m_shipping; }
    ProtectionTableDelegate* protection() const { return m_protection; }

    Q_INVOKABLE void copyToClipboard(const QString& text);

signals:
    void materialChanged();
    void selectedViewIndexChanged();
    void rowsChanged();

private:
    MaterialPtr m_material;
    QStringList m_segmentImages;
    SummaryTableDelegate* m_summary;
    ShippingTabViewController* m_shipping;
    ProtectionTableDelegate* m_protection;
};

} // namespace qor
