#include "PackBuilder.h"

#include "cli/IncidentImport.h"
#include "import/ErgImport.h"
#include "import/ErgGuides.h"
#include "import/PdfText.h"
#include "model/PackManifest.h"
#include "model/PackSchema.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>
#include <cstring>
#include <sqlite3.h>

namespace qor::packbuild {

namespace {
// The incident summary always speaks of the last twelve months.
constexpr int kIncidentMonths = 12;
// The information page that explains the guides.
constexpr char kGuideIntroductionPage[] = "howto";
// The information page that explains the isolation tables.
constexpr char kIsolationPage[] = "Isolation_Distances";

QStringList filesIn(const QString& dir, const QString& suffix)
{
    QStringList names = QDir(dir).entryList({ QStringLiteral("*") + suffix }, QDir::Files, QDir::Name);
    return names;
}

} // namespace

PackBuilder::PackBuilder(const QString& sourceDir, const QString& outputDir)
    : m_source(QDir(sourceDir).absolutePath()), m_output(QDir(outputDir).absolutePath())
{
}

bool PackBuilder::run()
{
    if (!QFileInfo(m_source).isDir())
        return fail(m_source, QStringLiteral("no such source folder"));
    QDir output(m_output);
    // Recreated every time so removed sources do not linger in the pack.
    if (output.exists() && !output.removeRecursively())
        return fail(m_output, QStringLiteral("cannot clear the output folder"));
    if (!QDir().mkpath(m_output))
        return fail(m_output, QStringLiteral("cannot create the output folder"));
    return readPackInfo() && hashSources() && readOfficialSources() && copyPlainFiles() && importGuidebook() && buildDatabases()
        && checkProvenance() && buildGuidePages() && buildInfoPages()
        && buildProvisionPages() && buildArtwork() && writeManifest();
}

bool PackBuilder::fail(const QString& where, const QString& why)
{
    m_error = QStringLiteral("%1: %2").arg(QDir(m_source).relativeFilePath(where), why);
    return false;
}

QString PackBuilder::src(const QString& rel) const
{
    return m_source + QLatin1Char('/') + rel;
}

QString PackBuilder::out(const QString& rel) const
{
    return m_output + QLatin1Char('/') + rel;
}

bool PackBuilder::readText(const QString& path, QString* text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(path, file.errorString());
    *text = QString::fromUtf8(file.readAll());
    return true;
}

bool PackBuilder::readList(const QString& path, QList<ListLine>* lines)
{
    QString text;
    if (!readText(path, &text))
        return false;
    int lineNumber = 0;
    for (const QString& raw : text.split(QLatin1Char('\n'))) {
        ++lineNumber;
        const QString line = raw.trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            lines->append({ path + QLatin1Char(':') + QString::number(lineNumber), line });
    }
    return true;
}

bool PackBuilder::writeBytes(const QString& rel, const QByteArray& bytes)
{
    QFile file(out(rel));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        return fail(out(rel), file.errorString());
    return true;
}

bool PackBuilder::readPackInfo()
{
    const QString path = src(QStringLiteral("src/pack-info.json"));
    QString text;
    if (!readText(path, &text))
        return false;
    QJsonParseError pe;
    const QJsonObject o = QJsonDocument::fromJson(text.toUtf8(), &pe).object();
    if (pe.error != QJsonParseError::NoError)
        return fail(path, pe.errorString());
    m_edition = o.value(QStringLiteral("edition")).toString();
    m_buildDate = o.value(QStringLiteral("buildDate")).toString();
    // A pack may call itself sample; it can never call itself official, that
    // follows from its tables' declared sources.
    m_declaredSample = o.value(QStringLiteral("sample")).toBool(false);
    if (m_edition.isEmpty() || !QDate::fromString(m_buildDate, Qt::ISODate).isValid())
        return fail(path, QStringLiteral("needs an \"edition\" and a \"buildDate\" (yyyy-mm-dd)"));
    QString why;
    if (!m_manifest.readProvenance(o, &why))
        return fail(path, why);
    for (auto it = m_manifest.tables.cbegin(); it != m_manifest.tables.cend(); ++it)
        if (!packTextContents().contains(it.key()) && !packTableDatabase(it.key()))
            return fail(path, QStringLiteral("\"%1\" is neither a table nor a content of the pack").arg(it.key()));
    // The notice is known once the tables are built (checkProvenance).
    // {{sources}}: the documents the pack is read from, as declared.
    QString sources;
    for (const PackSource& s : std::as_const(m_manifest.sourceList))
        if (!s.sample && !s.own && !s.files.isEmpty())
            sources += QStringLiteral("<li>%1</li>\n").arg(s.displayLine().toHtmlEscaped());
    m_packValues = { { QStringLiteral("edition"), m_edition.toHtmlEscaped() },
                     { QStringLiteral("buildDate"), m_buildDate },
                     { QStringLiteral("notice"), QString() },
                     { QStringLiteral("sources"), sources.isEmpty() ? QString() : QStringLiteral("<ul class=\"sources\">\n%1</ul>").arg(sources) } };
    return readText(src(QStringLiteral("src/page.html")), &m_pageTemplate);
}

bool PackBuilder::readOfficialSources()
{
    // Official values reach the pack only through the importers.
    const QString cfrDir = src(QStringLiteral("official/cfr49"));
    for (const QString& name : filesIn(cfrDir, QStringLiteral(".xml"))) {
        QString why;
        const auto section = import::readEcfrSection(cfrDir + QLatin1Char('/') + name, &why);
        if (!section)
            return fail(cfrDir + QLatin1Char('/') + name, why.section(QStringLiteral(": "), 1));
        m_shipping.add(*section);
    }
    m_officialTables = m_shipping.tables();
    const QString npgDir = src(QStringLiteral("official/niosh-npg"));
    for (const QString& name : filesIn(npgDir, QStringLiteral(".tar.xz"))) {
        QString why;
        const auto guide = import::readNpg(npgDir + QLatin1Char('/') + name, &why);
        if (!guide)
            return fail(npgDir + QLatin1Char('/') + name, why);
        const import::ImportTables t = guide->tables();
        for (auto it = t.cbegin(); it != t.cend(); ++it)
            m_officialTables[it.key()] += it.value();
    }
    return true;
}

bool PackBuilder::hashSources()
{
    // Official documents are checked against the sums published with them, so
    // a changed or substituted file stops the build instead of reaching the pack.
    const QString sumsPath = src(QStringLiteral("official/SHA256SUMS"));
    QHash<QString, QString> published;
    QString sums;
    if (QFileInfo::exists(sumsPath) && !readText(sumsPath, &sums))
        return false;
    for (const QString& line : sums.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList parts = line.simplified().split(QLatin1Char(' '));
        if (parts.size() == 2)
            published.insert(QStringLiteral("official/") + parts.at(1), parts.at(0).toLower());
    }
    const QString infoPath = src(QStringLiteral("src/pack-info.json"));
    for (PackSource& s : m_manifest.sourceList) {
        QMap<QString, QString> files;
        for (auto it = s.files.cbegin(); it != s.files.cend(); ++it) {
            // "dir/*.csv" names every matching file of that folder.
            QStringList paths;
            const QFileInfo pattern(it.key());
            if (pattern.fileName().contains(QLatin1Char('*'))) {
                const QString dir = pattern.path();
                for (const QString& name : QDir(src(dir)).entryList({ pattern.fileName() }, QDir::Files, QDir::Name))
                    paths << dir + QLatin1Char('/') + name;
            } else {
                paths << it.key();
            }
            if (paths.isEmpty())
                return fail(infoPath, QStringLiteral("source \"%1\": no file matches %2").arg(s.id, it.key()));
            for (const QString& rel : std::as_const(paths)) {
                if (!QFileInfo(src(rel)).isFile())
                    return fail(infoPath, QStringLiteral("source \"%1\": %2 does not exist").arg(s.id, rel));
                QString why;
                const QString sum = PackManifest::sha256(src(rel), &why);
                if (sum.isEmpty())
                    return fail(src(rel), why);
                if (rel.startsWith(QLatin1String("official/"))) {
                    const QString expected = published.value(rel);
                    if (expected.isEmpty())
                        return fail(sumsPath, QStringLiteral("no SHA-256 listed for %1").arg(rel.mid(9)));
                    if (expected != sum)
                        return fail(src(rel), QStringLiteral("SHA-256 %1 differs from %2 in official/SHA256SUMS").arg(sum, expected));
                }
                files.insert(rel, sum);
            }
        }
        s.files = files;
    }
    return true;
}

bool PackBuilder::copyPlainFiles()
{
    // Everything outside src/ is a resource as it stands.
    QDirIterator it(m_source, QDir::Files, QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext())
        files << QDir(m_source).relativeFilePath(it.next());
    files.sort();
    for (const QString& rel : std::as_const(files)) {
        // official/ holds the documents the importers read, not pack files.
        if (rel.startsWith(QLatin1String("src/")) || rel.startsWith(QLatin1String("official/"))
            || rel == QLatin1String("README.md"))
            continue;
        QDir().mkpath(QFileInfo(out(rel)).path());
        if (!QFile::copy(src(rel), out(rel)))
            return fail(src(rel), QStringLiteral("cannot copy into the pack"));
    }
    return true;
}

bool PackBuilder::importGuidebook()
{
    // The guidebook's index and Tables 1 to 3 become the materials file and
    // the distance tables. Files holding other sections (the guide pages)
    // are read elsewhere.
    const QString dir = src(QStringLiteral("official/erg2024"));
    QStringList files;
    for (const QString& name : filesIn(dir, QStringLiteral(".pdf")))
        files << dir + QLatin1Char('/') + name;
    QString why;
    const auto tables = import::ErgImport::read(files, &why);
    if (!tables)
        return fail(dir, why);
    const QStringList mismatches = import::ErgImport::highlightMismatches(*tables);
    if (!mismatches.isEmpty())
        return fail(dir, QStringLiteral("the index highlight and Table 1 disagree: %1").arg(mismatches.mid(0, 5).join(QStringLiteral("; "))));
    m_isoDistancesSql = import::isoDistancesSql(*tables);
    m_largeSpillSql = import::largeSpillSql(*tables);
    // The placard key follows the shipping table's class for the ID.
    const QString materials = import::materialsLines(*tables, &m_shipping).join(QLatin1Char('\n')) + QLatin1Char('\n');
    return writeBytes(QStringLiteral("chemicals_2024.csv"), materials.toUtf8());
}

bool PackBuilder::runSqlFile(sqlite3* db, const QString& path)
{
    QString text;
    if (!readText(path, &text))
        return false;
    const QByteArray sql = text.toUtf8();
    const char* pos = sql.constData();
    const char* end = pos + sql.size();
    while (pos < end) {
        sqlite3_stmt* stmt = nullptr;
        const char* tail = nullptr;
        const int line = 1 + int(std::count(sql.constData(), pos + std::strspn(pos, " \t\r\n"), '\n'));
        if (sqlite3_prepare_v2(db, pos, int(end - pos), &stmt, &tail) != SQLITE_OK)
            return fail(path + QLatin1Char(':') + QString::number(line), QString::fromUtf8(sqlite3_errmsg(db)));
        if (stmt) {
            const int rc = sqlite3_step(stmt);
            sqlite3_finalize(stmt);
            if (rc != SQLITE_DONE && rc != SQLITE_ROW)
                return fail(path + QLatin1Char(':') + QString::number(line), QString::fromUtf8(sqlite3_errmsg(db)));
        }
        pos = tail;
    }
    return true;
}

bool PackBuilder::buildDatabases()
{
    for (const DatabaseSchema& schema : packDatabases()) {
        const QString path = out(schema.fileName);
        sqlite3* db = nullptr;
        if (sqlite3_open(QFile::encodeName(path).constData(), &db) != SQLITE_OK) {
            sqlite3_close(db);
            return fail(path, QStringLiteral("cannot create"));
        }
        auto exec = [&](const QString& sql) {
            char* err = nullptr;
            const bool ok = sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err) == SQLITE_OK;
            if (!ok)
                fail(path, QString::fromUtf8(err ? err : "sql error"));
            sqlite3_free(err);
            return ok;
        };
        bool ok = exec(QStringLiteral("pragma journal_mode=off; begin"));
        for (const TableSchema& t : schema.tables)
            ok = ok && exec(t.createSql());
        ok = ok && exec(QStringLiteral("commit"));
        if (ok && schema.fileName == QLatin1String("hazmat_incidents.dat")) {
            QStringList reports;
            const QString dir = src(QStringLiteral("src/incidents"));
            for (const QString& name : filesIn(dir, QStringLiteral(".csv")))
                reports << dir + QLatin1Char('/') + name;
            QString why;
            const auto imported = incidents::readIncidentReports(reports, kIncidentMonths, &why);
            ok = imported ? incidents::insertIncidents(db, imported->incidents, &why) : false;
            if (!ok)
                fail(dir, why);
        }
        if (ok) {
            QString why;
            ok = import::writeImportTables(db, m_officialTables, &why);
            if (!ok)
                fail(path, why);
        }
        // Then the guidebook tables, then src/<database file name>/*.sql in name order.
        const QString sqlDir = src(QStringLiteral("src/") + schema.fileName);
        if (ok)
            ok = exec(QStringLiteral("begin"));
        if (ok && schema.fileName == QLatin1String("npg.db"))
            ok = exec(m_isoDistancesSql) && exec(m_largeSpillSql);
        for (const QString& name : filesIn(sqlDir, QStringLiteral(".sql")))
            ok = ok && runSqlFile(db, sqlDir + QLatin1Char('/') + name);
        ok = ok && exec(QStringLiteral("commit")) && exec(QStringLiteral("vacuum"));
        sqlite3_close(db);
        if (!ok)
            return false;
    }
    return true;
}

