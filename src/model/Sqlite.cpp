#include "Sqlite.h"

#include <algorithm>

#include <sqlite3.h>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <cstdlib>

namespace qor {

Database::~Database()
{
    if (m_db)
        sqlite3_close_v2(m_db);
}

Database::Database(Database&& other) noexcept
    : m_db(other.m_db), m_path(std::move(other.m_path))
{
    other.m_db = nullptr;
}

Database& Database::operator=(Database&& other) noexcept
{
    if (this != &other) {
        if (m_db)
            sqlite3_close_v2(m_db);
        m_db = other.m_db;
        m_path = std::move(other.m_path);
        other.m_db = nullptr;
    }
    return *this;
}

namespace {
// SQLite takes an empty file for an empty database and a cut-off one for
// whole until a lookup reaches the missing pages; both are broken packs.
QString truncation(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();  // SQLite gives the reason
    const qint64 size = file.size();
    if (size == 0)
        return QStringLiteral("empty file");
    const QByteArray header = file.read(100);
    if (header.size() < 100 || !header.startsWith(QByteArrayLiteral("SQLite format 3\0")))
        return QString();  // not a database at all; SQLite says so
    const auto byte = [&](int i) { return quint32(quint8(header.at(i))); };
    const quint32 pageSize = byte(16) << 8 | byte(17);
    const quint32 pages = byte(28) << 24 | byte(29) << 16 | byte(30) << 8 | byte(31);
    const qint64 expected = qint64(pageSize == 1 ? 65536 : pageSize) * pages;
    // The page count in the header is only kept by writers since 3.7.0; it
    // is trusted only when it agrees with the change counter, as SQLite does.
    const bool countValid = pages > 0 && header.mid(24, 4) == header.mid(92, 4);
    if (countValid && size < expected)
        return QStringLiteral("truncated: %1 of %2 bytes").arg(size).arg(expected);
    return QString();
}
} // namespace

Database Database::openReadOnly(const QString& path, QString* why)
{
    Database result;
    if (!QFileInfo(path).isFile()) {
        if (why)
            *why = QStringLiteral("no such file");
        return result;
    }
    if (const QString damage = truncation(path); !damage.isEmpty()) {
        if (why)
            *why = damage;
        return result;
    }
    // immutable=1: the pack is never written, so SQLite may skip locking and
    // nothing can ever be written into it by accident.
    QUrl url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    QByteArray uri = url.toEncoded() + "?mode=ro&immutable=1";
    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(uri.constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    if (rc != SQLITE_OK) {
        if (why)
            *why = QString::fromUtf8(db ? sqlite3_errmsg(db) : sqlite3_errstr(rc));
        if (db)
            sqlite3_close_v2(db);
        return result;
    }
    // Opening is lazy; read the schema now so a truncated file or one that is
    // not a database fails here rather than on the first lookup.
    char* err = nullptr;
    rc = sqlite3_exec(db, "select count(*) from sqlite_master", nullptr, nullptr, &err);
    if (rc != SQLITE_OK) {
        if (why)
            *why = QString::fromUtf8(err ? err : sqlite3_errstr(rc));
        sqlite3_free(err);
        sqlite3_close_v2(db);
        return result;
    }
    result.m_db = db;
    result.m_path = path;
    return result;
}

Database Database::openReadOnlyOrAbort(const QString& path)
{
    QString why;
    Database db = openReadOnly(path, &why);
    if (!db.isOpen()) {
        qCritical().noquote() << QStringLiteral("cannot open database %1: %2").arg(path, why);
        std::abort();
    }
    return db;
}

Statement::Statement(const Database& db, const QString& sql)
{
    if (!db.handle())
        return;
    QByteArray utf8 = sql.toUtf8();
    if (sqlite3_prepare_v2(db.handle(), utf8.constData(), int(utf8.size()), &m_stmt, nullptr) != SQLITE_OK) {
        m_error = QString::fromUtf8(sqlite3_errmsg(db.handle()));
        sqlite3_finalize(m_stmt);
        m_stmt = nullptr;
    }
}

Statement::~Statement()
{
    if (m_stmt)
        sqlite3_finalize(m_stmt);
}

bool Statement::step()
{
    return m_stmt && sqlite3_step(m_stmt) == SQLITE_ROW;
}

int Statement::columnCount() const
{
    return m_stmt ? sqlite3_column_count(m_stmt) : 0;
}

QString Statement::text(int column) const
{
    if (!m_stmt || column < 0 || column >= sqlite3_column_count(m_stmt))
        return QString();
    const unsigned char* t = sqlite3_column_text(m_stmt, column);
    if (!t)
        return QString();
    return QString::fromUtf8(reinterpret_cast<const char*>(t), sqlite3_column_bytes(m_stmt, column));
}

bool Statement::isNull(int column) const
{
    if (!m_stmt || column < 0 || column >= sqlite3_column_count(m_stmt))
        return true;
    return sqlite3_column_type(m_stmt, column) == SQLITE_NULL;
}

int Statement::integer(int column) const
{
    if (!m_stmt || column < 0 || column >= sqlite3_column_count(m_stmt))
        return 0;
    return sqlite3_column_int(m_stmt, column);
}

QString sqlQuoted(const QString& value)
{
    QString v = value;
    return v.replace(QLatin1Char('\''), QLatin1String("''"));
}

QString sqlBareUnId(const QString& unId)
{
    const bool digits = !unId.isEmpty() && std::all_of(unId.cbegin(), unId.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits ? unId : QStringLiteral("NULL");
}

} // namespace qor
