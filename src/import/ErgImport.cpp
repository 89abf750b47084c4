#include "ErgImport.h"

#include "EcfrImport.h"

#include "PdfText.h"

#include <QColor>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <limits>

namespace qor::import {

const QString ErgImport::kWater = QStringLiteral("When Spilled in Water");
const QString ErgImport::kLand = QStringLiteral("When Spilled on Land");

namespace {

// A word in the frame of its own text: x along the reading direction, y down
// the lines. Sideways tables are read as if the page were turned upright.
struct Word {
    QString text;
    double x = 0, y = 0, w = 0, h = 0;
    double right() const { return x + w; }
    double cy() const { return y + h / 2; }
};
using Line = std::vector<Word>;

QString joined(const std::vector<Word>& words)
{
    QStringList parts;
    for (const Word& w : words)
        parts << w.text;
    return parts.join(QLatin1Char(' '));
}

// Joins wrapped name pieces; a piece ending in a hyphen continues without a blank.
void appendName(QString* name, const QString& piece)
{
    if (piece.isEmpty())
        return;
    if (name->isEmpty())
        *name = piece;
    else if (name->endsWith(QLatin1Char('-')))
        *name += piece;
    else
        *name += QLatin1Char(' ') + piece;
}

const QRegularExpression& idPattern()
{
    static const QRegularExpression re(QStringLiteral("^\\d{4}$"));
    return re;
}
const QRegularExpression& guidePattern()
{
    static const QRegularExpression re(QStringLiteral("^\\d{3}P?$"));
    return re;
}
const QRegularExpression& figurePattern()
{
    static const QRegularExpression re(QStringLiteral("^\\d+(?:\\.\\d+)?\\+?$"));
    return re;
}
bool isId(const QString& s) { return idPattern().match(s).hasMatch(); }
bool isGuide(const QString& s) { return guidePattern().match(s).hasMatch(); }
bool isFigure(const QString& s) { return figurePattern().match(s).hasMatch(); }

const QString kDash = QString(QChar(0x2014));

// One page's words, split into upright and sideways text, in text frames.
struct Page {
    int number = 0;       // 1-based, for messages
    int sideways = 0;     // rotation of the sideways text (1 or 3), 0 when none
    QSizeF size;
    std::vector<Word> upright;
    std::vector<Word> turned;
};

Page loadPage(const PdfText& pdf, int index)
{
    Page page;
    page.number = index + 1;
    page.size = pdf.pageSize(index);
    const double W = page.size.width(), H = page.size.height();
    std::vector<Word> turned[4];
    for (const PdfWord& pw : pdf.words(index)) {
        const QString text = pw.text.trimmed();
        if (text.isEmpty())
            continue;
        const QRectF& b = pw.box;
        switch (pw.rotation & 3) {
        case 0: page.upright.push_back({ text, b.x(), b.y(), b.width(), b.height() }); break;
        case 3: turned[3].push_back({ text, H - b.bottom(), b.x(), b.height(), b.width() }); break;
        case 1: turned[1].push_back({ text, b.y(), W - b.right(), b.height(), b.width() }); break;
        default: break;  // upside-down text carries nothing the tables need
        }
    }
    // A sideways table runs one way; the other way is page furniture.
    const int rot = turned[3].size() >= turned[1].size() ? 3 : 1;
    if (turned[rot].size() > page.upright.size()) {
        page.sideways = rot;
        page.turned = std::move(turned[rot]);
    }
    return page;
}

// Groups words into lines by their vertical centre, each line left to right.
std::vector<Line> makeLines(std::vector<Word> words)
{
    std::sort(words.begin(), words.end(), [](const Word& a, const Word& b) { return a.cy() < b.cy() || (a.cy() == b.cy() && a.x < b.x); });
    std::vector<Line> lines;
    double lineCy = 0;
    for (const Word& w : words) {
        const double tolerance = std::max(3.0, w.h * 0.4);  // subscripts sit lower
        if (lines.empty() || w.cy() - lineCy > tolerance) {
            lines.push_back({ w });
            lineCy = w.cy();
        } else {
            lines.back().push_back(w);
        }
    }
    for (Line& l : lines)
        std::sort(l.begin(), l.end(), [](const Word& a, const Word& b) { return a.x < b.x; });
    return lines;
}

QString lineText(const Line& line) { return joined(line); }

double lineCy(const Line& line)
{
    double sum = 0;
    for (const Word& w : line)
        sum += w.cy();
    return line.empty() ? 0 : sum / double(line.size());
}

bool anyLineMatches(const std::vector<Line>& lines, const QRegularExpression& re)
{
    return std::any_of(lines.begin(), lines.end(), [&](const Line& l) { return re.match(lineText(l)).hasMatch(); });
}

class Failure {
public:
    Failure(QString file, QString* error) : m_file(std::move(file)), m_error(error) {}
    bool operator()(int page, const QString& why) const
    {
        *m_error = page > 0 ? QStringLiteral("%1: page %2: %3").arg(m_file).arg(page).arg(why) : QStringLiteral("%1: %2").arg(m_file, why);
        return false;
    }

private:
    QString m_file;
    QString* m_error;
};

// Positions (in the text frame, points) of the table's rule lines: rows of
// the drawn page that are dark across most of the table's width.
std::vector<double> ruleLines(const PdfText& pdf, const Page& page, double fromX, double toX)
{
    constexpr double kDpi = 144.0;
    constexpr double kScale = kDpi / 72.0;
    const QImage image = pdf.render(page.number - 1, kDpi);
    std::vector<double> rules;
    if (image.isNull() || toX - fromX < 10)
        return rules;
    const double W = page.size.width(), H = page.size.height();
    const int rot = page.sideways;
    // Frame height: the extent of the y axis in the frame.
    const double frameH = rot == 0 ? H : W;
    const int steps = int(frameH * kScale);
    constexpr int kSamples = 48;
    auto dark = [&](double fx, double fy) {
        QPointF p = rot == 3 ? QPointF(fy, H - fx) : rot == 1 ? QPointF(W - fy, fx) : QPointF(fx, fy);
        const QPoint px((p * kScale).toPoint());
        if (!image.rect().contains(px))
            return false;
        const QRgb c = image.pixel(px);
        return qGray(c) < 128;
    };
    int runStart = -1;
    for (int i = 0; i <= steps; ++i) {
        bool rule = false;
        if (i < steps) {
            const double fy = (i + 0.5) / kScale;
            int hits = 0;
            for (int s = 0; s < kSamples; ++s)
                hits += dark(fromX + (toX - fromX) * (s + 0.5) / kSamples, fy);
            rule = hits >= kSamples * 7 / 10;
        }
        if (rule && runStart < 0)
            runStart = i;
        if (!rule && runStart >= 0) {
            rules.push_back((runStart + i) / 2.0 / kScale);
            runStart = -1;
        }
    }
    return rules;
}

// Lines grouped by the rule lines around them; lines outside the first and
// last rule are left out.
std::vector<std::vector<Line>> groupsBetweenRules(const std::vector<Line>& lines, const std::vector<double>& rules)
{
    std::vector<std::vector<Line>> groups(rules.size() > 1 ? rules.size() - 1 : 0);
    for (const Line& l : lines) {
        const double cy = lineCy(l);
        const auto it = std::upper_bound(rules.begin(), rules.end(), cy);
        if (it == rules.begin() || it == rules.end())
            continue;
        groups[size_t(it - rules.begin() - 1)].push_back(l);
    }
    return groups;
}

// ------------------------------------------------------------------ index

const QRegularExpression& indexHeader()
{
    static const QRegularExpression re(QStringLiteral("^(?:ID Guide Name of Material\\s*)+$"));
    return re;
}

bool isGreen(const QColor& c)
{
    return c.isValid() && c.green() > 200 && c.red() < 200 && c.blue() < 100;
}

bool readIndexPage(const PdfText& pdf, const Page& page, QList<ErgIndexRow>* rows, const Failure& fail)
{
    const std::vector<Line> lines = makeLines(page.upright);
    const Line* header = nullptr;
    for (const Line& l : lines)
        if (indexHeader().match(lineText(l)).hasMatch()) {
            header = &l;
            break;
        }
    if (!header)
        return true;
    std::vector<double> columns;
    double headerBottom = 0;
    for (const Word& w : *header) {
        if (w.text == QLatin1String("ID"))
            columns.push_back(w.x);
        headerBottom = std::max(headerBottom, w.y + w.h);
    }
    static const QRegularExpression footer(QStringLiteral("^(?:Page \\d+|No\\.(?: No\\.)*)$"));
    for (size_t c = 0; c < columns.size(); ++c) {
        const double from = columns[c] - 4, to = c + 1 < columns.size() ? columns[c + 1] - 4 : page.size.width() + 1;
        std::vector<Word> words;
        for (const Word& w : page.upright)
            if (w.x >= from && w.x < to && w.y > headerBottom - 1)
                words.push_back(w);
        ErgIndexRow* current = nullptr;
        double guideRight = 0;
        for (const Line& l : makeLines(words)) {
            const QString text = lineText(l);
            if (footer.match(text).hasMatch())
                continue;
            const bool atIdColumn = std::abs(l.front().x - columns[c]) < 4;
            qsizetype nameFrom = 0;
            if (atIdColumn) {
                ErgIndexRow row;
                if (l.size() >= 3 && isId(l[0].text) && isGuide(l[1].text)) {
                    row.id = l[0].text;
                    row.guide = l[1].text;
                    nameFrom = 2;
                } else if (l.size() >= 4 && l[0].text == kDash && l[1].text == kDash && isGuide(l[2].text)) {
                    row.id = kDash;
                    row.guide = l[2].text;
                    nameFrom = 3;
                } else {
                    return fail(page.number, QStringLiteral("unreadable index row \"%1\"").arg(text));
                }
                const Word& idWord = l[0];
                const Word& guideWord = l[size_t(nameFrom - 1)];
                const double cy = lineCy(l);
                // The highlight exists only as a fill behind the row.
                const QColor gap = pdf.colorAt(page.number - 1, QPointF((idWord.right() + l[1].x) / 2, cy));
                const QColor before = pdf.colorAt(page.number - 1, QPointF(idWord.x - 1.5, cy));
                row.highlighted = isGreen(gap) || isGreen(before);
                guideRight = guideWord.right();
                rows->append(row);
                current = &rows->last();
            } else if (!current || l.front().x < guideRight) {
                return fail(page.number, QStringLiteral("index text \"%1\" belongs to no row").arg(text));
            }
            appendName(&current->name, joined(std::vector<Word>(l.begin() + nameFrom, l.end())));
        }
    }
    return true;
}

// ------------------------------------------------------------------ Table 1

int tableNumberOf(const Page& page)
{
    // The sideways tables carry their number on every page ("TABLE 1" or the full heading).
    static const QRegularExpression marker(QStringLiteral("\\bTABLE ([13])\\b"));
    if (!page.sideways)
        return 0;
    for (const Line& l : makeLines(page.turned)) {
        const auto m = marker.match(lineText(l));
        if (m.hasMatch())
            return m.captured(1).toInt();
    }
    return 0;
}

// Index of the first word of a Table 1 line that starts the distances, or -1.
qsizetype firstDistanceWord(const Line& l)
{
    for (size_t i = 0; i + 1 < l.size(); ++i) {
        if (isFigure(l[i].text) && l[i + 1].text == QLatin1String("m"))
            return qsizetype(i);
        if (l[i].text == QLatin1String("Refer") && l[i + 1].text == QLatin1String("to"))
            return qsizetype(i);
    }
    return -1;
}

bool parseDistances(const QString& text, ErgDistances* small, std::optional<ErgDistances>* large)
{
    static const QString n = QStringLiteral("(\\d+(?:\\.\\d+)?\\+?)");
    static const QString spill = QStringLiteral("%1\\s*m\\s*\\(\\s*%1\\s*ft\\s*\\)\\s*%1\\s*km\\s*\\(\\s*%1\\s*mi\\s*\\)\\s*%1\\s*km\\s*\\(\\s*%1\\s*mi\\s*\\)").arg(n);
    static const QRegularExpression re(QStringLiteral("^%1\\s*(?:Refer\\s+to\\s+Table\\s+3|%1)$").arg(spill));
    const auto m = re.match(text.simplified());
    if (!m.hasMatch())
        return false;
    *small = { m.captured(1), m.captured(2), m.captured(3), m.captured(4), m.captured(5), m.captured(6) };
    if (m.captured(7).isEmpty())
        large->reset();
    else
        *large = ErgDistances{ m.captured(7), m.captured(8), m.captured(9), m.captured(10), m.captured(11), m.captured(12) };
    return true;
}

bool readTable1Page(const PdfText& pdf, const Page& page, QList<ErgTable1Row>* rows, const Failure& fail)
{
    const std::vector<Line> lines = makeLines(page.turned);
    double cut = std::numeric_limits<double>::max(), left = cut, right = 0;
    for (const Line& l : lines) {
        const qsizetype at = firstDistanceWord(l);
        if (at >= 0) {
            cut = std::min(cut, l[size_t(at)].x);
            right = std::max(right, l.back().right());
        }
        if (l.size() >= 2 && isId(l[0].text) && isGuide(l[1].text))
            left = std::min(left, l[0].x);
    }
    if (right == 0 || left > cut)
        return true;  // a page that only names the table
    cut -= 2;
    const std::vector<double> rules = ruleLines(pdf, page, left, right);
    if (rules.size() < 2)
        return fail(page.number, QStringLiteral("no rule lines between the Table 1 rows"));
    for (const std::vector<Line>& group : groupsBetweenRules(lines, rules)) {
        struct Entry {
            QString id, guide, name;
        };
        std::vector<Entry> entries;
        std::vector<Word> figures;
        bool hasEntryLine = false, hasFigures = false;
        for (const Line& l : group) {
            hasEntryLine |= l.size() >= 2 && l[0].x < cut && isId(l[0].text) && isGuide(l[1].text);
            hasFigures |= firstDistanceWord(l) >= 0;
        }
        if (!hasEntryLine) {
            if (hasFigures)
                return fail(page.number, QStringLiteral("Table 1 distances without a material: \"%1\"").arg(lineText(group.front())));
            continue;  // column heads
        }
        for (const Line& l : group) {
            std::vector<Word> name;
            for (const Word& w : l)
                (w.x < cut ? name : figures).push_back(w);
            if (name.empty())
                continue;
            if (name.size() >= 2 && isId(name[0].text) && isGuide(name[1].text)) {
                entries.push_back({ name[0].text, name[1].text, joined(std::vector<Word>(name.begin() + 2, name.end())) });
            } else if (!entries.empty()) {
                appendName(&entries.back().name, joined(name));
            } else {
                return fail(page.number, QStringLiteral("Table 1 text \"%1\" comes before its ID").arg(joined(name)));
            }
        }
        std::sort(figures.begin(), figures.end(), [](const Word& a, const Word& b) { return a.x < b.x; });
        ErgDistances small;
        std::optional<ErgDistances> large;
        if (!parseDistances(joined(figures), &small, &large))
            return fail(page.number, QStringLiteral("UN%1 %2: unreadable distances \"%3\"")
                                         .arg(entries.front().id, entries.front().name, joined(figures)));
        for (Entry& e : entries) {
            ErgTable1Row row{ e.id, e.guide, e.name, QString(), small, large };
            static const QRegularExpression suffix(QStringLiteral("\\s*\\(when spilled (in water|on land)\\)$"), QRegularExpression::CaseInsensitiveOption);
            const auto m = suffix.match(row.name);
            if (m.hasMatch()) {
                row.condition = m.captured(1).startsWith(QLatin1String("in"), Qt::CaseInsensitive) ? ErgImport::kWater : ErgImport::kLand;
                row.name.truncate(m.capturedStart());
            }
            rows->append(row);
        }
    }
    return true;
}

// ------------------------------------------------------------------ Table 2

bool readTable2Page(const Page& page, QList<ErgTable2Row>* rows, const Failure& fail)
{
    const std::vector<Line> lines = makeLines(page.upright);
    double gasX = -1;
    size_t first = lines.size();
    for (size_t i = 0; i < lines.size(); ++i) {
        const Line& l = lines[i];
        for (size_t k = 0; k + 1 < l.size(); ++k)
            if (l[k].text == QLatin1String("TIH") && l[k + 1].text.startsWith(QLatin1String("Gas")) && gasX < 0) {
                gasX = l[k].x;
                first = i + 1;
            }
    }
    if (gasX < 0)
        return true;  // the heading alone, as in a table of contents
    ErgTable2Row* current = nullptr;
    for (size_t i = first; i < lines.size(); ++i) {
        const Line& l = lines[i];
        const QString text = lineText(l);
        if (text.startsWith(QLatin1String("Chemical Symbols")))
            break;
        std::vector<Word> name, gases;
        for (const Word& w : l)
            (w.x < gasX - 3 ? name : gases).push_back(w);
        if (name.size() >= 2 && isId(name[0].text) && isGuide(name[1].text)) {
            rows->append({ name[0].text, name[1].text, joined(std::vector<Word>(name.begin() + 2, name.end())), {} });
            current = &rows->last();
        } else if (!current) {
            continue;  // heads and side marks before the first row
        } else if (!name.empty()) {
            if (name.front().x < l.front().x - 1 || isId(name.front().text))
                return fail(page.number, QStringLiteral("unreadable Table 2 row \"%1\"").arg(text));
            appendName(&current->name, joined(name));
        }
        if (!current)
            continue;
        double prevRight = -100;
        for (const Word& g : gases) {
            // Subscripts come as words of their own ("H" "2" "S"), touching their neighbours.
            if (!current->gases.isEmpty() && g.x - prevRight < 1.0)
                current->gases.last() += g.text;
            else
                current->gases << g.text;
            prevRight = g.right();
        }
    }
    return true;
}

// ------------------------------------------------------------------ Table 3

QString bareFigure(QString s)
{
    if (s.startsWith(QLatin1Char('(')) && s.endsWith(QLatin1Char(')')))
        s = s.mid(1, s.size() - 2);
    return s;
}

bool isBracketedFigure(const QString& s) { return isFigure(bareFigure(s)); }

bool readTable3Page(const PdfText& pdf, const Page& page, QList<ErgTable3Row>* rows, const Failure& fail)
{
    static const QRegularExpression unToken(QStringLiteral("^UN(\\d{4})$"));
    const std::vector<Line> lines = makeLines(page.turned);
    double cut = std::numeric_limits<double>::max(), left = cut, right = 0;
    auto figureStart = [](const Line& l) -> qsizetype {
        // The fourteen figures close the line.
        if (l.size() < 14)
            return -1;
        for (size_t i = l.size() - 14; i < l.size(); ++i)
            if (!isBracketedFigure(l[i].text))
                return -1;
        return qsizetype(l.size() - 14);
    };
    for (const Line& l : lines) {
        const qsizetype at = figureStart(l);
        if (at < 0)
            continue;
        cut = std::min(cut, l[size_t(at)].x);
        right = std::max(right, l.back().right());
        if (at > 0)
            left = std::min(left, l.front().x);
    }
    if (right == 0)
        return true;  // a page that only names the table
    cut -= 2;
    if (left > cut)
        left = cut - 80;
    const std::vector<double> rules = ruleLines(pdf, page, left, right);
    if (rules.size() < 2)
        return fail(page.number, QStringLiteral("no rule lines between the Table 3 rows"));
    QStringList ids;
    bool blockHasRows = false;
    for (const std::vector<Line>& group : groupsBetweenRules(lines, rules)) {
        QStringList headingIds;
        std::vector<Word> name, figures;
        for (const Line& l : group) {
            bool heading = false;
            for (const Word& w : l) {
                const auto m = unToken.match(w.text);
                if (m.hasMatch()) {
                    headingIds << m.captured(1);
                    heading = true;
                }
            }
            if (heading)
                continue;  // the heading names the materials, not a container
            for (const Word& w : l) {
                if (w.text == QLatin1String("TRANSPORT") || w.text == QLatin1String("CONTAINER"))
                    continue;
                (w.x < cut ? name : figures).push_back(w);
            }
        }
        if (!headingIds.isEmpty()) {
            if (blockHasRows || ids.isEmpty())
                ids.clear();
            for (const QString& id : headingIds)
                if (!ids.contains(id))
                    ids << id;
            blockHasRows = false;
        }
        if (figures.empty()) {
            if (!name.empty() && !ids.isEmpty())
                return fail(page.number, QStringLiteral("Table 3 container \"%1\" has no distances").arg(joined(name)));
            continue;
        }
        if (ids.isEmpty())
            continue;  // column heads
        std::sort(figures.begin(), figures.end(), [](const Word& a, const Word& b) { return a.x < b.x; });
        QStringList values;
        for (const Word& f : figures) {
            if (!isBracketedFigure(f.text))
                return fail(page.number, QStringLiteral("Table 3 (UN%1): unreadable figure \"%2\"").arg(ids.join(QStringLiteral("/")), f.text));
            values << bareFigure(f.text);
        }
        if (values.size() != 14 || name.empty())
            return fail(page.number, QStringLiteral("Table 3 (UN%1): a container row needs a name and 14 figures, found \"%2\"")
                                         .arg(ids.join(QStringLiteral("/")), joined(name) + QLatin1Char(' ') + values.join(QLatin1Char(' '))));
        QString container;
        for (const Line& l : makeLines(name))
            appendName(&container, joined(l));
        rows->append({ ids, container, values });
        blockHasRows = true;
    }
    return true;
}

// ------------------------------------------------------------------ documents

bool readDocument(const PdfText& pdf, ErgTables* out, const Failure& fail)
{
    static const QRegularExpression table2Heading(QStringLiteral("^TABLE 2 - WATER-REACTIVE MATERIALS"));
    for (int p = 0; p < pdf.pageCount(); ++p) {
        const Page page = loadPage(pdf, p);
        bool ok = true;
        if (page.sideways) {
            const int table = tableNumberOf(page);
            if (table == 1)
                ok = readTable1Page(pdf, page, &out->table1, fail);
            else if (table == 3)
                ok = readTable3Page(pdf, page, &out->table3, fail);
        } else {
            const std::vector<Line> lines = makeLines(page.upright);
            if (anyLineMatches(lines, table2Heading))
                ok = readTable2Page(page, &out->table2, fail);
            else
                ok = readIndexPage(pdf, page, &out->index, fail);
        }
        if (!ok)
            return false;
    }
    return true;
}

template <typename T>
void keepFuller(QList<T>* kept, const QList<T>& candidate)
{
    if (candidate.size() > kept->size())
        *kept = candidate;
}

} // namespace

std::optional<ErgTables> ErgImport::readData(const QByteArray& bytes, const QString& name, QString* error)
{
    PdfText pdf;
    if (!pdf.openData(bytes, name, error))
        return std::nullopt;
    ErgTables tables;
    if (!readDocument(pdf, &tables, Failure(name, error)))
        return std::nullopt;
    return tables;
}

std::optional<ErgTables> ErgImport::read(const QStringList& files, QString* error)
{
    ErgTables all;
    for (const QString& file : files) {
        PdfText pdf;
        if (!pdf.open(file, error))
            return std::nullopt;
        ErgTables one;
        if (!readDocument(pdf, &one, Failure(file, error)))
            return std::nullopt;
        if (one.index.isEmpty() && one.table1.isEmpty() && one.table2.isEmpty() && one.table3.isEmpty())
            all.unusedFiles << file;
        // Extracts overlap; the fuller reading of a section wins.
        keepFuller(&all.index, one.index);
        keepFuller(&all.table1, one.table1);
        keepFuller(&all.table2, one.table2);
        keepFuller(&all.table3, one.table3);
    }
    QStringList missing;
    if (all.index.isEmpty())
        missing << QStringLiteral("the yellow index (\"ID Guide Name of Material\" columns)");
    if (all.table1.isEmpty())
        missing << QStringLiteral("Table 1 (\"TABLE 1 - INITIAL ISOLATION AND PROTECTIVE ACTION DISTANCES\")");
    if (all.table2.isEmpty())
        missing << QStringLiteral("Table 2 (\"TABLE 2 - WATER-REACTIVE MATERIALS WHICH PRODUCE TOXIC GASES\")");
    if (all.table3.isEmpty())
        missing << QStringLiteral("Table 3 (\"TABLE 3 - INITIAL ISOLATION AND PROTECTIVE ACTION DISTANCES FOR LARGE SPILLS\")");
    if (!missing.isEmpty()) {
        QStringList names;
        for (const QString& f : files)
            names << QFileInfo(f).fileName();
        *error = QStringLiteral("%1: not found: %2").arg(names.isEmpty() ? QStringLiteral("(no files)") : names.join(QStringLiteral(", ")),
                                                         missing.join(QStringLiteral("; ")));
        return std::nullopt;
    }
    return all;
}

namespace {
QString pairKey(const QString& id, const QString& name) { return id + QLatin1Char('^') + name; }
} // namespace

QStringList ErgImport::highlightMismatches(const ErgTables& tables)
{
    QSet<QString> inTable1;
    for (const ErgTable1Row& r : tables.table1)
        inTable1.insert(pairKey(r.id, r.name));
    QStringList out;
    QSet<QString> indexed;
    for (const ErgIndexRow& r : tables.index) {
        const QString key = pairKey(r.id, r.name);
        indexed.insert(key);
        if (r.highlighted != inTable1.contains(key))
            out << QStringLiteral("%1 %2: %3").arg(r.id, r.name, r.highlighted ? QStringLiteral("highlighted, not in Table 1") : QStringLiteral("in Table 1, not highlighted"));
    }
    QStringList missing;
    for (const QString& key : inTable1)
        if (!indexed.contains(key))
            missing << key.section(QLatin1Char('^'), 0, 0) + QLatin1Char(' ') + key.section(QLatin1Char('^'), 1) + QStringLiteral(": in Table 1, not in the index");
    missing.sort();
    return out + missing;
}

QStringList materialsLines(const ErgTables& tables, const ShippingData* shipping)
{
    QSet<QString> tih, water, table2Ids;
    for (const ErgTable1Row& r : tables.table1) {
        tih.insert(pairKey(r.id, r.name));
        if (r.condition == ErgImport::kWater)
            water.insert(pairKey(r.id, r.name));
    }
    QHash<QString, QStringList> gasesByPair, gasesById;
    for (const ErgTable2Row& r : tables.table2) {
        table2Ids.insert(r.id);
        gasesByPair.insert(pairKey(r.id, r.name), r.gases);
        if (!gasesById.contains(r.id))
            gasesById.insert(r.id, r.gases);
    }
    QStringList lines;
    for (const ErgIndexRow& r : tables.index) {
        const QString key = pairKey(r.id, r.name);
        QString mark;
        if (tih.contains(key)) {
            // Name the gases only where the guidebook does: Table 2 by name,
            // or by ID for a material listed for spills in water.
            QStringList gases = gasesByPair.value(key);
            if (gases.isEmpty() && water.contains(key))
                gases = gasesById.value(r.id);
            mark = gases.isEmpty() ? QStringLiteral("X") : gases.join(QStringLiteral(", "));
        }
        const QString un = r.id == kDash ? QString() : r.id;
        const QString placard = shipping ? shipping->placardKey(un, !mark.isEmpty()) : QString();
        lines << QStringList{ r.name, placard, r.guide, un, mark, table2Ids.contains(r.id) ? QStringLiteral("W") : QString(), QString() }
                     .join(QLatin1Char('^'));
    }
    return lines;
}

namespace {
QString csvField(const QString& s)
{
    if (!s.contains(QLatin1Char(',')) && !s.contains(QLatin1Char('"')) && !s.contains(QLatin1Char('\n')))
        return s;
    return QLatin1Char('"') + QString(s).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}
QString csvLine(const QStringList& fields)
{
    QStringList out;
    for (const QString& f : fields)
        out << csvField(f);
    return out.join(QLatin1Char(',')) + QLatin1Char('\n');
}
QString sqlText(const QString& s) { return QLatin1Char('\'') + QString(s).replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\''); }
QString sqlValues(const QStringList& fields)
{
    QStringList out;
    for (const QString& f : fields)
        out << sqlText(f);
    return out.join(QLatin1Char(','));
}
QStringList table1Fields(const ErgTable1Row& r)
{
    const QStringList large = r.large ? r.large->values() : QStringList(6, QString());
    return QStringList{ r.id, r.guide, r.name, r.condition } + r.small.values() + large;
}
} // namespace

