#pragma once
// The isolation distance tables of one material: a section per spill
// condition and, for six gases, the large-spill table by container and wind.
#include "MaterialRef.h"
#include "content/MaterialContent.h"
#include "model/OrderedMap.h"

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include "model/PackManifest.h"

#include <QtQml/qqmlregistration.h>

namespace qor {

class IsolationTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qor::MaterialRef material READ material WRITE setMaterial NOTIFY materialChanged)
    Q_PROPERTY(QString headerLabel READ headerLabel NOTIFY materialChanged)
    Q_PROPERTY(int units READ units WRITE segmentAction NOTIFY tableChanged)
    Q_PROPERTY(QVariantList sections READ sections NOTIFY tableChanged)
    Q_PROPERTY(bool empty READ empty NOTIFY tableChanged)
    Q_PROPERTY(QString sourceLine READ sourceLine NOTIFY materialChanged)
    Q_PROPERTY(QUrl dayIcon READ dayIcon CONSTANT)
    Q_PROPERTY(QUrl nightIcon READ nightIcon CONSTANT)
public:
    static constexpr const char* kSavedUnitsKey = "savedUnits";
    static constexpr const char* kInfoPage = "Isolation_Distances";
    enum Units { Imperial = 0, Metric = 1 };
    static constexpr int kShortRowHeight = 125;
    static constexpr int kRowHeight = 273;

    explicit IsolationTableDelegate(QObject* parent = nullptr);

    MaterialRef material() const { return m_material; }
    void setMaterial(const MaterialRef& material);
    QString headerLabel() const { return m_material.name(); }

    // The stored "savedUnits"; absent reads as imperial.
    static int savedUnits();
    int units() const { return savedUnits(); }
    // The units switch: stores the choice and refills every cell.
    Q_INVOKABLE void segmentAction(int index);

    // Container name -> fourteen comma-separated figures; a new map per call.
    static OrderedMap<QString> largeSpillIsoDistancesForMaterial(const Material& material);

    // One map per section: "title", "kind" ("condition" or "container"),
    // "height" and the texts of its cell.
    QVariantList sections() const { return m_sections; }
    bool empty() const { return m_sections.isEmpty(); }
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("iso_distances") }); }
    QString titleForSection(int section) const;

    // Cell texts for one condition record or one container row, in the given units.
    static QVariantMap conditionCell(const ConditionFigures& figures);
    static QVariantMap largeSpillCell(const ContainerFigures& figures);
    static QVariantMap largeSpillCell(const QString& row, int units) { return largeSpillCell(containerFigures(row, qor::Units(units))); }

    Q_INVOKABLE void infoButtonClicked();
    // The pack's day and night artwork; empty when the pack has none.
    static QUrl dayIcon();
    static QUrl nightIcon();

signals:
    void materialChanged();
    void tableChanged();
    void infoPageRequested(const QString& page, const QString& title);

private:
    void reloadData();

    MaterialRef m_material;
    QVariantList m_sections;
};

} // namespace qor
