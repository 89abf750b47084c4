#include "PackValidator.h"

#include "model/PackManifest.h"
#include "model/PackSchema.h"
#include "model/QORModel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <sqlite3.h>

namespace qor::cli {

QString Violation::toString() const
{
    return line > 0 ? QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(reason) : QStringLiteral("%1: %2").arg(file, reason);
}

namespace {

// The class a page carries when the pack lacks the regulation text it would show.
const QString kNotInPack = QStringLiteral("not-in-pack");
const QString kBodyTag = QStringLiteral("body style=\"background-color: #ffb045\">");
constexpr int kMaxPerCheck = 25;  // a systematic fault is reported a few times, then counted

// Read-only handle that never creates a file.
class ReadOnlyDb {
public:
    explicit ReadOnlyDb(const QString& path)
    {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK
            || sqlite3_exec(m_db, "select count(*) from sqlite_master", nullptr, nullptr, nullptr) != SQLITE_OK) {
            m_error = QString::fromUtf8(sqlite3_errmsg(m_db));
            sqlite3_close(m_db);
            m_db = nullptr;
        }
    }
    ~ReadOnlyDb() { sqlite3_close(m_db); }
    ReadOnlyDb(const ReadOnlyDb&) = delete;
    ReadOnlyDb& operator=(const ReadOnlyDb&) = delete;
    bool isOpen() const { return m_db != nullptr; }
    QString error() const { return m_error; }

    // Rows as text (NULL stays a null QString); nullopt when the query fails.
    std::optional<QList<QStringList>> rows(const QString& sql) const
    {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK)
            return std::nullopt;
        QList<QStringList> out;
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            QStringList row;
            for (int c = 0; c < sqlite3_column_count(stmt); ++c) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, c));
                row << (text ? QString::fromUtf8(text) : QString());
            }
            out << row;
        }
        sqlite3_finalize(stmt);
        return out;
    }

private:
    sqlite3* m_db = nullptr;
    QString m_error;
};

class Validator {
public:
    explicit Validator(const QString& dir) : m_dir(dir) {}

    QList<Violation> run()
    {
        if (!QFileInfo(m_dir.path()).isDir()) {
            add(m_dir.path(), 0, QStringLiteral("no such folder"));
            return m_violations;
        }
        checkManifest();
        const QSet<QString> guides = checkGuides();
        checkMaterials(guides);
        checkPages();
        checkArtwork();
        checkDatabases();
        return m_violations;
    }

private:
    void add(const QString& file, int line, const QString& reason) { m_violations.append({ file, line, reason }); }

    // Adds under a per-check cap; returns the number of suppressed reports at the end.
    struct Capped {
        Validator* v;
        QString file;
        int count = 0;
        void add(int line, const QString& reason)
        {
            if (++count <= kMaxPerCheck)
                v->add(file, line, reason);
        }
        ~Capped()
        {
            if (count > kMaxPerCheck)
                v->add(file, 0, QStringLiteral("%1 more problems of this kind not listed").arg(count - kMaxPerCheck));
        }
    };

    bool exists(const QString& rel) const { return QFileInfo::exists(m_dir.filePath(rel)); }

    std::optional<QString> readText(const QString& rel)
    {
        QFile file(m_dir.filePath(rel));
        if (!file.open(QIODevice::ReadOnly)) {
            add(rel, 0, QStringLiteral("missing or unreadable"));
            return std::nullopt;
        }
        QStringDecoder decoder(QStringConverter::Utf8);
        QString text = decoder.decode(file.readAll());
        if (decoder.hasError())
            add(rel, 0, QStringLiteral("not valid UTF-8"));
        return text;
    }

    void requireFile(const QString& rel, const QString& what)
    {
        if (!exists(rel))
            add(rel, 0, QStringLiteral("missing (%1)").arg(what));
    }

