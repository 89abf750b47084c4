#pragma once
// Rows an importer produces for the pack's tables, and the one way they are
// written into a pack database.
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

struct sqlite3;

namespace qor::import {

// Table name -> rows, each in the table's column order.
using ImportTables = QMap<QString, QList<QStringList>>;

// Replaces the rows of every listed table that exists in `db` with the given
// rows, in one transaction; tables the database lacks are skipped. False with
// *error (and nothing changed) on failure.
bool writeImportTables(sqlite3* db, const ImportTables& tables, QString* error);

} // namespace qor::import
