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

} // namespace qor
