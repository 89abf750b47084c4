#include "NpgImport.h"

#include "import/XmlText.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <archive.h>
#include <archive_entry.h>
#include <libxml/HTMLparser.h>
#include <memory>

namespace qor::import {

namespace {

const QRegularExpression& pageName()
{
    static const QRegularExpression re(QStringLiteral("(?:^|/)npgd(\\d{4})\\.html?$"), QRegularExpression::CaseInsensitiveOption);
    return re;
}

bool isTag(const xmlNode* n, const char* tag)
{
    return n->type == XML_ELEMENT_NODE && xml::name(n).compare(QLatin1String(tag), Qt::CaseInsensitive) == 0;
}

// Page labels (as printed, before any condition in brackets) -> column.
const QHash<QString, QString>& labelColumns()
{
    static const QHash<QString, QString> map = {
        { "synonyms & trade names", "synonyms" }, { "cas no.", "cas_no" }, { "rtecs no.", "rtec_no" },
        { "dot id & guide", "dot" }, { "formula", "formula" }, { "conversion", "conversion" }, { "idlh", "idlh" },
        { "niosh rel", "niosh_exp_limit" }, { "osha pel", "osha_exp_limit" }, { "measurement methods", "meas_meth" },
        { "physical description", "phys_desc" }, { "mw", "mw" }, { "bp", "bp" }, { "frz", "mlt_frz" },
        { "mlt", "mlt_frz" }, { "sol", "sol" }, { "vp", "vp" }, { "ip", "ip" }, { "rgasd", "rgasd" },
        { "sp.gr", "spgr" }, { "fl.p", "flp" }, { "uel", "uel" }, { "lel", "lel" }, { "mec", "mec" },
        { "incompatibilities & reactivities", "incomp" }, { "exposure routes", "exposure_routes" },
        { "symptoms", "symptoms" }, { "target organs", "target_organs" }, { "cancer site", "cancer_site" },
        { "personal protection/sanitation", "personal_protection" }, { "first aid", "first_aid" },
        { "respirator recommendations", "respirator" },
    };
    return map;
}

// Cells read line by line: their entries are separate instructions.
bool keepsLines(const QString& column)
{
    return column == QLatin1String("personal_protection") || column == QLatin1String("first_aid")
        || column == QLatin1String("respirator");
}

// "See: ..." and "(See procedures)" point at other web pages, not data.
QString withoutWebPointers(QString text)
{
    static const QRegularExpression seeTail(QStringLiteral("\\s*See: .*$"), QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression seeCodes(QStringLiteral("^\\(See [^)]*\\)\\s*"));
    text.remove(seeTail);
    text.remove(seeCodes);
    return text.trimmed();
}

void store(NpgChemical* c, const QString& label, const QString& value)
{
    // "VP(77°F):" -> label "vp", condition "77°F", written after the value.
    static const QRegularExpression labelled(QStringLiteral("^([^():]+?)\\s*(?:\\(([^)]*)\\))?\\s*:?$"));
    const auto m = labelled.match(label.trimmed());
    if (!m.hasMatch())
        return;
    const QString column = labelColumns().value(m.captured(1).trimmed().toLower());
    QString v = value.trimmed();
    if (v.startsWith(QLatin1Char(':')))
        v = v.mid(1).trimmed();
    if (column.isEmpty() || v.isEmpty())
        return;
    if (!m.captured(2).isEmpty())
        v += QStringLiteral(" (%1)").arg(m.captured(2));
    if (column == QLatin1String("idlh") || column == QLatin1String("meas_meth") || keepsLines(column))
        v = withoutWebPointers(v);
    if (column == QLatin1String("dot")) {
        static const QRegularExpression idAndGuide(QStringLiteral("(?:^|\\s)(\\d{4})\\s+\\d{3}P?\\b"));
        for (auto it = idAndGuide.globalMatch(v); it.hasNext();) {
            const QString id = it.next().captured(1);
            if (!c->unIds.contains(id))
                c->unIds << id;
        }
    }
    c->cells.insert(column, v);
}

// One table cell: either "<h6>Label</h6> value" pieces (two limits share a
// cell), or plain "Label: value" text for the property cells without one.
void readCell(const xmlNode* td, NpgChemical* c)
{
    QString label;
    std::vector<const xmlNode*> value;
    auto flush = [&] {
        if (label.isEmpty())
            return;
        const QString column = labelColumns().value(label.section(QLatin1Char('('), 0, 0).remove(QLatin1Char(':')).trimmed().toLower());
        // Pieces are read line by line, so <br> ends a line in every cell;
        // cells other than the instruction lists are then joined into one.
        QString text;
        for (const xmlNode* n : value)
            text += xml::rawText(n);
        QStringList lines;
        for (const QString& l : text.split(QLatin1Char('\n')))
            if (!l.simplified().isEmpty() && !l.contains(QLatin1String("Important additional information about")))
                lines << QString(l).replace(QChar(0x00a0), QLatin1Char(' ')).simplified();
        text = lines.join(keepsLines(column) ? QStringLiteral("\n") : QStringLiteral(" "));
        store(c, label, text);
    };
    bool sawHeading = false;
    for (const xmlNode* n = td->children; n; n = n->next) {
        if (isTag(n, "h6")) {
            flush();
            label = xml::text(n);
            value.clear();
            sawHeading = true;
        } else if (isTag(n, "h5")) {
            continue;  // "Exposure Limits" groups the two limits
        } else {
            value.push_back(n);
        }
    }
    if (sawHeading) {
        flush();
        return;
    }
    const QString text = xml::text(td);
    static const QRegularExpression plain(QStringLiteral("^([A-Za-z.]+(?:\\([^)]*\\))?):\\s*(.*)$"));
    const auto m = plain.match(text);
    if (m.hasMatch() && labelColumns().contains(m.captured(1).section(QLatin1Char('('), 0, 0).toLower()))
        store(c, m.captured(1), m.captured(2));
    else if (text.startsWith(QLatin1String("See also:")))
        // "See also: INTRODUCTION See ICSC CARD: 0126 See MEDICAL TESTS: 0044"
        c->cells.insert(QStringLiteral("icsc"),
                        text.contains(QLatin1String("ICSC CARD:"))
                            ? text.section(QLatin1String("ICSC CARD:"), 1).section(QLatin1String(" See "), 0, 0).trimmed()
                            : QString());
    else if (!text.isEmpty() && xml::attribute(td, "colspan") == QLatin1String("6") && !c->cells.contains(QStringLiteral("flammability")))
        c->cells.insert(QStringLiteral("flammability"), text);  // the unlabelled fire-class line
}

std::optional<NpgGuide> readEntries(const QList<QPair<QString, QByteArray>>& pages, QString* error)
{
    NpgGuide guide;
    QMap<QString, NpgChemical> byId;
    for (const auto& [name, bytes] : pages) {
        const QString id = pageName().match(name).captured(1);
        QString why;
        auto chem = parseNpgPage(bytes, id, &why);
        if (!why.isEmpty()) {
            *error = QStringLiteral("%1: %2").arg(name, why);
            return std::nullopt;
        }
        if (chem)
            byId.insert(id, *chem);
        else
            ++guide.emptyPages;
    }
    guide.chemicals = byId.values();
    return guide;
}

} // namespace

const QStringList& npgColumns()
{
    static const QStringList columns = { "id", "name", "cas_no", "formula", "rtec_no", "synonyms", "dot",
                                         "niosh_exp_limit", "osha_exp_limit", "idlh", "conversion", "phys_desc", "mw",
                                         "bp", "mlt_frz", "sol", "vp", "ip", "rgasd", "spgr", "flp", "uel", "lel",
                                         "mec", "flammability", "incomp", "meas_meth", "icsc", "exposure_routes",
                                         "symptoms", "target_organs", "cancer_site", "personal_protection",
                                         "first_aid", "respirator" };
    return columns;
}

QStringList NpgChemical::columns() const
{
    QStringList out;
    for (const QString& c : npgColumns())
        out << (c == QLatin1String("id") ? id : cells.value(c));
    return out;
}

std::optional<NpgChemical> parseNpgPage(const QByteArray& html, const QString& id, QString* error)
{
    error->clear();
    if (html.isEmpty())
        return std::nullopt;
    htmlDocPtr doc = htmlReadMemory(html.constData(), int(html.size()), nullptr, "UTF-8",
                                    HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET);
    if (!doc) {
        *error = QStringLiteral("not an HTML page");
        return std::nullopt;
    }
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> guard(doc, xmlFreeDoc);
    const xmlNode* table = nullptr;
    for (const xmlNode* t : xml::findAll(xmlDocGetRootElement(doc), "table"))
        if (xml::attribute(t, "class") == QLatin1String("chemtable")) {
            table = t;
            break;
        }
    const xmlNode* heading = table ? xml::find(table, "h1") : nullptr;
    if (!heading || xml::text(heading).isEmpty())
        return std::nullopt;  // the guide's placeholder pages
    NpgChemical c;
    c.id = id;
    c.cells.insert(QStringLiteral("name"), xml::text(heading));
    for (const xmlNode* td : xml::findAll(table, "td"))
        if (!xml::find(td, "h1"))
            readCell(td, &c);
    return c;
}

ImportTables NpgGuide::tables() const
{
    ImportTables t;
    QList<QStringList>& guides = t[QStringLiteral("npg_guides")];
    QList<QStringList>& ids = t[QStringLiteral("unid_npgid")];
    for (const NpgChemical& c : chemicals) {
        guides << c.columns();
        for (const QString& un : c.unIds)
            ids << QStringList{ un, c.id };
    }
    return t;
}

std::optional<NpgGuide> readNpg(const QString& path, QString* error)
{
    QList<QPair<QString, QByteArray>> pages;
    if (QFileInfo(path).isDir()) {
        QDirIterator it(path, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            if (!pageName().match(file).hasMatch())
                continue;
            QFile f(file);
            if (!f.open(QIODevice::ReadOnly)) {
                *error = QStringLiteral("%1: %2").arg(file, f.errorString());
                return std::nullopt;
            }
            pages.append({ file, f.readAll() });
        }
    } else {
        std::unique_ptr<archive, int (*)(archive*)> a(archive_read_new(), archive_read_free);
        archive_read_support_filter_all(a.get());
        archive_read_support_format_all(a.get());
        if (archive_read_open_filename(a.get(), QFile::encodeName(path).constData(), 1 << 16) != ARCHIVE_OK) {
            *error = QStringLiteral("%1: %2").arg(path, QString::fromUtf8(archive_error_string(a.get())));
            return std::nullopt;
        }
        archive_entry* entry = nullptr;
        int rc = ARCHIVE_OK;
        while ((rc = archive_read_next_header(a.get(), &entry)) == ARCHIVE_OK) {
            const QString name = QString::fromUtf8(archive_entry_pathname(entry));
            if (!pageName().match(name).hasMatch())
                continue;
            QByteArray bytes;
            char buffer[1 << 15];
            la_ssize_t n = 0;
            while ((n = archive_read_data(a.get(), buffer, sizeof buffer)) > 0)
                bytes.append(buffer, qsizetype(n));
            if (n < 0) {
                *error = QStringLiteral("%1: %2: %3").arg(path, name, QString::fromUtf8(archive_error_string(a.get())));
                return std::nullopt;
            }
            pages.append({ path + QLatin1Char(':') + name, bytes });
        }
        if (rc != ARCHIVE_EOF) {
            *error = QStringLiteral("%1: %2").arg(path, QString::fromUtf8(archive_error_string(a.get())));
            return std::nullopt;
        }
    }
    if (pages.isEmpty()) {
        *error = QStringLiteral("%1: no pocket guide pages (npgdNNNN.html)").arg(path);
        return std::nullopt;
    }
    return readEntries(pages, error);
}

} // namespace qor::import