    void checkManifest()
    {
        const QString name = QString::fromLatin1(PackManifest::kFileName);
        QString why;
        const auto manifest = PackManifest::read(m_dir.path(), &why);
        if (!manifest) {
            add(name, 0, why + QStringLiteral("; the pack is unverified: its files and sources cannot be checked"));
            return;
        }
        m_manifest = manifest;
        // A document the values come from is named with the sums of its files.
        static const QRegularExpression hex64(QStringLiteral("^[0-9a-f]{64}$"));
        for (const PackSource& source : manifest->sourceList) {
            if (source.sample || source.id.isEmpty())
                continue;
            if (source.files.isEmpty())
                add(name, 0, QStringLiteral("source %1 names no file").arg(source.id));
            for (auto f = source.files.cbegin(); f != source.files.cend(); ++f)
                if (!hex64.match(f.value()).hasMatch())
                    add(name, 0, QStringLiteral("source %1: %2 has no valid SHA-256").arg(source.id, f.key()));
        }
        if (manifest->edition.isEmpty())
            add(name, 0, QStringLiteral("no edition"));
        const QStringList present = PackManifest::packFiles(m_dir.path());
        const QSet<QString> presentSet(present.begin(), present.end());
        for (auto it = manifest->files.cbegin(); it != manifest->files.cend(); ++it) {
            if (!presentSet.contains(it.key()))
                add(name, 0, QStringLiteral("lists %1, which is not in the pack").arg(it.key()));
            else if (PackManifest::sha256(m_dir.filePath(it.key())) != it.value())
                add(it.key(), 0, QStringLiteral("SHA-256 differs from pack.json"));
        }
        for (const QString& rel : present)
            if (!manifest->files.contains(rel))
                add(rel, 0, QStringLiteral("not listed in pack.json"));
    }

    QSet<QString> checkGuides()
    {
        const QString rel = QStringLiteral("guides.csv");
        QSet<QString> ids;
        const auto text = readText(rel);
        if (!text)
            return ids;
        int line = 0;
        for (const QString& l : text->split(QLatin1Char('\n'))) {
            ++line;
            if (l.isEmpty())
                continue;
            const QStringList f = l.split(QLatin1Char('^'));
            if (f.size() < 2) {
                add(rel, line, QStringLiteral("no \"^\" between guide number and title; the line is skipped"));
                continue;
            }
            if (ids.contains(f.at(0)))
                add(rel, line, QStringLiteral("guide %1 is listed twice; only the first is ever found").arg(f.at(0)));
            ids.insert(f.at(0));
            const QString page = f.at(0) + QStringLiteral(".html");
            if (!exists(page))
                add(rel, line, QStringLiteral("guide %1 has no page %2").arg(f.at(0), page));
            else
                m_guidePages << page;
        }
        return ids;
    }

    void checkMaterials(const QSet<QString>& guides)
    {
        const QString rel = QStringLiteral("chemicals_2024.csv");
        const auto text = readText(rel);
        if (!text)
            return;
        Capped report{ this, rel };
        bool sectionSeen = false;
        int line = 0;
        for (const QString& l : text->split(QLatin1Char('\n'))) {
            ++line;
            if (l.isEmpty())
                continue;
            if (l.contains(QLatin1Char('\r')))
                report.add(line, QStringLiteral("carriage return in the line; the last field would carry it"));
            const QStringList f = l.split(QLatin1Char('^'));
            if (f.size() == 6) {
                report.add(line, QStringLiteral("6 fields; the app aborts on such a line (7 needed)"));
                continue;
            }
            if (f.size() < 6) {
                report.add(line, QStringLiteral("%1 fields; the app skips the line (7 needed)").arg(f.size()));
                continue;
            }
            if (f.size() > 7)
                report.add(line, QStringLiteral("%1 fields; a \"^\" in a name splits it (7 needed)").arg(f.size()));
            const QString name = f.at(0), placard = f.at(1).trimmed(), unId = f.at(3);
            QString guide = f.at(2);
            if (guide.endsWith(QLatin1Char('P')))
                guide = guide.left(3);
            if (name.isEmpty())
                report.add(line, QStringLiteral("no name"));
            else if (name.at(0).isLetter())
                sectionSeen = true;
            else if (!sectionSeen)
                report.add(line, QStringLiteral("\"%1\" starts with no letter and no letter-named material comes before it; "
                                                "it would be in no alphabetical section").arg(name));
            static const QRegularExpression fourDigits(QStringLiteral("^\\d{4}$"));
            // The explosives rows of the guidebook's index carry no ID.
            if (!unId.isEmpty() && !fourDigits.match(unId).hasMatch())
                report.add(line, QStringLiteral("UN number \"%1\" is not four digits").arg(unId));
            if (!guides.contains(guide))
                report.add(line, QStringLiteral("guide \"%1\" is not in guides.csv").arg(guide));
            if (!placard.isEmpty() && !exists(placard + QStringLiteral(".pdf")))
                report.add(line, QStringLiteral("placard \"%1\" has no artwork %1.pdf").arg(placard));
        }
    }

