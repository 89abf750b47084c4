// qor-cli validate / import-incidents / pack-info: checking, filling and
// describing data packs.
#include "Cli.h"
#include "IncidentImport.h"
#include "OutputFolder.h"
#include "PackValidator.h"

#include "model/PackManifest.h"
#include "model/Resources.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <sqlite3.h>

namespace qor::cli {

namespace {

QString packDirFrom(Context& ctx, const QStringList& args, const QString& command, bool* ok)
{
    *ok = args.size() <= 1;
    if (!*ok)
        ctx.usage(QStringLiteral("%1 takes at most one folder").arg(command));
    // Absolute, so files listed under the folder compare with the manifest.
    return QFileInfo(args.isEmpty() ? Resources::dir() : args.first()).absoluteFilePath();
}

int validateCommand(Context& ctx, QStringList args)
{
    bool ok = false;
    const QString dir = packDirFrom(ctx, args, QStringLiteral("validate"), &ok);
    if (!ok)
        return UsageError;
    const QList<Violation> violations = validatePack(dir);
    if (ctx.json) {
        QJsonArray list;
        for (const Violation& v : violations)
            list.append(QJsonObject{ { QStringLiteral("file"), v.file }, { QStringLiteral("line"), v.line },
                                     { QStringLiteral("reason"), v.reason } });
        ctx.printJson(QJsonObject{ { QStringLiteral("dir"), QDir(dir).absolutePath() },
                                   { QStringLiteral("valid"), violations.isEmpty() },
                                   { QStringLiteral("violations"), list } });
    } else {
        for (const Violation& v : violations)
            ctx.out << v.toString() << "\n";
        if (violations.isEmpty())
            ctx.out << QDir(dir).absolutePath() << ": the pack is valid\n";
        else
            ctx.out << violations.size() << (violations.size() == 1 ? " problem" : " problems") << " in "
                    << QDir(dir).absolutePath() << "\n";
        ctx.out.flush();
    }
    return violations.isEmpty() ? Found : NothingFound;
}

int importIncidentsCommand(Context& ctx, QStringList args)
{
    QString monthsText = QStringLiteral("12"), output = QStringLiteral("hazmat_incidents.dat");
    if (!takeOption(args, QStringLiteral("--months"), &monthsText))
        return ctx.usage(QStringLiteral("--months needs a number of months"));
    if (!takeOption(args, QStringLiteral("--output"), &output))
        return ctx.usage(QStringLiteral("--output needs a file name"));
    bool ok = false;
    const int months = monthsText.toInt(&ok);
    if (!ok || months < 1)
        return ctx.usage(QStringLiteral("--months needs a whole number of months, 1 or more"));
    if (args.isEmpty())
        return ctx.usage(QStringLiteral("import-incidents needs at least one incident report CSV file"));
    for (const QString& a : std::as_const(args))
        if (a.startsWith(QLatin1String("--")))
            return ctx.usage(QStringLiteral("unknown option '%1'").arg(a));

    QString error;
    const auto report = incidents::readIncidentReports(args, months, &error);
    if (!report || !incidents::writeIncidentDatabase(output, report->incidents, &error))
        return nothingWritten(ctx, error);
    QMap<QString, int> perUnId;
    for (const auto& inc : report->incidents)
        ++perUnId[inc.unId];
    if (ctx.json) {
        QJsonObject counts;
        for (auto it = perUnId.cbegin(); it != perUnId.cend(); ++it)
            counts.insert(it.key(), it.value());
        ctx.printJson(QJsonObject{
            { QStringLiteral("output"), QFileInfo(output).absoluteFilePath() },
            { QStringLiteral("files"), report->files }, { QStringLiteral("rows"), report->rows },
            { QStringLiteral("incidents"), int(report->incidents.size()) },
            { QStringLiteral("mergedRows"), report->mergedRows }, { QStringLiteral("withoutUnId"), report->withoutUnId },
            { QStringLiteral("outsideWindow"), report->outsideWindow },
            { QStringLiteral("newest"), report->newest.toString(Qt::ISODate) },
            { QStringLiteral("cutoff"), report->cutoff.toString(Qt::ISODate) },
            { QStringLiteral("countsByUnId"), counts } });
    } else {
        ctx.out << "Read " << report->files << " files, " << report->rows << " rows\n"
                << "Kept " << report->incidents.size() << " incidents of " << perUnId.size() << " UN numbers after "
                << report->cutoff.toString(Qt::ISODate) << " (newest " << report->newest.toString(Qt::ISODate) << ")\n"
                << "Left out: " << report->mergedRows << " further rows of a report, " << report->withoutUnId
                << " rows without a UN number, " << report->outsideWindow << " older incidents\n"
                << "Wrote " << QFileInfo(output).absoluteFilePath() << "\n";
        ctx.out.flush();
    }
    return Found;
}

int countLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    int n = 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        n += line.contains('^') ? 1 : 0;
    return n;
}

int countIncidents(const QString& path)
{
    sqlite3* db = nullptr;
    int n = 0;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db, "select count(*) from incidents", -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
            n = sqlite3_column_int(stmt, 0);
        sqlite3_finalize(stmt);
    }
    sqlite3_close(db);
    return n;
}

