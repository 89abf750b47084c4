#pragma once
// The history screen: viewed materials in one of three orders (All, Recent,
// Most Viewed), each row with how long ago or how often, and a button that
// clears the history once it has grown past a few entries.
#include "MaterialRef.h"
#include "history/HistoryManager.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QtQml/qqmlregistration.h>

namespace qor {

class MaterialHistoryListViewController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(int segment READ segment WRITE setSegment NOTIFY segmentChanged)
    Q_PROPERTY(bool clearButtonVisible READ clearButtonVisible NOTIFY clearButtonVisibleChanged)
    Q_PROPERTY(bool messageVisible READ messageVisible CONSTANT)
    Q_PROPERTY(int rowHeight READ rowHeight CONSTANT)
public:
    enum Segment { AllSegment = 0, RecentSegment = 1, MostViewedSegment = 2 };
    Q_ENUM(Segment)
    enum Roles {
        NameRole = Qt::UserRole + 1,
        UnIdRole,
        GuideIdRole,
        PlacardImageRole,
        IncidentsTextRole,
        VerboseTextRole,
        EnabledRole,
        MaterialRole,
    };
    Q_ENUM(Roles)
    static constexpr int kRowHeight = 60;
    // The button shows only once the history holds more than this.
    static constexpr int kClearButtonThreshold = 5;

    explicit MaterialHistoryListViewController(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const;
    QStringList segmentTitles() const;
    int segment() const { return m_segment; }
    void setSegment(int segment);
    bool clearButtonVisible() const { return m_clearButtonVisible; }
    bool messageVisible() const { return false; }
    int rowHeight() const { return kRowHeight; }

    HistoryObjectPtr historyObjInCurrentViewAtRow(int row) const;
    MaterialPtr materialInCurrentViewAtRow(int row) const;
    // The row's second text: how long ago (Recent), how often (Most Viewed).
    QString textForCurrentView(const HistoryObject& entry) const;
    QString textForCurrentView(const HistoryObject& entry, const QDateTime& now) const;

    // The screen is about to appear: fresh rows and button.
    Q_INVOKABLE void reload();
    Q_INVOKABLE void changeView();
    Q_INVOKABLE void clearHistory();
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE qor::MaterialRef materialAt(int row) const;

signals:
    void segmentChanged();
    void clearButtonVisibleChanged();
    // Phone: push the material's detail on the history stack.
    void materialRequested(const qor::MaterialRef& material);

private:
    void reloadRows();
    void updateClearButton();

    int m_segment = RecentSegment;
    bool m_clearButtonVisible = false;
    HistoryList m_rows;
};

} // namespace qor