bool PackBuilder::fillTemplate(QString* text, const QHash<QString, QString>& values, const QString& where)
{
    static const QRegularExpression placeholder(QStringLiteral("\\{\\{([A-Za-z]+)\\}\\}"));
    QString result;
    qsizetype last = 0;
    for (auto it = placeholder.globalMatch(*text); it.hasNext();) {
        const auto m = it.next();
        const auto value = values.constFind(m.captured(1));
        if (value == values.constEnd())
            return fail(where, QStringLiteral("unknown placeholder {{%1}}").arg(m.captured(1)));
        result += QStringView(*text).mid(last, m.capturedStart() - last);
        result += *value;
        last = m.capturedEnd();
    }
    result += QStringView(*text).mid(last);
    *text = result;
    return true;
}

bool PackBuilder::writePage(const QString& name, const QString& title, const QString& body, const QString& where)
{
    // Pack values go into the body first; the body then goes into the frame
    // verbatim, so a body cannot fill in the frame's own placeholders.
    QString filledBody = body;
    if (!fillTemplate(&filledBody, m_packValues, where))
        return false;
    QHash<QString, QString> values = m_packValues;
    values.insert(QStringLiteral("title"), title.toHtmlEscaped());
    const QString framePath = src(QStringLiteral("src/page.html"));
    const qsizetype at = m_pageTemplate.indexOf(QLatin1String("{{body}}"));
    if (at < 0)
        return fail(framePath, QStringLiteral("no {{body}} placeholder"));
    QString head = m_pageTemplate.left(at), tail = m_pageTemplate.mid(at + 8);
    if (!fillTemplate(&head, values, framePath) || !fillTemplate(&tail, values, framePath))
        return false;
    return writeBytes(name + QStringLiteral(".html"), (head + filledBody + tail).toUtf8());
}