int packInfoCommand(Context& ctx, QStringList args)
{
    bool ok = false;
    const QString dir = packDirFrom(ctx, args, QStringLiteral("pack-info"), &ok);
    if (!ok)
        return UsageError;
    QString error;
    const auto manifest = PackManifest::read(dir, &error);
    if (!manifest) {
        ctx.err << "qor-cli: " << QDir(dir).filePath(QString::fromLatin1(PackManifest::kFileName)) << ": " << error << Qt::endl;
        return NothingFound;
    }
    const QDir d(dir);
    const int materials = countLines(d.filePath(QStringLiteral("chemicals_2024.csv")));
    const int guides = countLines(d.filePath(QStringLiteral("guides.csv")));
    const int incidentRows = countIncidents(d.filePath(QStringLiteral("hazmat_incidents.dat")));
    const QString notice = manifest->sample ? PackManifest::sampleNotice() : QString();
    if (ctx.json) {
        ctx.printJson(QJsonObject{ { QStringLiteral("dir"), d.absolutePath() },
                                   { QStringLiteral("edition"), manifest->edition },
                                   { QStringLiteral("buildDate"), manifest->buildDate },
                                   { QStringLiteral("sample"), manifest->sample },
                                   { QStringLiteral("notice"), notice },
                                   { QStringLiteral("sources"), QJsonArray::fromStringList(manifest->sources) },
                                   { QStringLiteral("files"), int(manifest->files.size()) },
                                   { QStringLiteral("materials"), materials },
                                   { QStringLiteral("guides"), guides },
                                   { QStringLiteral("incidents"), incidentRows } });
    } else {
        ctx.out << manifest->edition << " (built " << manifest->buildDate << ")\n";
        if (manifest->sample)
            ctx.out << notice << "\n";
        ctx.out << d.absolutePath() << ": " << manifest->files.size() << " files, " << materials << " materials, "
                << guides << " guides, " << incidentRows << " incidents\n";
        for (const QString& s : manifest->sources)
            ctx.out << "  " << s << "\n";
        ctx.out.flush();
    }
    return Found;
}

const bool registered =
    registerCommand({ QStringLiteral("validate"), QStringLiteral("validate [DIR]      check a data pack (default: the active one)"), validateCommand })
    && registerCommand({ QStringLiteral("import-incidents"),
                         QStringLiteral("import-incidents [--months 12] [--output FILE] FILE.csv...  build hazmat_incidents.dat from incident report files"),
                         importIncidentsCommand })
    // "info" shows an information page; the pack's own description is "pack-info".
    && registerCommand({ QStringLiteral("pack-info"), QStringLiteral("pack-info [DIR]     edition, build date and contents of a data pack"), packInfoCommand });

} // namespace
} // namespace qor::cli
