// Builds the data pack from its sources:
//   *.sql        -> SQLite file named by the rest of the name ("npg.db.sql" -> "npg.db")
//   anything else is copied as it is.
// The output folder is recreated on every run so removed sources do not linger.
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>
#include <sqlite3.h>

namespace {

int fail(const QString& message)
{
    QTextStream(stderr) << "qor-packbuild: " << message << Qt::endl;
    return 1;
}

bool buildDatabase(const QString& sqlPath, const QString& dbPath, QString* error)
{
    QFile sqlFile(sqlPath);
    if (!sqlFile.open(QIODevice::ReadOnly)) {
        *error = sqlFile.errorString();
        return false;
    }
    const QByteArray sql = sqlFile.readAll();
    QFile::remove(dbPath);
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(dbPath.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        *error = QString::fromUtf8(sqlite3_errmsg(db));
        sqlite3_close(db);
        return false;
    }
    char* err = nullptr;
    const QByteArray script = "pragma journal_mode=off; begin;\n" + sql + "\ncommit; vacuum;";
    const int rc = sqlite3_exec(db, script.constData(), nullptr, nullptr, &err);
    if (rc != SQLITE_OK)
        *error = QString::fromUtf8(err ? err : "unknown error");
    sqlite3_free(err);
    sqlite3_close(db);
    return rc == SQLITE_OK;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3)
        return fail(QStringLiteral("usage: qor-packbuild SOURCE_DIR OUTPUT_DIR"));
    const QDir source(args.at(1));
    QDir output(args.at(2));
    if (!source.exists())
        return fail(QStringLiteral("no source folder %1").arg(source.path()));
    if (output.exists() && !output.removeRecursively())
        return fail(QStringLiteral("cannot clear %1").arg(output.path()));
    if (!QDir().mkpath(output.path()))
        return fail(QStringLiteral("cannot create %1").arg(output.path()));

    QDirIterator it(source.path(), QDir::Files, QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext())
        files << it.next();
    files.sort();
    for (const QString& path : files) {
        const QString rel = source.relativeFilePath(path);
        if (rel.startsWith(QLatin1String("src/")) || rel == QLatin1String("README.md"))
            continue;  // sources of generated artwork, and notes for editors
        const QString target = output.filePath(rel);
        QDir().mkpath(QFileInfo(target).path());
        if (rel.endsWith(QLatin1String(".sql"))) {
            QString error;
            const QString dbPath = target.left(target.size() - 4);
            if (!buildDatabase(path, dbPath, &error))
                return fail(QStringLiteral("%1: %2").arg(rel, error));
        } else if (!QFile::copy(path, target)) {
            return fail(QStringLiteral("cannot copy %1").arg(rel));
        }
    }
    return 0;
}
