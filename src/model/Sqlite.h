#pragma once
// Thin RAII wrapper over the SQLite C API. SQL text is built by the callers
// (values substituted into format strings), so this only prepares, steps and
// reads columns as text. A failed prepare is not an error here: callers treat
// it as "no rows".
#include <QString>
#include <QByteArray>

struct sqlite3;
struct sqlite3_stmt;

namespace qor {

class Database {
public:
    Database() = default;
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    Database(Database&& other) noexcept;
    Database& operator=(Database&& other) noexcept;

    // Opens the file read-only and immutable. On failure logs the file and
    // SQLite's reason, then aborts: the reference data cannot be done without.
    static Database openReadOnlyOrAbort(const QString& path);
    // The same, without aborting; returns an invalid Database and sets *why.
    static Database openReadOnly(const QString& path, QString* why = nullptr);

    bool isOpen() const { return m_db != nullptr; }
    sqlite3* handle() const { return m_db; }
    QString path() const { return m_path; }

private:
    sqlite3* m_db = nullptr;
    QString m_path;
};

class Statement {
public:
    Statement(const Database& db, const QString& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool isValid() const { return m_stmt != nullptr; }
    // Advances to the next row; false when done or on error.
    bool step();
    int columnCount() const;
    // Column as text; NULL reads as the empty string instead of crashing.
    QString text(int column) const;
    bool isNull(int column) const;
    int integer(int column) const;
    QString errorMessage() const { return m_error; }

private:
    sqlite3_stmt* m_stmt = nullptr;
    QString m_error;
};

// Doubles single quotes so a value can sit inside '...' in SQL text.
QString sqlQuoted(const QString& value);

// A UN id as the bare SQL term the lookups compare with: the id itself when it
// is all digits, otherwise NULL, which matches no row. An id from the
// materials file is never trusted to be a number; unquoted, "1090 or 1=1"
// would reach every row, and a word could name a column.
QString sqlBareUnId(const QString& unId);

} // namespace qor