bool PackBuilder::buildGuidePages()
{
    // The guides and the page that explains them come from the guidebook's
    // orange section as printed; nothing of their wording lives in the sources.
    const QString pdfPath = src(QStringLiteral("official/erg2024/ERG_Guide_Section.pdf"));
    import::PdfText pdf;
    import::ErgGuides guides;
    QString why;
    if (!pdf.open(pdfPath, &why) || !import::readGuides(pdf, &guides, &why))
        return fail(pdfPath, why.section(QStringLiteral(": "), 1));
    const auto title = std::find_if(guides.introduction.begin(), guides.introduction.end(),
                                    [](const import::GuideBlock& b) { return b.kind == import::GuideBlock::Kind::Title; });
    if (title == guides.introduction.end())
        return fail(pdfPath, QStringLiteral("no \"HOW TO USE THE ORANGE GUIDES\" pages before the guides"));
    // Blank guides ("Intentionally left blank") get neither a line nor a page:
    // the guide list must not offer a page with nothing on it.
    if (!writeBytes(QStringLiteral("guides.csv"), import::guidesCsv(guides).toUtf8()))
        return false;
    for (const import::ErgGuide& g : guides.guides)
        if (!g.blank && !writePage(g.number, QStringLiteral("Guide %1").arg(g.number), import::guideBodyHtml(g), pdfPath))
            return false;
    return writePage(QString::fromLatin1(kGuideIntroductionPage), title->text,
                     import::introductionBodyHtml(guides.introduction) + sourceLineHtml(QStringLiteral("guides")), pdfPath);
}

