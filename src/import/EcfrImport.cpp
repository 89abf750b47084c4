#include "EcfrImport.h"

#include "import/XmlText.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <functional>
#include <memory>
#include <libxml/parser.h>

namespace qor::import {

namespace {

using xml::attribute;
using xml::name;

bool isElement(const xmlNode* n, const char* tag)
{
    return n->type == XML_ELEMENT_NODE && name(n).compare(QLatin1String(tag), Qt::CaseInsensitive) == 0;
}

// Italic runs: <E T="03"> in the table, <I> in paragraphs.
bool isItalic(const xmlNode* n)
{
    return (isElement(n, "E") && attribute(n, "T") == QLatin1String("03")) || isElement(n, "I");
}

QStringList cellTexts(const xmlNode* tr, const char* cellTag)
{
    QStringList cells;
    for (const xmlNode* td : xml::children(tr, cellTag))
        cells << xml::text(td);
    return cells;
}

// The proper shipping name: roman words only. An italic "or" between two
// roman names marks a choice of names, so it stays as the word "or";
// every other italic run (qualifying text, "see") is dropped.
QString properShippingName(const xmlNode* cell)
{
    static const QRegularExpression seeWord(QStringLiteral("\\bsee\\b"));
    QString out;
    bool stop = false;
    std::function<void(const xmlNode*)> walk = [&](const xmlNode* n) {
        for (const xmlNode* c = n->children; c && !stop; c = c->next) {
            if (c->type == XML_TEXT_NODE) {
                out += QString::fromUtf8(reinterpret_cast<const char*>(c->content));
            } else if (c->type == XML_ELEMENT_NODE) {
                if (isItalic(c) && seeWord.match(xml::text(c)).capturedStart() == 0)
                    stop = true;  // "see (also) ..." names another entry
                else if (isItalic(c))
                    out += xml::text(c) == QLatin1String("or") ? QStringLiteral(" or ") : QStringLiteral(" ");
                else if (isElement(c, "sup"))
                    continue;  // footnote marks
                else if (isElement(c, "br"))
                    out += QLatin1Char(' ');
                else
                    walk(c);
            }
        }
    };
    walk(cell);
    out.replace(QChar(0x00a0), QLatin1Char(' '));
    out = out.simplified();
    out.replace(QStringLiteral(" ,"), QStringLiteral(","));
    // A roman "see" (one entry has it) ends the name just the same.
    const auto see = seeWord.match(out);
    if (see.hasMatch() && see.capturedStart() > 0)
        out.truncate(see.capturedStart());
    static const QRegularExpression dangling(QStringLiteral("[\\s,;]+$|\\s+or$"));
    for (QString before; before != out;) {
        before = out;
        out.remove(dangling);
    }
    return out;
}

// "IB2,T4,  TP1" -> "IB2, T4, TP1": the detail screen splits at ", ".
QString codeList(const QString& text)
{
    QStringList codes;
    for (const QString& c : text.split(QLatin1Char(','), Qt::SkipEmptyParts))
        if (!c.trimmed().isEmpty())
            codes << c.trimmed();
    return codes.join(QStringLiteral(", "));
}

// The shipping table: 14 columns, headed by the proper shipping names column.
bool isShippingTable(const xmlNode* table)
{
    const xmlNode* head = xml::find(table, "THEAD");
    return head && xml::text(head).contains(QLatin1String("proper shipping names"), Qt::CaseInsensitive);
}

bool isPlacardTable(const xmlNode* table)
{
    const xmlNode* head = xml::find(table, "THEAD");
    const QString text = head ? xml::text(head) : QString();
    return text.startsWith(QLatin1String("Category of material"), Qt::CaseInsensitive)
        && text.contains(QLatin1String("Placard name"), Qt::CaseInsensitive);
}

void readShippingTable(const xmlNode* table, EcfrSection* s)
{
    static const QRegularExpression idPattern(QStringLiteral("^(?:UN|NA|ID)(\\d{4})$"));
    static const QRegularExpression seeWord(QStringLiteral("\\bsee\\b"));
    QStringList entry;  // columns 1-4 of the entry the row belongs to
    QSet<QString> ids;
    for (const xmlNode* body : xml::findAll(table, "TBODY")) {
        for (const xmlNode* tr : xml::children(body, "TR")) {
            ++s->hmtCounts.tableRows;
            const auto tds = xml::children(tr, "TD");
            QStringList v = cellTexts(tr, "TD");
            while (v.size() < 14)
                v << QString();
            bool blank = true;
            for (const QString& c : std::as_const(v))
                blank = blank && c.isEmpty();
            if (blank)
                continue;
            // A later packing-group row leaves columns 1 to 4 to its entry.
            const bool continuation = v[1].isEmpty() && v[2].isEmpty() && v[3].isEmpty();
            QString name;
            if (continuation && !entry.isEmpty()) {
                for (int i = 0; i < 4; ++i)
                    if (v[i].isEmpty())
                        v[i] = entry[i];
                name = entry[4];
            } else {
                name = tds.size() > 1 ? properShippingName(tds[1]) : QString();
                entry = { v[0], v[1], v[2], v[3], name };
            }
            const auto id = idPattern.match(v[3]);
            if (id.hasMatch()) {
                ++s->hmtCounts.withId;
                ids.insert(v[3]);
            }
            if (v[2].contains(QLatin1String("Forbidden"))) {
                ++s->hmtCounts.forbidden;
                continue;
            }
            // "X, see Y" names another entry and carries no class of its own.
            if (v[2].isEmpty() && seeWord.match(v[1]).hasMatch()) {
                ++s->hmtCounts.crossReferences;
                continue;
            }
            // Entries without a class (explosive samples) are still shipping rows.
            if (!id.hasMatch())
                continue;
            HmtRow r;
            r.unId = id.captured(1);
            r.name = name;
            r.symbols = v[0];
            r.hazardClass = v[2];
            r.packingGroup = v[4];
            r.labelCodes = v[5];
            r.specialProvisions = codeList(v[6]);
            r.exceptions = v[7];
            r.nonBulk = v[8];
            r.bulk = v[9];
            r.passAirRail = v[10];
            r.cargoAir = v[11];
            r.vesselLoc = v[12];
            r.other = v[13];
            s->hmt << r;
        }
    }
    s->hmtCounts.distinctIds = int(ids.size());
}

void readPlacardTable(const xmlNode* table, EcfrSection* s)
{
    for (const xmlNode* body : xml::findAll(table, "TBODY"))
        for (const xmlNode* tr : xml::children(body, "TR")) {
            const auto tds = xml::children(tr, "TD");
            if (tds.size() < 2)
                continue;
            const QString placard = xml::text(tds[1], [](const xmlNode* n) { return isElement(n, "sup"); });
            if (!placard.isEmpty())
                s->placardTable << QStringList{ xml::text(tds[0]), placard };
        }
}

// The section's own markup as plain HTML, for the regulation pages.
QString toHtml(const xmlNode* n)
{
    static const QHash<QString, QString> tags = {
        { "P", "p" }, { "FP", "p" }, { "HEAD", "h3" }, { "HD", "h4" }, { "I", "i" }, { "E", "i" }, { "B", "b" },
        { "TABLE", "table" }, { "THEAD", "thead" }, { "TBODY", "tbody" }, { "TFOOT", "tfoot" }, { "TR", "tr" },
        { "TD", "td" }, { "TH", "th" }, { "CAPTION", "caption" }, { "SUP", "sup" }, { "SUB", "sub" },
        { "DIV", "div" }, { "CITA", "p" }, { "NOTE", "div" }, { "EXTRACT", "blockquote" },
    };
    QString out;
    for (const xmlNode* c = n->children; c; c = c->next) {
        if (c->type == XML_TEXT_NODE || c->type == XML_CDATA_SECTION_NODE) {
            out += QString::fromUtf8(reinterpret_cast<const char*>(c->content)).toHtmlEscaped();
        } else if (c->type == XML_ELEMENT_NODE) {
            const QString tag = name(c).toUpper();
            if (tag == QLatin1String("BR")) {
                out += QStringLiteral("<br>");
                continue;
            }
            const QString html = tags.value(tag);
            QString attrs;
            for (const char* a : { "colspan", "rowspan" }) {
                const QString value = attribute(c, a);
                if (!value.isEmpty())
                    attrs += QStringLiteral(" %1=\"%2\"").arg(QLatin1String(a), value.toHtmlEscaped());
            }
            if (html.isEmpty())
                out += toHtml(c);
            else
                out += QStringLiteral("<%1%2>%3</%1>").arg(html, attrs, toHtml(c));
        }
    }
    return out;
}

// Provision tables of § 172.102: a code cell, then the provision's text.
void readProvisionTable(const xmlNode* table, EcfrSection* s)
{
    static const QRegularExpression code(QStringLiteral("^(?:A|B|IB|IP|N|W|TP|T)?\\d{1,3}$"));
    for (const xmlNode* body : xml::findAll(table, "TBODY"))
        for (const xmlNode* tr : xml::children(body, "TR")) {
            const auto tds = xml::children(tr, "TD");
            if (tds.size() < 2 || !code.match(xml::text(tds[0])).hasMatch())
                continue;
            QString text;
            for (size_t i = 1; i < tds.size(); ++i)
                text += QStringLiteral("<p>%1</p>").arg(toHtml(tds[i]));
            s->provisions << SpecialProvision{ xml::text(tds[0]), text };
        }
}

// Column 10A's own paragraph, then one "(n) Stowage category "X" means"
// paragraph per category; roman-numbered paragraphs continue the one before.
void readStowage(const xmlNode* root, EcfrSection* s)
{
    static const QRegularExpression category(QStringLiteral("^\\(\\d+\\)\\s*(Stowage category\\s*[\"“](\\w+)[\"”].*)$"));
    static const QRegularExpression subParagraph(QStringLiteral("^\\([ivx]+\\)"));
    bool inList = false;
    for (const xmlNode* c = root->children; c; c = c->next) {
        if (!isElement(c, "P"))
            continue;
        const QString text = xml::text(c);
        if (!inList) {
            inList = text.contains(QLatin1String("Column 10A")) && text.contains(QLatin1String("stowage locations"));
            continue;
        }
        const auto m = category.match(text);
        if (m.hasMatch())
            s->vesselStowage << QStringList{ m.captured(2), m.captured(1) };
        else if (!s->vesselStowage.isEmpty() && subParagraph.match(text).hasMatch())
            s->vesselStowage.last()[1] += QLatin1Char(' ') + text;
        else if (!s->vesselStowage.isEmpty())
            break;
    }
}

// § 172.102 in paragraph form: a paragraph that starts with a code begins a
// provision; paragraphs after it belong to it until the next code.
void readProvisionParagraphs(const xmlNode* root, EcfrSection* s)
{
    static const QRegularExpression code(QStringLiteral("^((?:A|B|IB|IP|N|W|TP|T)?\\d{1,3})\\s+\\S"));
    // The section's own lettered paragraphs; "(i)" is a roman sub-paragraph.
    static const QRegularExpression paragraphLetter(QStringLiteral("^\\([a-h]\\)\\s"));
    bool inProvision = false;
    for (const xmlNode* c = root->children; c; c = c->next) {
        if (!isElement(c, "P") && !isElement(c, "FP"))
            continue;
        const QString text = xml::text(c);
        const auto m = code.match(text);
        if (m.hasMatch()) {
            s->provisions << SpecialProvision{ m.captured(1), QStringLiteral("<p>%1</p>").arg(toHtml(c)) };
            inProvision = true;
        } else if (paragraphLetter.match(text).hasMatch()) {
            inProvision = false;  // the section's next lettered paragraph
        } else if (inProvision) {
            s->provisions.last().html += QStringLiteral("<p>%1</p>").arg(toHtml(c));
        }
    }
}

QString lineOfLastError()
{
    const xmlError* e = xmlGetLastError();
    if (!e)
        return QStringLiteral("not well-formed XML");
    return QStringLiteral("line %1: %2").arg(e->line).arg(QString::fromUtf8(e->message).trimmed());
}

} // namespace

QString SpecialProvision::anchoredHtml() const
{
    return QStringLiteral("<div class=\"provision\" id=\"%1\"><a name=\"%1\"></a>\n<h3>%1</h3>\n%2\n</div>\n")
        .arg(code.toHtmlEscaped(), html);
}

QStringList HmtRow::columns() const
{
    // The last column ("future") has no source and stays empty.
    return { unId, name, symbols, hazardClass, packingGroup, labelCodes, specialProvisions, exceptions,
             nonBulk, bulk, passAirRail, cargoAir, vesselLoc, other, QString() };
}

std::optional<EcfrSection> parseEcfrSection(const QByteArray& bytes, const QString& fileName, QString* error)
{
    xmlResetLastError();
    xmlDoc* doc = xmlReadMemory(bytes.constData(), int(bytes.size()), nullptr, "UTF-8",
                                XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (!doc) {
        *error = QStringLiteral("%1: %2").arg(fileName, lineOfLastError());
        return std::nullopt;
    }
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> guard(doc, xmlFreeDoc);
    const xmlNode* root = xmlDocGetRootElement(doc);
    if (!root || attribute(root, "TYPE") != QLatin1String("SECTION") || attribute(root, "N").isEmpty()) {
        *error = QStringLiteral("%1: not an eCFR section (the root element must be a SECTION with its number)").arg(fileName);
        return std::nullopt;
    }
    EcfrSection s;
    s.number = attribute(root, "N").trimmed();
    s.heading = xml::text(xml::children(root, "HEAD").empty() ? nullptr : xml::children(root, "HEAD").front());
    int block = 0;
    for (const xmlNode* c = root->children; c; c = c->next) {
        if (c->type != XML_ELEMENT_NODE || isElement(c, "EDNOTE"))
            continue;
        ++block;
        const QString tag = isElement(c, "HEAD") ? QStringLiteral("h3") : isElement(c, "DIV") ? QStringLiteral("div") : QStringLiteral("p");
        s.nodes << CfrNode{ QStringLiteral("%1-%2").arg(s.number).arg(block), QStringLiteral("<%1>%2</%1>").arg(tag, toHtml(c)) };
    }
    for (const xmlNode* table : xml::findAll(root, "TABLE")) {
        if (isShippingTable(table))
            readShippingTable(table, &s);
        else if (isPlacardTable(table))
            readPlacardTable(table, &s);
        else if (s.number == QLatin1String("172.102"))
            readProvisionTable(table, &s);
    }
    if (!s.hmt.isEmpty())
        readStowage(root, &s);
    if (s.number == QLatin1String("172.102"))
        readProvisionParagraphs(root, &s);
    return s;
}

std::optional<EcfrSection> readEcfrSection(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    return parseEcfrSection(file.readAll(), path, error);
}

QString divisionOf(const QString& hazardClass)
{
    static const QRegularExpression explosive(QStringLiteral("^(1\\.[1-6])[A-S]$"));
    const auto m = explosive.match(hazardClass.trimmed());
    return m.hasMatch() ? m.captured(1) : hazardClass.trimmed();
}

bool isInhalationHazard(const HmtRow& row)
{
    for (const QString& code : row.specialProvisions.split(QStringLiteral(", ")))
        if (code.size() == 1 && code.at(0) >= QLatin1Char('1') && code.at(0) <= QLatin1Char('6'))
            return true;
    return false;
}

QString placardKeyForClass(const QString& hazardClass, bool inhalationHazard)
{
    const QString d = divisionOf(hazardClass);
    // Table 1 of § 172.504(e): EXPLOSIVES 1.1 to 1.3, POISON GAS (2.3),
    // DANGEROUS WHEN WET (4.3), ORGANIC PEROXIDE (5.2), POISON INHALATION
    // HAZARD (6.1 poisonous by inhalation), RADIOACTIVE (7).
    // Table 2: EXPLOSIVES 1.4 to 1.6, FLAMMABLE GAS (2.1), NON-FLAMMABLE GAS
    // (2.2), FLAMMABLE (3), FLAMMABLE SOLID (4.1), SPONTANEOUSLY COMBUSTIBLE
    // (4.2), OXIDIZER (5.1), POISON (other 6.1), CORROSIVE (8), CLASS 9 (9).
    static const QSet<QString> ownPlacard = { "1.1", "1.2", "1.3", "1.4", "1.5", "1.6", "2.1", "2.2", "2.3", "3",
                                              "4.1", "4.2", "4.3", "5.1", "5.2", "7", "8", "9" };
    if (ownPlacard.contains(d))
        return d;
    if (d == QLatin1String("6.1"))
        return inhalationHazard ? QStringLiteral("6.1-tih") : QStringLiteral("6.1");
    // Table 2 requires no placard for 6.2 ("NONE"); the key names the
    // division's own sign so the material still shows its hazard.
    if (d == QLatin1String("6.2"))
        return d;
    // § 172.504(f)(2): a FLAMMABLE placard may stand in for COMBUSTIBLE, for
    // which the pack has no artwork of its own.
    if (d.compare(QLatin1String("Comb liq"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("3");
    return {};
}

void ShippingData::add(const EcfrSection& section)
{
    m_hmt += section.hmt;
    if (!section.vesselStowage.isEmpty())
        m_stowage = section.vesselStowage;
    m_placardTable += section.placardTable;
    m_provisions += section.provisions;
    // The regulation pages hold the part 173 packaging sections.
    if (section.number.startsWith(QLatin1String("173."))) {
        for (const CfrNode& n : section.nodes)
            m_cfrText << QStringList{ section.number, n.nodeId, n.html, section.heading };
        // "§ 173.203 Non-bulk packagings for ..." titles the shipping table's "203".
        QString title = section.heading;
        title.remove(QRegularExpression(QStringLiteral("^§\\s*173\\.\\S+\\s*")));
        m_sectionTitles << QStringList{ section.number.mid(4), title.remove(QRegularExpression(QStringLiteral("\\.$"))) };
    }
}

QString ShippingData::placardKey(const QString& unId, bool inhalationHazard) const
{
    const HmtRow* first = nullptr;
    for (const HmtRow& r : m_hmt) {
        if (r.unId != unId)
            continue;
        if (!first)
            first = &r;
        // A material marked as an inhalation hazard takes the placard of its
        // poisonous row where the ID also has others (UN1005: 2.3 and 2.2).
        const QString d = divisionOf(r.hazardClass);
        if (inhalationHazard && (d == QLatin1String("2.3") || d == QLatin1String("6.1")))
            return placardKeyForClass(d, true);
    }
    return first ? placardKeyForClass(first->hazardClass, inhalationHazard || isInhalationHazard(*first)) : QString();
}

const QList<SpecialProvision>& ShippingData::provisions() const
{
    return m_provisions;
}

ImportTables ShippingData::tables() const
{
    ImportTables t;
    if (!m_hmt.isEmpty()) {
        QList<QStringList>& hmt = t[QStringLiteral("hmt")];
        QList<QStringList>& classes = t[QStringLiteral("dot_classes")];
        QSet<QString> seen;
        for (const HmtRow& r : m_hmt) {
            hmt << r.columns();
            const QString d = divisionOf(r.hazardClass);
            if (!d.isEmpty() && !seen.contains(r.unId + QLatin1Char('|') + d)) {
                seen.insert(r.unId + QLatin1Char('|') + d);
                classes << QStringList{ r.unId, d };
            }
        }
        t[QStringLiteral("vessel_stowage")] = m_stowage;
    }
    if (!m_hmt.isEmpty() && !m_placardTable.isEmpty()) {
        // An ID's placard follows from the table when all its rows give the
        // same one and § 172.504 names a placard (not "NONE") for it.
        auto listed = [this](const QString& key) {
            const QString d = key.section(QLatin1Char('-'), 0, 0);
            for (const QStringList& p : m_placardTable) {
                if (p[0] != d && !p[0].startsWith(d + QLatin1Char(' ')))
                    continue;
                if (p[1].compare(QLatin1String("NONE"), Qt::CaseInsensitive) == 0)
                    continue;
                const bool inhalationRow = p[0].contains(QLatin1String("inhalation")) && !p[0].contains(QLatin1String("other than"));
                if (d != QLatin1String("6.1") || inhalationRow == key.endsWith(QLatin1String("-tih")))
                    return true;
            }
            return false;
        };
        QMap<QString, QSet<QString>> keys;
        QStringList order;
        for (const HmtRow& r : m_hmt) {
            if (!keys.contains(r.unId))
                order << r.unId;
            keys[r.unId].insert(placardKeyForClass(r.hazardClass, isInhalationHazard(r)));
        }
        QList<QStringList>& placards = t[QStringLiteral("dot_placards")];
        for (const QString& id : std::as_const(order)) {
            const QSet<QString>& k = keys[id];
            if (k.size() == 1 && !k.begin()->isEmpty() && listed(*k.begin()))
                placards << QStringList{ id, *k.begin() };
        }
    }
    if (!m_cfrText.isEmpty()) {
        t[QStringLiteral("cfr_text")] = m_cfrText;
        t[QStringLiteral("hmt_sections")] = m_sectionTitles;
    }
    return t;
}

} // namespace qor::import
