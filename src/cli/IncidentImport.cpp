#include "IncidentImport.h"

#include "model/PackSchema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryFile>
#include <cstdio>
#include <sqlite3.h>

namespace qor::incidents {

namespace {

struct CsvRecord {
    QStringList fields;
    int line = 0;  // line the record starts on, from 1
};

// RFC 4180 records: quoted fields may hold commas, doubled quotes and line breaks.
// Returns false, with the line of the unclosed quote, when a quoted field never ends.
bool parseCsv(const QString& text, QList<CsvRecord>* records, int* badLine)
{
    CsvRecord rec;
    QString field;
    bool quoted = false, fieldStarted = false;
    int line = 1;
    rec.line = 1;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (quoted) {
            if (c == QLatin1Char('"')) {
                if (i + 1 < n && text.at(i + 1) == QLatin1Char('"')) {
                    field += c;
                    ++i;
                } else {
                    quoted = false;
                }
            } else {
                if (c == QLatin1Char('\n'))
                    ++line;
                field += c;
            }
            continue;
        }
        if (c == QLatin1Char('"') && !fieldStarted) {
            quoted = fieldStarted = true;
        } else if (c == QLatin1Char(',')) {
            rec.fields << field;
            field.clear();
            fieldStarted = false;
        } else if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) {
            if (c == QLatin1Char('\r') && i + 1 < n && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
            rec.fields << field;
            if (!(rec.fields.size() == 1 && rec.fields.first().isEmpty()))
                records->append(rec);
            rec = CsvRecord();
            field.clear();
            fieldStarted = false;
            rec.line = ++line;
        } else {
            field += c;
            fieldStarted = true;
        }
    }
    if (quoted) {
        *badLine = rec.line;
        return false;
    }
    if (fieldStarted || !rec.fields.isEmpty()) {
        rec.fields << field;
        records->append(rec);
    }
    return true;
}

const char* const kRequired[] = { "Report Number", "Date Of Incident", "Mode Of Transportation",
                                  "Identification Number", "Serious Incident Ind", "Hmis Serious Bulk Release",
                                  "Hmis Serious Evacuations", "Hmis Serious Fatality", "Hmis Serious Major Artery",
                                  "Hmis Serious Marine Pollutant", "Hmis Serious Radioactive" };
constexpr int kFlagColumns = 7;  // the last seven of kRequired

std::optional<bool> indicator(const QString& value)
{
    const QString v = value.trimmed();
    if (v.compare(QLatin1String("Yes"), Qt::CaseInsensitive) == 0 || v == QLatin1String("Y"))
        return true;
    if (v.isEmpty() || v.compare(QLatin1String("No"), Qt::CaseInsensitive) == 0 || v == QLatin1String("N"))
        return false;
    return std::nullopt;
}

QString digitsOnly(const QString& id)
{
    QString out;
    for (const QChar c : id)
        if (c.isDigit())
            out += c;
    return out;
}

bool exec(sqlite3* db, const char* sql, QString* error)
{
    char* err = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &err) == SQLITE_OK)
        return true;
    *error = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
    sqlite3_free(err);
    return false;
}

} // namespace

