#include "ImportTables.h"

#include <sqlite3.h>

namespace qor::import {

namespace {
bool exec(sqlite3* db, const char* sql, QString* error)
{
    char* message = nullptr;
    const bool ok = sqlite3_exec(db, sql, nullptr, nullptr, &message) == SQLITE_OK;
    if (!ok && error)
        *error = QString::fromUtf8(message ? message : sqlite3_errmsg(db));
    sqlite3_free(message);
    return ok;
}

bool tableExists(sqlite3* db, const QString& table)
{
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db, "select 1 from sqlite_master where type = 'table' and name = ?", -1, &st, nullptr) != SQLITE_OK)
        return false;
    const QByteArray name = table.toUtf8();
    sqlite3_bind_text(st, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
    const bool found = sqlite3_step(st) == SQLITE_ROW;
    sqlite3_finalize(st);
    return found;
}

bool writeTable(sqlite3* db, const QString& table, const QList<QStringList>& rows, QString* error)
{
    if (!exec(db, QStringLiteral("delete from \"%1\"").arg(table).toUtf8().constData(), error))
        return false;
    if (rows.isEmpty())
        return true;
    QStringList marks;
    for (qsizetype i = 0; i < rows.first().size(); ++i)
        marks << QStringLiteral("?");
    sqlite3_stmt* st = nullptr;
    const QByteArray sql = QStringLiteral("insert into \"%1\" values (%2)").arg(table, marks.join(QLatin1Char(','))).toUtf8();
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &st, nullptr) != SQLITE_OK) {
        *error = QStringLiteral("%1: %2").arg(table, QString::fromUtf8(sqlite3_errmsg(db)));
        return false;
    }
    bool ok = true;
    for (const QStringList& row : rows) {
        sqlite3_reset(st);
        for (qsizetype i = 0; i < row.size() && i < marks.size(); ++i) {
            const QByteArray v = row.at(i).toUtf8();
            sqlite3_bind_text(st, int(i + 1), v.constData(), int(v.size()), SQLITE_TRANSIENT);
        }
        if (sqlite3_step(st) != SQLITE_DONE) {
            *error = QStringLiteral("%1: %2").arg(table, QString::fromUtf8(sqlite3_errmsg(db)));
            ok = false;
            break;
        }
    }
    sqlite3_finalize(st);
    return ok;
}
} // namespace

bool writeImportTables(sqlite3* db, const ImportTables& tables, QString* error)
{
    QString why;
    if (!exec(db, "savepoint import_tables", &why)) {
        *error = why;
        return false;
    }
    for (auto it = tables.cbegin(); it != tables.cend(); ++it) {
        if (!tableExists(db, it.key()))
            continue;
        if (!writeTable(db, it.key(), it.value(), &why)) {
            exec(db, "rollback to import_tables; release import_tables", nullptr);
            *error = why;
            return false;
        }
    }
    if (!exec(db, "release import_tables", &why)) {
        *error = why;
        return false;
    }
    return true;
}

} // namespace qor::import
