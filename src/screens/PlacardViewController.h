#pragma once
// The placard table: the standard placards a responder may see on scene. A
// row leads to a guide only where the pack holds the chart that names it.
#include <QAbstractListModel>
#include <QStringList>
#include "model/PackManifest.h"

#include <QtQml/qqmlregistration.h>

namespace qor {

class PlacardViewController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString sectionHeader READ sectionHeader CONSTANT)
    Q_PROPERTY(int rowHeight READ rowHeight CONSTANT)
    Q_PROPERTY(QString sourceLine READ sourceLine CONSTANT)
    Q_PROPERTY(QString chartNotice READ chartNotice CONSTANT)
public:
    enum Roles { ImageRole = Qt::UserRole + 1, ImageUrlRole, NameRole, GuideIdRole };
    Q_ENUM(Roles)
    static constexpr int kRowHeight = 85;

    explicit PlacardViewController(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const;
    QString sectionHeader() const;
    int rowHeight() const { return kRowHeight; }
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("placards") }); }
    // Says the placard-to-guide chart is missing while guideRefs is empty.
    QString chartNotice() const;

    // Parallel lists: the row's artwork, what it shows, and the guide it
    // leads to (empty: no source among the pack's gives that chart).
    const QStringList placardImages;
    const QStringList placardNames;
    const QStringList guideRefs;

    // Loads the row's guide and asks for it to be shown; the guide id, or
    // empty when the model has no such guide.
    Q_INVOKABLE QString selectRow(int row);

signals:
    void guideRequested(const QString& guideId);
};

} // namespace qor
