#pragma once
// The placard table: a responder who cannot identify the material picks the
// placard seen on scene and gets the guide to start from.
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
public:
    enum Roles { ImageRole = Qt::UserRole + 1, ImageUrlRole, GuideIdRole };
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

    // Parallel lists: the row's artwork and the guide it leads to.
    const QStringList placardImages;
    const QStringList guideRefs;

    // Loads the row's guide and asks for it to be shown; the guide id, or
    // empty when the model has no such guide.
    Q_INVOKABLE QString selectRow(int row);

signals:
    void guideRequested(const QString& guideId);
};

} // namespace qor