QString table1Csv(const ErgTables& tables)
{
    QString out = csvLine({ "id", "guide", "name", "condition", "small_isolate_m", "small_isolate_ft", "small_day_km", "small_day_mi",
                            "small_night_km", "small_night_mi", "large_isolate_m", "large_isolate_ft", "large_day_km", "large_day_mi",
                            "large_night_km", "large_night_mi" });
    for (const ErgTable1Row& r : tables.table1)
        out += csvLine(table1Fields(r));
    return out;
}

QString table2Csv(const ErgTables& tables)
{
    QString out = csvLine({ "id", "guide", "name", "tih_gases" });
    for (const ErgTable2Row& r : tables.table2)
        out += csvLine({ r.id, r.guide, r.name, r.gases.join(QLatin1Char(' ')) });
    return out;
}

QString table3Csv(const ErgTables& tables)
{
    QString out = csvLine({ "ids", "container", "isolate_m", "isolate_ft", "day_low_km", "day_low_mi", "day_moderate_km",
                            "day_moderate_mi", "day_high_km", "day_high_mi", "night_low_km", "night_low_mi", "night_moderate_km",
                            "night_moderate_mi", "night_high_km", "night_high_mi" });
    for (const ErgTable3Row& r : tables.table3)
        out += csvLine(QStringList{ r.ids.join(QLatin1Char(' ')), r.container } + r.values);
    return out;
}

