#pragma once
// The filter screen (materials with incidents only) and the category list.
#include <QAbstractListModel>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace qor {

class FilterController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool incidentsOnly READ incidentsOnly WRITE setIncidentsOnly NOTIFY incidentsOnlyChanged)
public:
    explicit FilterController(QObject* parent = nullptr);
    bool incidentsOnly() const;
    // The switch: incidents only sorts by incidents, off goes back to alphabetical.
    void setIncidentsOnly(bool on);
    // The screen is appearing: take the switch state from the current filter.
    Q_INVOKABLE void refresh();
    // Rebuild the filter's lists on next use and announce the current filter.
    Q_INVOKABLE void done();
    // Announce no filter; the switch's changes stay.
    Q_INVOKABLE void cancel();

signals:
    void incidentsOnlyChanged();
};

class CategoriesController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
public:
    enum Roles { TextRole = Qt::UserRole + 1, CheckedRole, AbbrevRole };
    explicit CategoriesController(QObject* parent = nullptr);
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    // Changes the current filter's category letter (not the current filter).
    Q_INVOKABLE void select(int row);
    Q_INVOKABLE void reload();
};

} // namespace qor
