#pragma once
#include "model/Material.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace qor {

// Rows of the current filter, section by section (name, UN id, guide, section key).
class MaterialListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
public:
    enum Roles { NameRole = Qt::UserRole + 1, UnIdRole, GuideIdRole, SectionRole };
    explicit MaterialListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    QString title() const { return m_title; }

signals:
    void titleChanged();

private:
    void reload();
    struct Row {
        MaterialPtr material;
        QString section;
    };
    QList<Row> m_rows;
    QString m_title;
};

} // namespace qor
