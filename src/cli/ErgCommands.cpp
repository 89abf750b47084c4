// qor-cli import-erg: reads the guidebook's yellow index and Tables 1 to 3
// from its PDF pages and writes the materials file and the tables.
#include "Cli.h"
#include "OutputFolder.h"

#include "import/ErgImport.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace qor::cli {

namespace {

using namespace qor::import;

int importErgCommand(Context& ctx, QStringList args)
{
    QString output;
    if (!takeOutputFolder(ctx, args, &output, QStringLiteral("a folder"), QStringLiteral("import-erg")))
        return UsageError;
    if (args.isEmpty())
        return ctx.usage(QStringLiteral("import-erg needs at least one guidebook PDF file"));
    for (const QString& a : std::as_const(args))
        if (a.startsWith(QLatin1String("--")))
            return ctx.usage(QStringLiteral("unknown option '%1'").arg(a));

    QString error;
    const auto tables = ErgImport::read(args, &error);
    if (!tables)
        return nothingWritten(ctx, error);
    if (!tables->unusedFiles.isEmpty())
        return nothingWritten(ctx, QStringLiteral("%1: no yellow index and no Table 1, 2 or 3 found").arg(tables->unusedFiles.join(QStringLiteral(", "))));
    const QStringList mismatches = ErgImport::highlightMismatches(*tables);
    if (!mismatches.isEmpty())
        return nothingWritten(ctx, QStringLiteral("the index highlight and Table 1 disagree: %1").arg(mismatches.mid(0, 5).join(QStringLiteral("; "))));

    const QList<QPair<QString, QByteArray>> files = {
        { QStringLiteral("chemicals_2024.csv"), (materialsLines(*tables).join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8() },
        { QStringLiteral("table1.csv"), table1Csv(*tables).toUtf8() },
        { QStringLiteral("table2.csv"), table2Csv(*tables).toUtf8() },
        { QStringLiteral("table3.csv"), table3Csv(*tables).toUtf8() },
        { QStringLiteral("iso_distances.sql"), isoDistancesSql(*tables).toUtf8() },
        { QStringLiteral("large_spill_distances.sql"), largeSpillSql(*tables).toUtf8() },
    };
    if (!writeAllOrNothing(output, files, &error))
        return nothingWritten(ctx, error);

    int highlighted = 0, water = 0;
    for (const ErgIndexRow& r : tables->index)
        highlighted += r.highlighted;
    for (const ErgTable1Row& r : tables->table1)
        water += r.condition == ErgImport::kWater;
    const QString dir = QFileInfo(output).absoluteFilePath();
    if (ctx.json) {
        QJsonArray written;
        for (const auto& f : files)
            written.append(f.first);
        ctx.printJson(QJsonObject{ { QStringLiteral("output"), dir },
                                   { QStringLiteral("indexRows"), int(tables->index.size()) },
                                   { QStringLiteral("highlightedRows"), highlighted },
                                   { QStringLiteral("table1Rows"), int(tables->table1.size()) },
                                   { QStringLiteral("table1WaterRows"), water },
                                   { QStringLiteral("table2Rows"), int(tables->table2.size()) },
                                   { QStringLiteral("table3Rows"), int(tables->table3.size()) },
                                   { QStringLiteral("files"), written } });
    } else {
        ctx.out << "Index: " << tables->index.size() << " rows, " << highlighted << " highlighted\n"
                << "Table 1: " << tables->table1.size() << " rows, " << water << " for spills in water\n"
                << "Table 2: " << tables->table2.size() << " rows\n"
                << "Table 3: " << tables->table3.size() << " rows\n";
        for (const auto& f : files)
            ctx.out << "Wrote " << QDir(dir).filePath(f.first) << "\n";
        ctx.out.flush();
    }
    return Found;
}

const bool registered = registerCommand(
    { QStringLiteral("import-erg"),
      QStringLiteral("import-erg PDF... --output DIR   read the guidebook's index and Tables 1-3 into the materials file and table files"),
      importErgCommand });

} // namespace
} // namespace qor::cli
