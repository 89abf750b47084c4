#pragma once
// The material detail screen: a summary, a shipping and (with chemistry data)
// a protection tab, switched by a segmented control.
#include "MaterialRef.h"
#include "DetailRowModel.h"
#include "ShippingControllers.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

class SummaryTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
public:
    using QObject::QObject;
    void setMaterial(const MaterialPtr& material);
    const DetailRowModel::Rows& detailRows() const { return m_rows; }
    QVariantList rows() const { return DetailRowModel::maps(m_rows); }
    int numberOfSections() const { return m_sections; }

signals:
    void rowsChanged();

private:
    DetailRowModel::Rows m_rows;
    int m_sections = 0;
};

class ProtectionTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
public:
    using QObject::QObject;
    void setMaterial(const MaterialPtr& material);
    const ProtectionContent& content() const { return m_content; }
    const DetailRowModel::Rows& detailRows() const { return m_rows; }
    QVariantList rows() const { return DetailRowModel::maps(m_rows); }
    // The attribute keys of the exposure rows shown.
    QStringList keys() const;
    // Touching the GHS row shows or hides its statements.
    Q_INVOKABLE void toggleGhsDetails();

signals:
    void rowsChanged();

private:
    void rebuildRows();

    ProtectionContent m_content;
    DetailRowModel::Rows m_rows;
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
    Q_PROPERTY(qor::DetailRowModel* rowModel READ rowModel CONSTANT)
    // The wide layout's columns: the summary, and shipping followed by protection.
    Q_PROPERTY(qor::DetailRowModel* summaryRowModel READ summaryRowModel CONSTANT)
    Q_PROPERTY(qor::DetailRowModel* sideRowModel READ sideRowModel CONSTANT)
    Q_PROPERTY(int protectionRowStart READ protectionRowStart NOTIFY rowsChanged)
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
    DetailRowModel* rowModel() const { return m_rowModel; }
    QVariantList rows() const { return DetailRowModel::maps(m_rowModel->rows()); }
    // What choosing a row of the selected tab does: opens the guide, the
    // isolation table, a shipping entry or its regulation page, or shows
    // more GHS statements. Rows that open nothing do nothing.
    Q_INVOKABLE void activate(int index) { activateIn(m_rowModel, index); }
    // The same for a row of any of this screen's tables.
    Q_INVOKABLE void activateIn(qor::DetailRowModel* model, int index);
    DetailRowModel* summaryRowModel() const { return m_summaryRowModel; }
    DetailRowModel* sideRowModel() const { return m_sideRowModel; }
    // Where protection starts in the side column.
    int protectionRowStart() const { return m_protectionRowStart; }
    // The isolation table of the material, also reached without its row.
    Q_INVOKABLE void openIsolation();

    SummaryTableDelegate* summary() const { return m_summary; }
    ShippingTabViewController* shipping() const { return m_shipping; }
    ProtectionTableDelegate* protection() const { return m_protection; }

    Q_INVOKABLE void copyToClipboard(const QString& text);

signals:
    void materialChanged();
    void selectedViewIndexChanged();
    void rowsChanged();

private:
    void showSelectedRows();

    MaterialPtr m_material;
    QStringList m_segmentImages;
    DetailRowModel* m_rowModel;
    DetailRowModel* m_summaryRowModel;
    DetailRowModel* m_sideRowModel;
    int m_protectionRowStart = 0;
    SummaryTableDelegate* m_summary;
    ShippingTabViewController* m_shipping;
    ProtectionTableDelegate* m_protection;
};

} // namespace qor