    void checkPages()
    {
        QStringList required;
        for (const QString& p : packInfoPages() + packOtherPages() + specialProvisionPages())
            required << p + QStringLiteral(".html");
        for (const QString& rel : required)
            requireFile(rel, QStringLiteral("a page the app opens by name"));
        for (const char* css : { "base.css", "dark.css", "emailbase.css" })
            requireFile(QString::fromLatin1(css), QStringLiteral("a style sheet the pages use"));

        for (const QString& rel : m_dir.entryList({ QStringLiteral("*.html") }, QDir::Files, QDir::Name)) {
            const auto text = readText(rel);
            if (!text)
                continue;
            if (rel == QLatin1String("sendEmailBody.html")) {
                for (const char* slot : { "{ideviceName}", "{description}" })
                    if (!text->contains(QLatin1String(slot)))
                        add(rel, 0, QStringLiteral("no %1 placeholder").arg(QLatin1String(slot)));
                continue;
            }
            if (!text->contains(kBodyTag))
                add(rel, 0, QStringLiteral("no body tag of the form <%1; the text size cannot apply").arg(kBodyTag));
            if (m_guidePages.contains(rel)) {
                if (!text->contains(QLatin1String("base.css")))
                    add(rel, 0, QStringLiteral("does not link base.css; the dark style cannot replace it"));
                if (!text->contains(QLatin1String("##STYLE##")))
                    add(rel, 0, QStringLiteral("no ##STYLE## slot; a mailed copy would lose its styles"));
            }
        }
    }

    void checkArtwork()
    {
        for (const QString& key : packPlacardKeys())
            requireFile(key + QStringLiteral(".pdf"), QStringLiteral("placard %1").arg(key));
        for (const QString& name : packGhsPictograms())
            requireFile(name + QStringLiteral(".pdf"), QStringLiteral("GHS pictogram"));
        for (const QString& name : packSortImages())
            requireFile(name, QStringLiteral("sort button"));
        for (const QString& name : packOtherArtwork())
            requireFile(name, QStringLiteral("artwork the screens show"));
    }

    void checkSchema(const ReadOnlyDb& db, const DatabaseSchema& schema)
    {
        for (const TableSchema& t : schema.tables) {
            const auto cols = db.rows(QStringLiteral("select name from pragma_table_info('%1') order by cid").arg(t.name));
            if (!cols || cols->isEmpty()) {
                add(schema.fileName, 0, QStringLiteral("table %1 is missing").arg(t.name));
                continue;
            }
            for (qsizetype i = 0; i < t.columns.size(); ++i) {
                const QString actual = i < cols->size() ? cols->at(i).at(0) : QString();
                if (actual != t.columns.at(i)) {
                    add(schema.fileName, 0, QStringLiteral("table %1: column %2 is \"%3\", expected \"%4\" (lookups read columns by position)")
                                                .arg(t.name).arg(i).arg(actual, t.columns.at(i)));
                    break;
                }
            }
        }
    }

