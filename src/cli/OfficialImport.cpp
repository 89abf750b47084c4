// qor-cli import-ecfr / import-npg: official documents into a data pack's
// databases and regulation pages.
#include "Cli.h"
#include "OutputFolder.h"

#include "import/EcfrImport.h"
#include "import/NpgImport.h"
#include "model/PackManifest.h"
#include "model/PackSchema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <sqlite3.h>

namespace qor::cli {

namespace {

// Writes the rows into the pack's databases, creating a database with its
// tables when the folder has none yet. Each database changes in one
// transaction, so a failure leaves it as it was.
bool writeToPack(const QString& dir, const import::ImportTables& tables, QString* error)
{
    for (const DatabaseSchema& schema : packDatabases()) {
        bool wanted = false;
        for (const TableSchema& t : schema.tables)
            wanted = wanted || tables.contains(t.name);
        if (!wanted)
            continue;
        const QString path = QDir(dir).filePath(schema.fileName);
        const bool fresh = !QFileInfo::exists(path);
        sqlite3* db = nullptr;
        bool ok = sqlite3_open(QFile::encodeName(path).constData(), &db) == SQLITE_OK;
        for (const TableSchema& t : schema.tables) {
            if (!ok || !fresh)
                break;
            ok = sqlite3_exec(db, t.createSql().toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
        }
        if (!ok)
            *error = QStringLiteral("%1: %2").arg(path, QString::fromUtf8(sqlite3_errmsg(db)));
        else if (!import::writeImportTables(db, tables, error)) {
            *error = QStringLiteral("%1: %2").arg(path, *error);
            ok = false;
        }
        sqlite3_close(db);
        if (!ok)
            return false;
    }
    return true;
}

bool writeProvisionPages(const QString& dir, const QList<import::SpecialProvision>& provisions, QString* error)
{
    QHash<QString, QString> bodies;
    for (const import::SpecialProvision& p : provisions)
        bodies[specialProvisionPage(p.code)] += p.anchoredHtml();
    QList<QPair<QString, QByteArray>> files;
    for (const QString& page : specialProvisionPages()) {
        const QString html = QStringLiteral("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
                                            "<meta name = \"viewport\" content = \"width = device-width\">\n"
                                            "<title>Special Provisions</title>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"base.css\">\n"
                                            "</head>\n<body style=\"background-color: #ffb045\">\n<h1>Special Provisions</h1>\n%1</body>\n</html>\n")
                                 .arg(bodies.value(page, QStringLiteral("<p>No provisions of this group are in § 172.102 as imported.</p>\n")));
        files.append({ page + QStringLiteral(".html"), html.toUtf8() });
    }
    return writeAllOrNothing(dir, files, error);
}

// A pack with a manifest keeps it true to its files.
bool resealManifest(const QString& dir, QString* error)
{
    if (!QFileInfo::exists(QDir(dir).filePath(QString::fromLatin1(PackManifest::kFileName))))
        return true;
    auto manifest = PackManifest::read(dir, error);
    return manifest && manifest->writeWithChecksums(dir, error);
}

bool takeOutput(Context& ctx, QStringList& args, QString* output, const QString& command)
{
    if (!takeOutputFolder(ctx, args, output, QStringLiteral("a pack folder"), command, QStringLiteral(".")))
        return false;
    for (const QString& a : std::as_const(args))
        if (a.startsWith(QLatin1String("--"))) {
            ctx.usage(QStringLiteral("unknown option '%1'").arg(a));
            return false;
        }
    if (args.isEmpty()) {
        ctx.usage(QStringLiteral("%1 needs at least one file").arg(command));
        return false;
    }
    if (!QDir().mkpath(*output)) {
        ctx.usage(QStringLiteral("cannot create the folder %1").arg(*output));
        return false;
    }
    return true;
}

void report(Context& ctx, const QString& output, const import::ImportTables& tables, QJsonObject extra)
{
    QJsonObject counts;
    for (auto it = tables.cbegin(); it != tables.cend(); ++it)
        counts.insert(it.key(), int(it.value().size()));
    if (ctx.json) {
        extra.insert(QStringLiteral("output"), QFileInfo(output).absoluteFilePath());
        extra.insert(QStringLiteral("rows"), counts);
        ctx.printJson(extra);
        return;
    }
    for (auto it = tables.cbegin(); it != tables.cend(); ++it)
        ctx.out << it.key() << ": " << it.value().size() << " rows\n";
    for (auto it = extra.constBegin(); it != extra.constEnd(); ++it)
        ctx.out << it.key() << ": " << it.value().toVariant().toString() << "\n";
    ctx.out << "Wrote " << QFileInfo(output).absoluteFilePath() << "\n";
    ctx.out.flush();
}

int importEcfrCommand(Context& ctx, QStringList args)
{
    QString output;
    if (!takeOutput(ctx, args, &output, QStringLiteral("import-ecfr")))
        return UsageError;
    // Every file is read before anything is written.
    import::ShippingData data;
    QStringList sections;
    for (const QString& path : std::as_const(args)) {
        QString error;
        const auto section = import::readEcfrSection(path, &error);
        if (!section)
            return nothingWritten(ctx, error);
        data.add(*section);
        sections << section->number;
    }
    const import::ImportTables tables = data.tables();
    QString error;
    if (!writeToPack(output, tables, &error)
        || (!data.provisions().isEmpty() && !writeProvisionPages(output, data.provisions(), &error))
        || !resealManifest(output, &error))
        return nothingWritten(ctx, error);
    report(ctx, output, tables,
           { { QStringLiteral("sections"), sections.join(QStringLiteral(", ")) },
             { QStringLiteral("specialProvisions"), int(data.provisions().size()) } });
    return Found;
}

int importNpgCommand(Context& ctx, QStringList args)
{
    QString output;
    if (!takeOutput(ctx, args, &output, QStringLiteral("import-npg")))
        return UsageError;
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("import-npg reads one folder or archive of pocket guide pages"));
    QString error;
    const auto guide = import::readNpg(args.first(), &error);
    if (!guide)
        return nothingWritten(ctx, error);
    const import::ImportTables tables = guide->tables();
    if (!writeToPack(output, tables, &error) || !resealManifest(output, &error))
        return nothingWritten(ctx, error);
    report(ctx, output, tables,
           { { QStringLiteral("chemicals"), int(guide->chemicals.size()) }, { QStringLiteral("emptyPages"), guide->emptyPages } });
    return Found;
}

const bool registered =
    registerCommand({ QStringLiteral("import-ecfr"),
                      QStringLiteral("import-ecfr [--output DIR] FILE.xml...  eCFR section XML (172.101, 172.102, 172.504, part 173) into a pack"),
                      importEcfrCommand })
    && registerCommand({ QStringLiteral("import-npg"),
                         QStringLiteral("import-npg [--output DIR] DIR|ARCHIVE  pocket guide chemical pages into a pack's npg.db"),
                         importNpgCommand });

} // namespace
} // namespace qor::cli
