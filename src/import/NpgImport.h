#pragma once
// Reads the pocket guide's chemical pages (npgdNNNN.html), from a folder or
// an archive of them, into the pack's `npg_guides` and `unid_npgid` rows.
#include "import/ImportTables.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <optional>

namespace qor::import {

// The `npg_guides` columns, in table order. The last ones hold the response
// cells (routes, symptoms, organs, protection, first aid) for the
// protection tab.
const QStringList& npgColumns();

struct NpgChemical {
    QString id;                     // the page number, "0002" of npgd0002.html
    QHash<QString, QString> cells;  // column name -> text
    QStringList unIds;              // from "DOT ID & Guide"
    QStringList columns() const;    // in npgColumns() order
};

// One page; nullopt (and no error) for a page without a chemical, nullopt
// with *error for one that cannot be read.
std::optional<NpgChemical> parseNpgPage(const QByteArray& html, const QString& id, QString* error);

struct NpgGuide {
    QList<NpgChemical> chemicals;  // by page number
    int emptyPages = 0;
    ImportTables tables() const;    // npg_guides and unid_npgid
};

// A folder holding the pages (at any depth) or a tar/zip archive of them.
std::optional<NpgGuide> readNpg(const QString& dirOrArchive, QString* error);

} // namespace qor::import
