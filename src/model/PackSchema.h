#pragma once
// Tables and column order of the three databases. Lookups read columns by
// position, so this order is binding for every pack.
#include <QString>
#include <QStringList>
#include <vector>

namespace qor {

struct TableSchema {
    QString name;
    QStringList columns;
    QString createSql() const;
};

struct DatabaseSchema {
    QString fileName;  // "npg.db"
    std::vector<TableSchema> tables;
};

// incidents ("hazmat_incidents.dat"), chemistry ("npg.db"), regulations ("cfr49.db")
const std::vector<DatabaseSchema>& packDatabases();
const DatabaseSchema* packDatabase(const QString& fileName);
// The database file holding a table, or null for a name that is no table.
const DatabaseSchema* packTableDatabase(const QString& table);
// Contents of a pack that are files rather than tables, as pack.json names
// them for their provenance: the materials file, guides, information pages,
// special-provision pages, placard artwork and descriptions.
const QStringList& packTextContents();
// SQL that reads a UN id column as the id's text ("0004", "NA1993"): those
// columns have numeric affinity, which stores 0004 as the integer 4.
QString packUnIdColumnText(const QString& column);

// Resources the app names directly, so every pack must carry them.
const QStringList& packPlacardKeys();      // each has "<key>.pdf"; "blank" shows placard 9
const QStringList& packInfoPages();        // each has "<name>.html", in the app's order
const QStringList& packSortImages();       // the four sort buttons and the PNG fallback
const QStringList& packSortButtonImages(); // the four sort buttons, by sort type
QString packDefaultSortImageFallback();    // shown when no filter has a sort image
const QStringList& packGhsPictograms();    // "ghs01" ... "ghs09", each with "<name>.pdf"
const QStringList& packOtherArtwork();     // icons and placard-table rows, by file name
const QStringList& packOtherPages();       // pages beside the information pages, without ".html"

// Special provisions are documented on one page per group; the page (and
// so its anchor) of a code follows the code's prefix.
const QStringList& specialProvisionPages();
QString specialProvisionPage(const QString& code);

// The HTML a regulation page shows when the pack lacks its text: it names
// the text ("49 CFR § 173.203") and how to add it, never a blank page.
QString regulationNotInPackHtml(const QString& citation);
// The body of an information page none of the pack's sources gives: its
// title and that the chapter is not in this data pack, never a guess.
QString chapterNotInPackHtml(const QString& title);

} // namespace qor
