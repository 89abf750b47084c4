#pragma once
// The reference screen: five fixed sections leading into the material list
// (by sort order or category) or to an information page.
#include <QAbstractListModel>
#include <QColor>
#include <QList>
#include "model/PackManifest.h"

#include <QtQml/qqmlregistration.h>

namespace qor {

// A row that opens the material list in a category and sort order.
struct ReferenceTable {
    ReferenceTable(const QString& title, const QString& abbrev, int sort = 0) : title(title), abbrev(abbrev), sort(sort) {}
    QString title;   // localised
    QString abbrev;  // category letter
    int sort = 0;
};

// A row that opens an information page.
struct ReferencePage {
    ReferencePage(const QString& page, const QString& title, const QString& abbrev) : page(page), title(title), abbrev(abbrev) {}
    QString page;    // base name of the html page
    QString title;   // localised
    QString abbrev;  // localised short title
};

class ReferenceViewController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(int rowHeight READ rowHeight CONSTANT)
    Q_PROPERTY(QString sourceLine READ sourceLine CONSTANT)
public:
    enum Section { MaterialsSection, TablesSection, ResourcesSection, IdentificationSection, ActionsSection, SectionCount };
    Q_ENUM(Section)
    enum Roles {
        TitleRole = Qt::UserRole + 1,
        SubtitleRole,      // "[Table n]" on table rows
        SectionRole,       // the localised section header
        SectionNumberRole,
        RowColorRole,      // light appearance
        DarkRowColorRole,  // dark appearance
        PageRole,
    };
    Q_ENUM(Roles)
    static constexpr int kRowHeight = 39;

    explicit ReferenceViewController(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const;
    int rowHeight() const { return kRowHeight; }
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("pages"), QStringLiteral("iso_distances") }); }
    Q_INVOKABLE QString sectionHeader(int section) const;
    Q_INVOKABLE int sectionOf(int row) const;
    Q_INVOKABLE int rowInSection(int row) const;
    QColor rowColor(int row, bool dark) const;

    // Runs the row's action: a sorted or filtered material list, or an info page.
    Q_INVOKABLE void selectRow(int row);

    const QList<ReferenceTable> materialGroupings;
    const QList<ReferenceTable> greenTables;
    const QList<ReferencePage> resources;
    const QList<ReferencePage> indentification;
    const QList<ReferencePage> actions;

signals:
    // An info page to show: pushed on the reference stack, or on a tablet in
    // the detail area. The text-size button is left off the how-to page.
    void pageRequested(const QString& page, const QString& title, bool textSizeButton, bool inDetailArea);

private:
    const QList<ReferencePage>* pagesOfSection(int section) const;
    const ReferencePage* pageAt(int row) const;
};

} // namespace qor