    // Rows of `table` where one of `columns` is NULL (optionally only when `when` holds).
    void checkNotNull(const ReadOnlyDb& db, const QString& file, const QString& table, const QStringList& columns,
                      const QString& when = QString())
    {
        QStringList tests;
        for (const QString& c : columns)
            tests << c + QStringLiteral(" is null");
        QString sql = QStringLiteral("select rowid, %1 from %2 where (%3)").arg(columns.join(QLatin1Char(',')), table, tests.join(QStringLiteral(" or ")));
        if (!when.isEmpty())
            sql += QStringLiteral(" and (%1)").arg(when);
        const auto rows = db.rows(sql + QStringLiteral(" order by rowid"));
        if (!rows)
            return;  // a missing table or column is reported by the schema check
        Capped report{ this, file };
        for (const QStringList& r : *rows) {
            QStringList nulls;
            for (qsizetype c = 0; c < columns.size(); ++c)
                if (r.at(c + 1).isNull())
                    nulls << columns.at(c);
            report.add(r.at(0).toInt(), QStringLiteral("%1 row: %2 NULL, which the app shows as empty").arg(table, nulls.join(QStringLiteral(", "))));
        }
    }

    void checkDatabases()
    {
        std::unique_ptr<ReadOnlyDb> npg, cfr, inc;
        for (const DatabaseSchema& schema : packDatabases()) {
            if (!exists(schema.fileName)) {
                add(schema.fileName, 0, QStringLiteral("missing; the app aborts at start-up"));
                continue;
            }
            auto db = std::make_unique<ReadOnlyDb>(m_dir.filePath(schema.fileName));
            if (!db->isOpen()) {
                add(schema.fileName, 0, QStringLiteral("cannot be opened (%1); the app aborts at start-up").arg(db->error()));
                continue;
            }
            checkSchema(*db, schema);
            checkProvenance(*db, schema);
            (schema.fileName == QLatin1String("npg.db") ? npg : schema.fileName == QLatin1String("cfr49.db") ? cfr : inc) = std::move(db);
        }
        if (inc)
            checkNotNull(*inc, QStringLiteral("hazmat_incidents.dat"), QStringLiteral("incidents"), packDatabase(QStringLiteral("hazmat_incidents.dat"))->tables.front().columns.mid(1));
        if (!npg)
            return;
        const QString file = QStringLiteral("npg.db");
        for (const TableSchema& t : packDatabase(file)->tables) {
            if (t.name == QLatin1String("iso_distances")) {
                // Small-spill figures always; large-spill ones whenever the large isolation is given.
                checkNotNull(*npg, file, t.name, t.columns.mid(2, 6));
                checkNotNull(*npg, file, t.name, t.columns.mid(9, 5), t.columns.at(8) + QStringLiteral(" <> ''"));
            } else {
                checkNotNull(*npg, file, t.name, t.columns);
            }
        }
        checkDistances(*npg);
        checkPlacardNames(*npg);
        checkPictograms(*npg);
        checkProvisionAnchors(*npg);
        checkSections(*npg, cfr.get());
        checkPlacardKeys(*npg);
    }

    // A distance as printed: a number, optionally followed by "+".
    static std::optional<double> distance(const QString& text)
    {
        static const QRegularExpression figure(QStringLiteral("^(\\d+(?:\\.\\d+)?)\\+?$"));
        const auto m = figure.match(text);
        return m.hasMatch() ? std::optional<double>(m.captured(1).toDouble()) : std::nullopt;
    }

    // The guidebook rounds metres to its steps (30, 60, 100, 150, ... m) and
    // feet to theirs, kilometres and miles to a tenth, each from its own
    // unrounded figure; its printed pairs differ by up to 7 %. A pair further
    // apart than that holds a wrong figure.
    static bool unitsAgree(double metric, double imperial, bool lengths)
    {
        if (lengths)
            return std::abs(imperial * 0.3048 - metric) <= 0.12 * metric + 1;
        return std::abs(imperial * 1.609344 - metric) <= 0.16 + 0.07 * metric;
    }