QString PackBuilder::sourceLineHtml(const QString& table) const
{
    // Pages read from a document name it, as the help pages do.
    const QString citation = m_manifest.tables.value(table).citation;
    return citation.isEmpty() ? QString() : QStringLiteral("<p class=\"source\">Source: %1</p>\n").arg(citation.toHtmlEscaped());
}

bool PackBuilder::buildIsolationPage()
{
    // The page the isolation tables explain themselves with is the
    // guidebook's own introduction to Table 1, from the green section.
    const QString pdfPath = src(QStringLiteral("official/erg2024/TIH_Table.pdf"));
    import::PdfText pdf;
    std::vector<import::GuideBlock> blocks;
    QString why;
    if (!pdf.open(pdfPath, &why) || !import::readTableIntroduction(pdf, QStringLiteral("HOW TO USE TABLE 1"), QStringLiteral("ISOLATE"), &blocks, &why))
        return fail(pdfPath, why.section(QStringLiteral(": "), 1));
    const auto title = std::find_if(blocks.begin(), blocks.end(), [](const import::GuideBlock& b) { return b.kind == import::GuideBlock::Kind::Title; });
    if (title == blocks.end())
        return fail(pdfPath, QStringLiteral("the introduction to Table 1 has no heading"));
    return writePage(QString::fromLatin1(kIsolationPage), title->text, import::introductionBodyHtml(blocks) + sourceLineHtml(QStringLiteral("iso_distances")),
                     pdfPath);
}