QStringList isoConditions(const QList<ErgTable1Row>& rows)
{
    // The app keeps one record per ID and condition; names of one ID whose
    // figures differ would otherwise all show the last row's.
    auto figures = [](const ErgTable1Row& r) { return r.small.values() + (r.large ? r.large->values() : QStringList()); };
    QHash<QString, QStringList> first;
    QSet<QString> mixed;
    for (const ErgTable1Row& r : rows) {
        const QString key = r.id + QLatin1Char('^') + r.condition;
        const auto it = first.constFind(key);
        if (it == first.cend())
            first.insert(key, figures(r));
        else if (*it != figures(r))
            mixed.insert(key);
    }
    static const QRegularExpression zone(QStringLiteral("\\((Inhalation Hazard Zone [A-D])\\)$"), QRegularExpression::CaseInsensitiveOption);
    QStringList out;
    for (const ErgTable1Row& r : rows) {
        if (!mixed.contains(r.id + QLatin1Char('^') + r.condition)) {
            out << r.condition;
            continue;
        }
        const auto m = zone.match(r.name);
        const QString label = m.hasMatch() ? m.captured(1) : r.name;
        out << (r.condition.isEmpty() ? label : label + QStringLiteral(" - ") + r.condition);
    }
    return out;
}

QString isoDistancesSql(const ErgTables& tables)
{
    QString out = QStringLiteral("-- Table 1 of the guidebook, as imported.\n");
    const QStringList conditions = isoConditions(tables.table1);
    for (qsizetype i = 0; i < tables.table1.size(); ++i) {
        const ErgTable1Row& r = tables.table1.at(i);
        const QStringList large = r.large ? r.large->values() : QStringList(6, QString());
        out += QStringLiteral("insert into iso_distances values (%1);\n")
                   .arg(sqlValues(QStringList{ r.id, conditions.at(i) } + r.small.values() + large));
    }
    return out;
}

QString largeSpillSql(const ErgTables& tables)
{
    QString out = QStringLiteral("-- Table 3 of the guidebook, as imported: one row per ID and container.\n");
    for (const ErgTable3Row& r : tables.table3)
        for (const QString& id : r.ids)
            out += QStringLiteral("insert into large_spill_distances values (%1);\n").arg(sqlValues(QStringList{ id, r.container } + r.values));
    return out;
}

} // namespace qor::import