std::optional<ImportReport> readIncidentReports(const QStringList& paths, int months, QString* error)
{
    if (paths.isEmpty()) {
        *error = QStringLiteral("no incident report files given");
        return std::nullopt;
    }
    if (months < 1) {
        *error = QStringLiteral("the window must be at least one month");
        return std::nullopt;
    }
    ImportReport report;
    QHash<QString, qsizetype> byKey;  // report number + UN id -> index in all
    QList<std::pair<QDate, Incident>> all;
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).fileName();
        auto fail = [&](int line, const QString& why) {
            *error = line > 0 ? QStringLiteral("%1:%2: %3").arg(name).arg(line).arg(why) : QStringLiteral("%1: %2").arg(name, why);
            return std::nullopt;
        };
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return fail(0, QStringLiteral("cannot read: %1").arg(file.errorString()));
        QByteArray bytes = file.readAll();
        if (bytes.startsWith("\xEF\xBB\xBF"))
            bytes.remove(0, 3);
        QList<CsvRecord> records;
        int badLine = 0;
        if (!parseCsv(QString::fromUtf8(bytes), &records, &badLine))
            return fail(badLine, QStringLiteral("a quoted field is never closed"));
        if (records.isEmpty())
            return fail(0, QStringLiteral("empty file, not an incident report file"));
        const QStringList header = records.first().fields;
        int col[std::size(kRequired)];
        for (size_t k = 0; k < std::size(kRequired); ++k) {
            // The first of the two "Report Number" columns is the plain id.
            col[k] = int(header.indexOf(QString::fromLatin1(kRequired[k])));
            if (col[k] < 0)
                return fail(1, QStringLiteral("not an incident report file: no column \"%1\"").arg(QString::fromLatin1(kRequired[k])));
        }
        ++report.files;
        for (qsizetype r = 1; r < records.size(); ++r) {
            const CsvRecord& rec = records.at(r);
            if (rec.fields.size() != header.size())
                return fail(rec.line, QStringLiteral("%1 fields, the header has %2").arg(rec.fields.size()).arg(header.size()));
            ++report.rows;
            const QString number = rec.fields.at(col[0]).trimmed();
            if (number.isEmpty())
                return fail(rec.line, QStringLiteral("no report number"));
            const QString dateText = rec.fields.at(col[1]).trimmed();
            const QDate date = QDate::fromString(dateText.left(10), Qt::ISODate);
            if (!date.isValid())
                return fail(rec.line, QStringLiteral("unreadable incident date \"%1\"").arg(dateText));
            Incident inc;
            inc.reportNumber = number;
            inc.date = date.toString(Qt::ISODate);
            inc.mode = rec.fields.at(col[2]).trimmed();
            for (int k = 0; k < kFlagColumns; ++k) {
                const int c = col[4 + k];
                const auto flag = indicator(rec.fields.at(c));
                if (!flag)
                    return fail(rec.line, QStringLiteral("column \"%1\" holds \"%2\", not Yes or No")
                                              .arg(header.at(c), rec.fields.at(c)));
                inc.flags[size_t(k)] = *flag;
            }
            inc.unId = digitsOnly(rec.fields.at(col[3]));
            if (inc.unId.size() != 4) {
                ++report.withoutUnId;
                continue;
            }
            const QString key = number + QLatin1Char('\x1f') + inc.unId;
            if (const auto it = byKey.constFind(key); it != byKey.constEnd()) {
                Incident& seen = all[*it].second;
                for (size_t k = 0; k < seen.flags.size(); ++k)
                    seen.flags[k] = seen.flags[k] || inc.flags[k];
                ++report.mergedRows;
                continue;
            }
            byKey.insert(key, all.size());
            all.append({ date, inc });
            if (!report.newest.isValid() || date > report.newest)
                report.newest = date;
        }
    }
    if (report.newest.isValid())
        report.cutoff = report.newest.addMonths(-months);
    for (const auto& [date, inc] : std::as_const(all)) {
        if (date > report.cutoff)
            report.incidents.append(inc);
        else
            ++report.outsideWindow;
    }
    std::sort(report.incidents.begin(), report.incidents.end(), [](const Incident& a, const Incident& b) {
        return std::tie(a.date, a.reportNumber, a.unId) < std::tie(b.date, b.reportNumber, b.unId);
    });
    return report;
}

bool insertIncidents(sqlite3* db, const QList<Incident>& incidents, QString* error)
{
    sqlite3_stmt* stmt = nullptr;
    const QByteArray sql = "insert into incidents values (?,?,?,?,?,?,?,?,?,?,?)";
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) != SQLITE_OK) {
        *error = QString::fromUtf8(sqlite3_errmsg(db));
        return false;
    }
    bool ok = exec(db, "begin", error);
    for (qsizetype i = 0; ok && i < incidents.size(); ++i) {
        const Incident& inc = incidents.at(i);
        const QByteArray texts[4] = { inc.reportNumber.toUtf8(), inc.unId.toUtf8(), inc.date.toUtf8(), inc.mode.toUtf8() };
        for (int k = 0; k < 4; ++k)
            sqlite3_bind_text(stmt, k + 1, texts[k].constData(), int(texts[k].size()), SQLITE_TRANSIENT);
        for (int k = 0; k < kFlagColumns; ++k)
            sqlite3_bind_text(stmt, 5 + k, inc.flags[size_t(k)] ? "Y" : "N", 1, SQLITE_STATIC);
        if (sqlite3_step(stmt) != SQLITE_DONE) {
            *error = QString::fromUtf8(sqlite3_errmsg(db));
            ok = false;
        }
        sqlite3_reset(stmt);
    }
    sqlite3_finalize(stmt);
    return ok && exec(db, "commit", error);
}

bool writeIncidentDatabase(const QString& path, const QList<Incident>& incidents, QString* error)
{
    // Built beside the target and renamed over it, so a failure leaves any old file alone.
    const QFileInfo target(path);
    QTemporaryFile tmp(target.absoluteDir().filePath(target.fileName() + QStringLiteral(".XXXXXX")));
    if (!tmp.open()) {
        *error = QStringLiteral("%1: %2").arg(target.absoluteFilePath(), tmp.errorString());
        return false;
    }
    tmp.close();
    QFile::setPermissions(tmp.fileName(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    sqlite3* db = nullptr;
    bool ok = sqlite3_open(QFile::encodeName(tmp.fileName()).constData(), &db) == SQLITE_OK;
    if (!ok)
        *error = QString::fromUtf8(sqlite3_errmsg(db));
    for (const auto& t : packDatabase(QStringLiteral("hazmat_incidents.dat"))->tables)
        ok = ok && exec(db, t.createSql().toUtf8().constData(), error);
    ok = ok && insertIncidents(db, incidents, error);
    sqlite3_close(db);
    if (ok && std::rename(QFile::encodeName(tmp.fileName()).constData(), QFile::encodeName(target.absoluteFilePath()).constData()) != 0) {
        *error = QStringLiteral("cannot replace %1").arg(target.absoluteFilePath());
        ok = false;
    }
    if (ok)
        tmp.setAutoRemove(false);
    return ok;
}

} // namespace qor::incidents