bool PackBuilder::buildInfoPages()
{
    if (!buildIsolationPage())
        return false;
    static const QRegularExpression heading(QStringLiteral("<h1[^>]*>(.*?)</h1>"), QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
    const QString dir = src(QStringLiteral("src/pages"));
    for (const QString& name : filesIn(dir, QStringLiteral(".html"))) {
        QString body;
        if (!readText(dir + QLatin1Char('/') + name, &body))
            return false;
        const auto m = heading.match(body);
        if (!m.hasMatch())
            return fail(dir + QLatin1Char('/') + name, QStringLiteral("a page needs an <h1> title"));
        QString title = m.captured(1);
        title.remove(tags);
        if (!writePage(QFileInfo(name).completeBaseName(), title, body, dir + QLatin1Char('/') + name))
            return false;
    }
    // Chapters no source gives still open, and say so instead of guessing.
    QList<ListLine> list;
    if (!readList(src(QStringLiteral("src/unsourced-pages.txt")), &list))
        return false;
    for (const auto& [where, line] : std::as_const(list)) {
        const QString name = line.section(QLatin1Char('^'), 0, 0), title = line.section(QLatin1Char('^'), 1);
        if (name.isEmpty() || title.isEmpty())
            return fail(where, QStringLiteral("expected \"page^title\""));
        if (QFileInfo::exists(dir + QLatin1Char('/') + name + QStringLiteral(".html")))
            return fail(where, QStringLiteral("page \"%1\" has a source file in src/pages too").arg(name));
        if (!writePage(name, title, chapterNotInPackHtml(title), where))
            return false;
    }
    return true;
}

bool PackBuilder::buildProvisionPages()
{
    // Page headings of the provision groups.
    static const QHash<QString, QString> titles = {
        { QStringLiteral("A"), QStringLiteral("Aircraft Transportation") },
        { QStringLiteral("B"), QStringLiteral("Bulk Packaging") },
        { QStringLiteral("IB"), QStringLiteral("Intermediate Bulk Containers") },
        { QStringLiteral("IP"), QStringLiteral("Intermediate Bulk Containers") },
        { QStringLiteral("N"), QStringLiteral("Non-Bulk Packaging") },
        { QStringLiteral("W"), QStringLiteral("Water Transportation") },
        { QStringLiteral("TP"), QStringLiteral("IM and UN Specification Portable Tanks") },
        { QStringLiteral("T"), QStringLiteral("UN Portable Tanks") },
        { QStringLiteral("numeric"), QStringLiteral("Numeric Provisions") },
    };
    // From an imported § 172.102; without it every page says so.
    QHash<QString, QString> bodies;
    for (const import::SpecialProvision& p : m_shipping.provisions())
        bodies[specialProvisionPage(p.code)] += p.anchoredHtml();
    const QString missing = m_shipping.provisions().isEmpty()
        ? regulationNotInPackHtml(QStringLiteral("49 CFR § 172.102 (special provisions)"))
        : QStringLiteral("<p>No provisions of this group are in § 172.102 as imported.</p>\n");
    for (const QString& page : specialProvisionPages()) {
        const QString title = QStringLiteral("Special Provisions: %1").arg(titles.value(page));
        const QString body = QStringLiteral("<h1>%1</h1>\n%2").arg(title, bodies.value(page, missing));
        if (!writePage(page, title, body, src(QStringLiteral("official/cfr49"))))
            return false;
    }
    return true;
}

bool PackBuilder::checkProvenance()
{
    const QString infoPath = src(QStringLiteral("src/pack-info.json"));
    bool sample = m_declaredSample;
    for (const DatabaseSchema& schema : packDatabases()) {
        sqlite3* db = nullptr;
        if (sqlite3_open_v2(QFile::encodeName(out(schema.fileName)).constData(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
            sqlite3_close(db);
            return fail(out(schema.fileName), QStringLiteral("cannot open"));
        }
        for (const TableSchema& t : schema.tables) {
            const auto declared = m_manifest.tables.find(t.name);
            if (declared == m_manifest.tables.end()) {
                sqlite3_close(db);
                return fail(infoPath, QStringLiteral("table \"%1\" has no entry in \"tables\"").arg(t.name));
            }
            sqlite3_stmt* stmt = nullptr;
            qint64 rows = 0;
            if (sqlite3_prepare_v2(db, QStringLiteral("select count(*) from %1").arg(t.name).toUtf8().constData(), -1, &stmt, nullptr) == SQLITE_OK
                && sqlite3_step(stmt) == SQLITE_ROW)
                rows = sqlite3_column_int64(stmt, 0);
            sqlite3_finalize(stmt);
            declared->rows = rows;
            if (rows > 0 && declared->sources.isEmpty()) {
                sqlite3_close(db);
                return fail(infoPath, QStringLiteral("table \"%1\" has %2 rows but declares no source").arg(t.name).arg(rows));
            }
            sample = sample || (rows > 0 && m_manifest.tableIsSample(t.name));
        }
        sqlite3_close(db);
    }
    for (const QString& content : packTextContents())
        sample = sample || m_manifest.tableIsSample(content);
    m_manifest.sample = sample;
    m_packValues.insert(QStringLiteral("notice"), sample ? PackManifest::sampleNotice().toHtmlEscaped() : QString());
    return true;
}

bool PackBuilder::writeManifest()
{
    m_manifest.edition = m_edition;
    m_manifest.buildDate = m_buildDate;
    QString why;
    if (!m_manifest.writeWithChecksums(m_output, &why))
        return fail(out(QString::fromLatin1(PackManifest::kFileName)), why);
    return true;
}

} // namespace qor::packbuild