    // Metric and imperial figures side by side from `first`; `count` pairs.
    void checkFigures(Capped& report, int row, const QString& what, const QStringList& r, int first, int count)
    {
        for (int p = 0; p < count; ++p) {
            const QString metricText = r.at(first + 2 * p), imperialText = r.at(first + 2 * p + 1);
            if (metricText.isNull() || imperialText.isNull())
                continue;  // reported as NULL
            const auto metric = distance(metricText), imperial = distance(imperialText);
            if (!metric || !imperial) {
                report.add(row, QStringLiteral("%1: distance \"%2\" is not a number (optionally followed by \"+\")")
                                    .arg(what, metric ? imperialText : metricText));
                continue;
            }
            if (!unitsAgree(*metric, *imperial, p == 0))
                report.add(row, QStringLiteral("%1: %2 %3 and %4 %5 disagree").arg(what, metricText, QLatin1String(p == 0 ? "m" : "km"), imperialText, QLatin1String(p == 0 ? "ft" : "mi")));
        }
    }

    void checkDistances(const ReadOnlyDb& npg)
    {
        Capped report{ this, QStringLiteral("npg.db") };
        QSet<QString> materials;
        QFile file(m_dir.filePath(QStringLiteral("chemicals_2024.csv")));  // its absence is reported already
        if (file.open(QIODevice::ReadOnly))
            for (const QString& l : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')))
                materials.insert(l.section(QLatin1Char('^'), 3, 3));
        const auto iso = npg.rows(QStringLiteral("select rowid, * from iso_distances order by rowid"));
        for (const QStringList& r : iso.value_or(QList<QStringList>())) {
            if (r.size() < 15)
                break;
            const int row = r.at(0).toInt();
            const QString what = QStringLiteral("iso_distances row (UN %1)").arg(r.at(1));
            if (!materials.contains(r.at(1)))
                report.add(row, QStringLiteral("%1: no material with this UN number in chemicals_2024.csv").arg(what));
            checkFigures(report, row, what, r, 3, 3);
            if (!r.at(9).isEmpty())
                checkFigures(report, row, what, r, 9, 3);
        }
        QHash<QString, QStringList> containers;
        const auto large = npg.rows(QStringLiteral("select rowid, * from large_spill_distances order by rowid"));
        for (const QStringList& r : large.value_or(QList<QStringList>())) {
            if (r.size() < 17)
                break;
            const QString what = QStringLiteral("large_spill_distances row (UN %1, %2)").arg(r.at(1), r.at(2));
            checkFigures(report, r.at(0).toInt(), what, r, 3, 7);
            containers[r.at(1)] << r.mid(3, 14).join(QLatin1Char(','));
        }
        // The app's built-in container rows stand in for packs without the
        // table; they must say what the guidebook says.
        for (auto it = containers.cbegin(); it != containers.cend(); ++it) {
            const OrderedMap<QString> builtIn = QORModel::builtInLargeSpillIsoDistances(it.key());
            QStringList rows;
            for (const QString& name : builtIn.keys())
                rows << builtIn.value(name);
            if (!sameFigures(rows, *it))
                report.add(0, QStringLiteral("large_spill_distances (UN %1): the built-in container rows differ from the pack's").arg(it.key()));
        }
    }

    // Rows of figures equal as numbers ("11+" and "11.0+" are the same).
    static bool sameFigures(const QStringList& a, const QStringList& b)
    {
        if (a.size() != b.size())
            return false;
        for (qsizetype i = 0; i < a.size(); ++i) {
            const QStringList x = a.at(i).split(QLatin1Char(',')), y = b.at(i).split(QLatin1Char(','));
            if (x.size() != y.size())
                return false;
            for (qsizetype k = 0; k < x.size(); ++k)
                if (distance(x.at(k)) != distance(y.at(k)) || x.at(k).endsWith(QLatin1Char('+')) != y.at(k).endsWith(QLatin1Char('+')))
                    return false;
        }
        return true;
    }

    // The rows of every table come only from the sources pack.json declares
    // for it: none declared means none may be there, each source is named
    // with the SHA-256 of its files, and the row count is the one the build
    // recorded from those sources.
    void checkProvenance(const ReadOnlyDb& db, const DatabaseSchema& schema)
    {
        if (!m_manifest)
            return;
        const QString name = QString::fromLatin1(PackManifest::kFileName);
        if (m_manifest->tables.isEmpty()) {
            if (schema.fileName == packDatabases().front().fileName)
                add(name, 0, QStringLiteral("declares no sources per table; where the values come from cannot be checked"));
            return;
        }
        for (const TableSchema& t : schema.tables) {
            const auto declared = m_manifest->tables.constFind(t.name);
            const auto counted = db.rows(QStringLiteral("select count(*) from %1").arg(t.name));
            const qint64 rows = counted && !counted->isEmpty() ? counted->first().value(0).toLongLong() : 0;
            if (declared == m_manifest->tables.constEnd()) {
                add(schema.fileName, 0, QStringLiteral("table %1 is not listed in pack.json").arg(t.name));
                continue;
            }
            if (declared->sources.isEmpty() && rows > 0)
                add(schema.fileName, 0, QStringLiteral("table %1 has %2 rows, but pack.json declares no source for it").arg(t.name).arg(rows));
            else if (declared->rows >= 0 && declared->rows != rows)
                add(schema.fileName, 0, QStringLiteral("table %1 has %2 rows; its sources gave %3").arg(t.name).arg(rows).arg(declared->rows));
            for (const QString& id : declared->sources) {
                const PackSource* source = m_manifest->source(id);
                if (source->sample && rows > 0 && !m_manifest->sample)
                    add(name, 0, QStringLiteral("says \"sample\": false, but table %1 holds sample content (%2)").arg(t.name, id));
            }
        }
    }

    void checkPlacardNames(const ReadOnlyDb& npg)
    {
        Capped report{ this, QStringLiteral("npg.db") };
        for (const QStringList& r : npg.rows(QStringLiteral("select min(rowid), name from dot_placards group by name")).value_or(QList<QStringList>()))
            if (!r.at(1).isEmpty() && !exists(r.at(1) + QStringLiteral(".pdf")))
                report.add(r.at(0).toInt(), QStringLiteral("dot_placards row: placard \"%1\" has no artwork %1.pdf").arg(r.at(1)));
    }

    void checkPictograms(const ReadOnlyDb& npg)
    {
        Capped report{ this, QStringLiteral("npg.db") };
        for (const QStringList& r : npg.rows(QStringLiteral("select rowid, pictograms from ghs")).value_or(QList<QStringList>())) {
            for (const QString& part : r.at(1).split(QLatin1Char(','))) {
                const QString name = part.trimmed().toLower();
                if (name.isEmpty() || name == QLatin1String("dgr") || name == QLatin1String("wng"))
                    continue;
                if (!exists(name + QStringLiteral(".pdf")))
                    report.add(r.at(0).toInt(), QStringLiteral("ghs row: pictogram \"%1\" has no artwork %2.pdf").arg(part.trimmed(), name));
            }
        }
    }

    QSet<QString> anchorsOf(const QString& page)
    {
        if (const auto it = m_anchors.constFind(page); it != m_anchors.constEnd())
            return *it;
        static const QRegularExpression anchor(QStringLiteral("\\b(?:id|name|class)\\s*=\\s*[\"']([^\"']+)[\"']"));
        QSet<QString> found;
        QFile file(m_dir.filePath(page + QStringLiteral(".html")));
        if (file.open(QIODevice::ReadOnly))
            for (auto it = anchor.globalMatch(QString::fromUtf8(file.readAll())); it.hasNext();)
                found.insert(it.next().captured(1));
        m_anchors.insert(page, found);
        return found;
    }

    void checkProvisionAnchors(const ReadOnlyDb& npg)
    {
        Capped report{ this, QStringLiteral("npg.db") };
        const auto rows = npg.rows(QStringLiteral("select rowid, %1, special_provisions from hmt").arg(packUnIdColumnText(QStringLiteral("un_id"))));
        for (const QStringList& r : rows.value_or(QList<QStringList>())) {
            for (const QString& code : r.at(2).split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
                const QString page = specialProvisionPage(code);
                // A pack without § 172.102 says so on every provision page.
                if (!anchorsOf(page).contains(code) && !anchorsOf(page).contains(kNotInPack))
                    report.add(r.at(0).toInt(), QStringLiteral("hmt row (UN %1): special provision \"%2\" has no anchor in %3.html")
                                                    .arg(r.at(1), code, page));
            }
        }
    }

    void checkSections(const ReadOnlyDb& npg, const ReadOnlyDb* cfr)
    {
        QSet<QString> titled, texts;
        for (const QStringList& r : npg.rows(QStringLiteral("select section_id from hmt_sections")).value_or(QList<QStringList>()))
            titled.insert(r.at(0));
        if (cfr)
            for (const QStringList& r : cfr->rows(QStringLiteral("select distinct section_id from cfr_text")).value_or(QList<QStringList>()))
                texts.insert(r.at(0));
        // A part 173 section, maybe with a paragraph: 202, 302c, 63(a), 247(h)(4).
        static const QRegularExpression sectionNumber(QStringLiteral("^\\d+[a-z]?(?:\\([a-z0-9]+\\))*$"));
        Capped report{ this, QStringLiteral("npg.db") };
        const auto rows = npg.rows(QStringLiteral("select rowid, %1, exceptions, non_bulk, bulk from hmt").arg(packUnIdColumnText(QStringLiteral("un_id"))));
        for (const QStringList& r : rows.value_or(QList<QStringList>())) {
            for (int column = 2; column <= 4; ++column) {
                const QString section = QString(r.at(column)).remove(QLatin1Char(' '));
                if (section.isEmpty() || section == QLatin1String("None"))
                    continue;
                for (const QString& piece : section.split(QLatin1Char(','))) {
                    if (!sectionNumber.match(piece).hasMatch()) {
                        report.add(r.at(0).toInt(), QStringLiteral("hmt row (UN %1): section reference \"%2\" is not a section number").arg(r.at(1), piece));
                        continue;
                    }
                    if (column == 2)
                        continue;  // exceptions are not linked to a page
                    // Titles and texts are checked once the pack carries some:
                    // without them the page says the text is not in the pack.
                    if (!titled.isEmpty() && !titled.contains(piece))
                        report.add(r.at(0).toInt(), QStringLiteral("hmt row (UN %1): section %2 has no title in hmt_sections").arg(r.at(1), piece));
                    if (!texts.isEmpty() && !texts.contains(QStringLiteral("173.") + piece))
                        report.add(r.at(0).toInt(), QStringLiteral("hmt row (UN %1): section 173.%2 has no text in cfr49.db").arg(r.at(1), piece));
                }
            }
        }
    }

    // Every material the shipping table lists shows a placard: its own key
    // in the materials file, or the one dot_placards gives its ID.
    void checkPlacardKeys(const ReadOnlyDb& npg)
    {
        QSet<QString> shipped, placarded;
        for (const QStringList& r : npg.rows(QStringLiteral("select distinct un_id from hmt")).value_or(QList<QStringList>()))
            shipped.insert(r.at(0));
        for (const QStringList& r : npg.rows(QStringLiteral("select un_number from dot_placards where name <> ''")).value_or(QList<QStringList>()))
            placarded.insert(r.at(0));
        const QString rel = QStringLiteral("chemicals_2024.csv");
        const auto text = readText(rel);
        if (!text || shipped.isEmpty())
            return;
        Capped report{ this, rel };
        int line = 0;
        for (const QString& l : text->split(QLatin1Char('\n'))) {
            ++line;
            const QStringList f = l.split(QLatin1Char('^'));
            if (f.size() < 7)
                continue;
            const QString unId = f.at(3);
            if (f.at(1).trimmed().isEmpty() && shipped.contains(unId) && !placarded.contains(unId))
                report.add(line, QStringLiteral("UN %1 has shipping rows but no placard key (field 2 empty, no dot_placards row)").arg(unId));
        }
    }

    QDir m_dir;
    std::optional<PackManifest> m_manifest;
    QList<Violation> m_violations;
    QSet<QString> m_guidePages;
    QHash<QString, QSet<QString>> m_anchors;
};

} // namespace

QList<Violation> validatePack(const QString& dir)
{
    return Validator(dir).run();
}

} // namespace qor::cli
