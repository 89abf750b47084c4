#include "ErgGuides.h"

#include "PdfText.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <map>

namespace qor::import {

namespace {

// Layout of the guide pages, in points. Page heads sit in the top 60 points,
// set larger than anything else on the page; page numbers and the edition
// line sit in the bottom 24.
constexpr double kHeadZone = 60;
constexpr double kHeadMinSize = 13;
constexpr double kFooterZone = 24;
// Words smaller than this (the miniature guide drawn on the introduction) are
// artwork, not text.
constexpr double kTinySize = 4.5;
// Lines in other type below this part of the page height are footnotes.
constexpr double kFootNotes = 0.85;
// A gap wider than this between two words of a line separates two columns.
constexpr double kColumnGap = 12;

const QString kIntroHeading = QStringLiteral("HOW TO USE THE ORANGE GUIDES");
const QString kBlankMark = QStringLiteral("Intentionally left blank");

// Words that draw something: some fonts carry control characters as blank glyphs.
bool isText(const PdfWord& w)
{
    return std::any_of(w.text.cbegin(), w.text.cend(), [](QChar c) { return !c.isSpace() && c.category() != QChar::Other_Control; });
}

double sizeOf(const PdfWord& w)
{
    return w.fontSize > 0 ? w.fontSize : w.box.height() * 0.86;
}

bool isBold(const PdfWord& w)
{
    return w.font.contains(QLatin1String("Bold")) || w.font.contains(QLatin1String("Demi"))
        || w.font.contains(QLatin1String("Black")) || w.font.contains(QLatin1String("Heavy"));
}

bool isItalic(const PdfWord& w)
{
    return w.font.contains(QLatin1String("Italic")) || w.font.contains(QLatin1String("Oblique"));
}

// List marks: "•" opens an item, "›" an item under it, a dash an item under that.
int markLevel(const QString& t)
{
    if (t == QStringLiteral("•"))
        return 1;
    if (t == QStringLiteral("›"))
        return 2;
    if (t == QStringLiteral("–") || t == QStringLiteral("−"))
        return 3;
    return 0;
}

struct LineWord {
    const PdfWord* word;
    bool small = false;  // sub- or superscript
    bool below = false;  // subscript
};

// Words of one line of one column, left to right.
struct Segment {
    std::vector<LineWord> words;
    double left = 0, right = 0, top = 0, bottom = 0, size = 0;
    bool columnStart = false;  // first line of a second column: never continues the text before it

    QString plain() const
    {
        QString s;
        for (const LineWord& w : words)
            s += w.word->text + (w.word->spaceAfter ? QStringLiteral(" ") : QString());
        return s.trimmed();
    }
    bool allBold() const
    {
        return std::all_of(words.begin(), words.end(), [](const LineWord& w) { return w.small || isBold(*w.word); });
    }
};

// The size with the largest count, 0 for none.
double commonest(const std::map<double, int>& sizes)
{
    const auto it = std::max_element(sizes.begin(), sizes.end(), [](auto a, auto b) { return a.second < b.second; });
    return it == sizes.end() ? 0 : it->first;
}

void measure(Segment* s)
{
    s->left = s->top = 1e9;
    s->right = s->bottom = -1e9;
    std::map<double, int> sizes;
    for (const LineWord& w : s->words) {
        s->left = std::min(s->left, w.word->box.left());
        s->right = std::max(s->right, w.word->box.right());
        if (!w.small) {
            s->top = std::min(s->top, w.word->box.top());
            s->bottom = std::max(s->bottom, w.word->box.bottom());
            ++sizes[std::round(sizeOf(*w.word) * 2) / 2];
        }
    }
    s->size = commonest(sizes);
}

// The most common type size among the words: the size of the running text.
double bodySize(const std::vector<const PdfWord*>& words)
{
    std::map<double, int> sizes;
    for (const PdfWord* w : words)
        sizes[std::round(sizeOf(*w) * 2) / 2] += int(w->text.size());
    return commonest(sizes);
}

bool headingLike(const Segment& s, double body)
{
    if (!s.allBold() || markLevel(s.words.front().word->text))
        return false;
    if (s.size >= body + 0.4)
        return true;
    const QString text = s.plain();
    int letters = 0;
    for (QChar c : text) {
        if (c.isLower())
            return false;
        letters += c.isLetter();
    }
    return letters >= 3;
}

// The lines of a page area, in reading order: lines top to bottom, and where
// a part of the page is set in two columns, the left column before the right.
std::vector<Segment> readLines(const std::vector<const PdfWord*>& words, double body, double pageWidth)
{
    std::vector<const PdfWord*> main, small;
    for (const PdfWord* w : words)
        (sizeOf(*w) >= 0.8 * body ? main : small).push_back(w);
    std::sort(main.begin(), main.end(), [](const PdfWord* a, const PdfWord* b) {
        return a->box.top() != b->box.top() ? a->box.top() < b->box.top() : a->box.left() < b->box.left();
    });
    std::vector<Segment> lines;
    for (const PdfWord* w : main) {
        if (!lines.empty() && std::abs(w->box.top() - lines.back().top) < 0.3 * sizeOf(*w)) {
            lines.back().words.push_back({ w });
            continue;
        }
        Segment s;
        s.top = w->box.top();
        s.words.push_back({ w });
        lines.push_back(s);
    }
    for (Segment& s : lines)
        measure(&s);
    // Sub- and superscripts belong to the line they sit in; anything small
    // outside every line is drawing.
    for (const PdfWord* w : small) {
        const double mid = w->box.center().y();
        for (Segment& s : lines) {
            if (mid >= s.top - 1 && mid <= s.bottom + 1 && w->box.left() >= s.left - kColumnGap && w->box.left() <= s.right + kColumnGap) {
                s.words.push_back({ w, true, w->box.top() > s.top + 0.25 * s.size });
                break;
            }
        }
    }
    // Split lines at column gaps and before a list mark inside a line.
    std::vector<std::vector<Segment>> split;
    for (Segment& line : lines) {
        std::sort(line.words.begin(), line.words.end(), [](const LineWord& a, const LineWord& b) { return a.word->box.left() < b.word->box.left(); });
        std::vector<Segment> parts(1);
        for (const LineWord& w : line.words) {
            if (!parts.back().words.empty()) {
                const double gap = w.word->box.left() - parts.back().words.back().word->box.right();
                // A list mark stays with its text however far it stands off.
                const bool afterMark = markLevel(parts.back().words.back().word->text);
                const bool mark = markLevel(w.word->text) && !afterMark;
                if ((gap > kColumnGap && !afterMark) || (mark && gap > 4))
                    parts.emplace_back();
            }
            parts.back().words.push_back(w);
        }
        for (Segment& p : parts)
            measure(&p);
        split.push_back(parts);
    }
    std::vector<Segment> out;
    for (size_t i = 0; i < split.size(); ++i) {
        const std::vector<Segment>& line = split[i];
        const bool twoColumns = line.size() >= 2 && line.back().left > 0.4 * pageWidth && line.front().left < 0.4 * pageWidth
            && !headingLike(line.front(), body);
        if (!twoColumns) {
            out.insert(out.end(), line.begin(), line.end());
            continue;
        }
        // A band set in two columns lasts while no line crosses the gutter
        // and no heading comes.
        const double gutter = line.back().left - 4;
        size_t end = i + 1;
        while (end < split.size()) {
            const auto& next = split[end];
            const bool crosses = std::any_of(next.begin(), next.end(), [&](const Segment& s) { return s.left < gutter && s.right > gutter; });
            if (crosses || headingLike(next.front(), body))
                break;
            ++end;
        }
        std::vector<Segment> right;
        for (size_t j = i; j < end; ++j)
            for (const Segment& s : split[j])
                (s.left >= gutter ? right : out).push_back(s);
        if (!right.empty())
            right.front().columnStart = true;
        out.insert(out.end(), right.begin(), right.end());
        i = end - 1;
    }
    return out;
}

// Turns lines into headings, paragraphs and list items.
class BlockBuilder {
public:
    // `textRight`: where full lines end; `footTop`: where the small print at the foot starts.
    BlockBuilder(double body, double pageWidth, double textRight, double footTop, std::vector<GuideBlock>* out)
        : m_body(body), m_width(pageWidth), m_textRight(textRight), m_footTop(footTop), m_out(out)
    {
    }
    ~BlockBuilder() { flush(); }

    void add(const Segment& s)
    {
        std::vector<LineWord> words = s.words;
        int level = 0;
        while (!words.empty() && markLevel(words.front().word->text)) {
            level = std::max(level, markLevel(words.front().word->text));
            words.erase(words.begin());
        }
        if (words.empty())
            return;
        if (level) {
            flush();
            // A dash sits one step below the item before it, whatever mark that had.
            if (level == 3)
                level = std::min(3, m_lastItemLevel + 1);
            else
                m_lastItemLevel = level;
            start(GuideBlock::Kind::Bullet, level, s.left, words, s);
            return;
        }
        // Lines that hang under open text continue it, even in capitals ("CARGO.").
        if (m_open && continues(s)) {
            m_lines.push_back(words);
            m_lastTop = s.top;
            m_lastRight = s.right;
            return;
        }
        const bool differentType = std::abs(s.size - m_body) > 0.3;
        if (differentType && s.top >= m_footTop) {
            flush();
            start(GuideBlock::Kind::Note, 0, s.left, words, s);
            return;
        }
        if (headingLike(s, m_body)) {
            const GuideBlock::Kind kind = headingKind(s);
            // A heading that wraps goes on in the same type right below.
            if (m_open && m_kind == kind && !m_lines.empty() && std::abs(m_size - s.size) < 0.3 && s.top - m_lastTop < 1.6 * s.size) {
                m_lines.push_back(words);
                m_lastTop = s.top;
                m_lastRight = s.right;
                return;
            }
            flush();
            m_lastItemLevel = 0;
            start(kind, 0, s.left, words, s);
            return;
        }
        flush();
        start(differentType ? GuideBlock::Kind::Note : GuideBlock::Kind::Paragraph, 0, s.left, words, s);
    }

    void flush()
    {
        if (!m_open)
            return;
        m_open = false;
        GuideBlock b;
        b.kind = m_kind;
        b.level = m_level;
        bool allBold = true;
        for (const auto& line : m_lines) {
            QString text, html;
            lineText(line, &text, &html, &allBold);
            join(&b.text, text);
            join(&b.html, html);
        }
        // A bold line of its own that ends no sentence heads what follows it.
        if (b.kind == GuideBlock::Kind::Paragraph && allBold && !b.text.endsWith(QLatin1Char('.')) && !b.text.endsWith(QLatin1String(".)")))
            b.kind = GuideBlock::Kind::Label;
        // Emphasis that runs on over a line break is one run; headings are bold by their tag.
        b.html.replace(QLatin1String("</b> <b>"), QLatin1String(" "));
        if (b.kind != GuideBlock::Kind::Bullet && b.kind != GuideBlock::Kind::Paragraph && b.kind != GuideBlock::Kind::Note)
            b.html.remove(QLatin1String("<b>")).remove(QLatin1String("</b>"));
        m_out->push_back(b);
    }

private:
    GuideBlock::Kind headingKind(const Segment& s) const
    {
        if (s.size >= m_body + 2)
            return GuideBlock::Kind::Title;
        const double centre = (s.left + s.right) / 2;
        return std::abs(centre - m_width / 2) < 0.08 * m_width ? GuideBlock::Kind::Section : GuideBlock::Kind::Subsection;
    }

    void start(GuideBlock::Kind kind, int level, double markX, const std::vector<LineWord>& words, const Segment& s)
    {
        m_open = true;
        m_kind = kind;
        m_level = level;
        m_markX = markX;
        m_textX = words.front().word->box.left();
        m_size = s.size;
        m_lastTop = s.top;
        m_lastRight = s.right;
        m_lines = { words };
    }

    // A line continues the open text when it hangs under it (indented past
    // its mark) or, for plain text, when it starts where the text does, the
    // line before ran to the margin and ended no sentence.
    bool continues(const Segment& s) const
    {
        using K = GuideBlock::Kind;
        if (s.columnStart || s.top - m_lastTop > 2 * s.size || std::abs(s.size - m_size) > 0.3)
            return false;
        if (m_kind != K::Bullet && m_kind != K::Paragraph && m_kind != K::Note)
            return false;
        if (s.left >= m_markX + 4 && s.left <= m_markX + 20)
            return true;
        if (m_kind == K::Note && std::abs(s.left - m_textX) <= 3)
            return true;  // foot notes are one paragraph each
        if (m_kind == K::Bullet || std::abs(s.left - m_textX) > 3 || m_lastRight < m_textRight - 40)
            return false;
        QString last, ignored;
        bool bold = true;
        lineText(m_lines.back(), &last, &ignored, &bold);
        return !last.isEmpty() && !QStringLiteral(".:!?").contains(last.back());
    }

    static void join(QString* text, const QString& line)
    {
        if (text->isEmpty()) {
            *text = line;
            return;
        }
        // A line broken after a hyphen or slash goes on without a blank ("non-" "combustible").
        const QChar last = text->back();
        const bool glued = (last == QLatin1Char('-') || last == QLatin1Char('/')) && text->size() >= 2 && text->at(text->size() - 2) != QLatin1Char(' ');
        *text += (glued ? QString() : QStringLiteral(" ")) + line;
    }

    static void lineText(const std::vector<LineWord>& words, QString* text, QString* html, bool* allBold)
    {
        QString openTags;
        auto tagsFor = [](const LineWord& w) {
            QString t;
            if (isBold(*w.word))
                t += QLatin1Char('b');
            if (isItalic(*w.word))
                t += QLatin1Char('i');
            if (w.small)
                t += w.below ? QLatin1Char('s') : QLatin1Char('p');
            return t;
        };
        auto close = [&]() {
            for (qsizetype i = openTags.size() - 1; i >= 0; --i) {
                const QChar c = openTags.at(i);
                *html += c == QLatin1Char('b') ? QStringLiteral("</b>") : c == QLatin1Char('i') ? QStringLiteral("</i>")
                    : c == QLatin1Char('s') ? QStringLiteral("</sub>") : QStringLiteral("</sup>");
            }
            openTags.clear();
        };
        for (size_t i = 0; i < words.size(); ++i) {
            const LineWord& w = words[i];
            if (!w.small)
                *allBold = *allBold && isBold(*w.word);
            const QString tags = tagsFor(w);
            if (tags != openTags) {
                close();
                for (QChar c : tags)
                    *html += c == QLatin1Char('b') ? QStringLiteral("<b>") : c == QLatin1Char('i') ? QStringLiteral("<i>")
                        : c == QLatin1Char('s') ? QStringLiteral("<sub>") : QStringLiteral("<sup>");
                openTags = tags;
            }
            const bool space = w.word->spaceAfter && i + 1 < words.size();
            *text += w.word->text + (space ? QStringLiteral(" ") : QString());
            *html += w.word->text.toHtmlEscaped();
            if (space) {
                // Blanks go outside emphasis, so that a bold run ends on its last word.
                const QString nextTags = tagsFor(words[i + 1]);
                if (nextTags != openTags)
                    close();
                *html += QLatin1Char(' ');
            }
        }
        close();
    }

    double m_body, m_width, m_textRight, m_footTop;
    std::vector<GuideBlock>* m_out;
    bool m_open = false;
    GuideBlock::Kind m_kind = GuideBlock::Kind::Paragraph;
    int m_level = 0;
    int m_lastItemLevel = 0;
    double m_markX = 0, m_textX = 0, m_size = 0, m_lastTop = 0, m_lastRight = 0;
    std::vector<std::vector<LineWord>> m_lines;
};

struct Head {
    QString number;
    QString title;
    double bottom = 0;
};

// "GUIDE" over a three-digit number, both in the large type of the page head,
// and the title set beside them.
bool readHead(const std::vector<PdfWord>& words, Head* head)
{
    static const QRegularExpression threeDigits(QStringLiteral("^\\d{3}$"));
    const PdfWord* guide = nullptr;
    const PdfWord* number = nullptr;
    for (const PdfWord& w : words)
        if (w.box.top() < kHeadZone && sizeOf(w) >= kHeadMinSize && w.text == QLatin1String("GUIDE") && !guide)
            guide = &w;
    if (!guide)
        return false;
    for (const PdfWord& w : words)
        if (w.box.top() > guide->box.top() && w.box.top() < kHeadZone && sizeOf(w) >= kHeadMinSize && threeDigits.match(w.text).hasMatch()) {
            number = &w;
            break;
        }
    if (!number)
        return false;
    head->number = number->text;
    head->bottom = std::max(guide->box.bottom(), number->box.bottom());
    std::vector<const PdfWord*> title;
    for (const PdfWord& w : words)
        if (&w != guide && &w != number && w.box.top() >= guide->box.top() - 6 && w.box.top() < number->box.bottom() && sizeOf(w) >= kTinySize
            && isText(w))
            title.push_back(&w);
    std::vector<std::vector<const PdfWord*>> lines;
    std::sort(title.begin(), title.end(), [](const PdfWord* a, const PdfWord* b) { return a->box.top() < b->box.top(); });
    for (const PdfWord* w : title) {
        if (lines.empty() || std::abs(w->box.top() - lines.back().front()->box.top()) > 3)
            lines.emplace_back();
        lines.back().push_back(w);
        head->bottom = std::max(head->bottom, w->box.bottom());
    }
    QStringList parts;
    for (auto& line : lines) {
        std::sort(line.begin(), line.end(), [](const PdfWord* a, const PdfWord* b) { return a->box.left() < b->box.left(); });
        QString s;
        for (const PdfWord* w : line)
            s += w->text + (w->spaceAfter ? QStringLiteral(" ") : QString());
        parts << s.trimmed();
    }
    head->title = parts.join(QLatin1Char(' '));
    return true;
}

QString pageError(const PdfText& pdf, int page, const QString& why)
{
    return QStringLiteral("%1: page %2: %3").arg(pdf.fileName()).arg(page + 1).arg(why);
}

// The text words of a page between its head and its foot.
std::vector<const PdfWord*> bodyWords(const std::vector<PdfWord>& words, double top, double pageHeight)
{
    std::vector<const PdfWord*> out;
    for (const PdfWord& w : words)
        if (w.box.top() >= top && w.box.top() < pageHeight - kFooterZone && sizeOf(w) >= kTinySize && isText(w))
            out.push_back(&w);
    return out;
}

// Blocks of one page area, appended to *out.
void readBlocks(const PdfText& pdf, int page, const std::vector<const PdfWord*>& words, std::vector<GuideBlock>* out)
{
    const double body = bodySize(words);
    const QSizeF size = pdf.pageSize(page);
    const std::vector<Segment> lines = readLines(words, body, size.width());
    double right = 0;
    for (const Segment& s : lines)
        right = std::max(right, s.right);
    BlockBuilder builder(body, size.width(), right, kFootNotes * size.height(), out);
    for (const Segment& s : lines)
        builder.add(s);
}

bool containsLine(const std::vector<PdfWord>& words, const QString& text)
{
    // Page text in content order, blanks normalised: enough to find a heading.
    QString all;
    for (const PdfWord& w : words)
        all += w.text + QLatin1Char(' ');
    return all.simplified().contains(text);
}

bool readIntroPages(const PdfText& pdf, const std::vector<std::vector<PdfWord>>& pages, const QString& heading, int end,
                    std::vector<GuideBlock>* out)
{
    // The introduction is the last page before `end` that bears its heading,
    // and those after it; a table of contents further back may name it too.
    int first = -1;
    for (int p = end - 1; p >= 0 && first < 0; --p)
        if (containsLine(pages[size_t(p)], heading))
            first = p;
    if (first < 0)
        return false;
    QString lastRunningHead;
    for (int p = first; p < end; ++p) {
        const double height = pdf.pageSize(p).height();
        std::vector<GuideBlock> blocks;
        readBlocks(pdf, p, bodyWords(pages[size_t(p)], 0, height), &blocks);
        // The banner that repeats at the top of each page is said once.
        if (!blocks.empty() && blocks.front().kind != GuideBlock::Kind::Paragraph) {
            const QString head = blocks.front().text;
            if (head == lastRunningHead)
                blocks.erase(blocks.begin());
            lastRunningHead = head;
        }
        // A page with a heading and nothing under it is left for notes.
        if (blocks.size() <= 1)
            continue;
        out->insert(out->end(), blocks.begin(), blocks.end());
    }
    return !out->empty();
}

std::vector<std::vector<PdfWord>> allWords(const PdfText& pdf)
{
    std::vector<std::vector<PdfWord>> pages;
    for (int p = 0; p < pdf.pageCount(); ++p)
        pages.push_back(pdf.words(p));
    return pages;
}

} // namespace

const ErgGuide* ErgGuides::find(const QString& number) const
{
    for (const ErgGuide& g : guides)
        if (g.number == number)
            return &g;
    return nullptr;
}

int ErgGuides::withText() const
{
    return int(std::count_if(guides.begin(), guides.end(), [](const ErgGuide& g) { return !g.blank; }));
}

bool readGuides(const PdfText& pdf, ErgGuides* out, QString* error)
{
    if (pdf.pageCount() <= 0) {
        *error = QStringLiteral("%1: no pages").arg(pdf.fileName());
        return false;
    }
    const auto pages = allWords(pdf);
    ErgGuides result;
    int firstGuidePage = -1;
    bool secondPageSeen = true;  // of the last guide read
    auto fail = [&](int page, const QString& why) {
        *error = pageError(pdf, page, why);
        return false;
    };
    for (int p = 0; p < int(pages.size()); ++p) {
        Head head;
        if (!readHead(pages[size_t(p)], &head))
            continue;
        if (firstGuidePage < 0)
            firstGuidePage = p;
        const std::vector<const PdfWord*> words = bodyWords(pages[size_t(p)], head.bottom + 1, pdf.pageSize(p).height());
        QString text;
        for (const PdfWord* w : words)
            text += w->text + QLatin1Char(' ');
        const bool blank = text.simplified().contains(kBlankMark, Qt::CaseInsensitive);
        ErgGuide* last = result.guides.empty() ? nullptr : &result.guides.back();
        if (last && last->number == head.number) {
            // The second page of a guide repeats the head of the first.
            if (secondPageSeen || last->page != p)
                return fail(p, QStringLiteral("guide %1 runs over more than two pages").arg(head.number));
            if (blank != last->blank || (!blank && head.title.simplified() != last->title))
                return fail(p, QStringLiteral("the head of guide %1 differs from the page before").arg(head.number));
            secondPageSeen = true;
            if (!blank)
                readBlocks(pdf, p, words, &last->blocks);
            continue;
        }
        if (!secondPageSeen)
            return fail(last->page - 1, QStringLiteral("guide %1 has only one page").arg(last->number));
        if (last && head.number.toInt() != last->number.toInt() + 1)
            return fail(p, QStringLiteral("guide %1 follows guide %2; the guides between are missing").arg(head.number, last->number));
        ErgGuide g;
        g.number = head.number;
        g.blank = blank;
        g.title = blank ? QString() : head.title.simplified();
        g.page = p + 1;
        if (!blank) {
            if (g.title.isEmpty())
                return fail(p, QStringLiteral("guide %1 has no title").arg(head.number));
            readBlocks(pdf, p, words, &g.blocks);
        }
        result.guides.push_back(g);
        secondPageSeen = false;
    }
    if (result.guides.empty()) {
        *error = QStringLiteral("%1: no \"GUIDE nnn\" page heads found").arg(pdf.fileName());
        return false;
    }
    if (!secondPageSeen)
        return fail(result.guides.back().page - 1, QStringLiteral("guide %1 has only one page").arg(result.guides.back().number));
    for (const ErgGuide& g : result.guides)
        if (!g.blank && std::none_of(g.blocks.begin(), g.blocks.end(), [](const GuideBlock& b) { return b.kind == GuideBlock::Kind::Section; }))
            return fail(g.page - 1, QStringLiteral("guide %1 has no section headings").arg(g.number));
    readIntroPages(pdf, pages, kIntroHeading, firstGuidePage, &result.introduction);
    *out = std::move(result);
    return true;
}

bool readGuideIntroduction(const PdfText& pdf, std::vector<GuideBlock>* out, QString* error)
{
    const auto pages = allWords(pdf);
    int firstGuidePage = -1;
    for (int p = 0; p < int(pages.size()) && firstGuidePage < 0; ++p) {
        Head head;
        if (readHead(pages[size_t(p)], &head))
            firstGuidePage = p;
    }
    std::vector<GuideBlock> blocks;
    if (!readIntroPages(pdf, pages, kIntroHeading, firstGuidePage < 0 ? int(pages.size()) : firstGuidePage, &blocks)) {
        *error = QStringLiteral("%1: no \"%2\" pages found").arg(pdf.fileName(), kIntroHeading);
        return false;
    }
    *out = std::move(blocks);
    return true;
}

bool readTableIntroduction(const PdfText& pdf, const QString& heading, const QString& tableMark, std::vector<GuideBlock>* out,
                           QString* error)
{
    // The introduction runs from its heading up to the first page that
    // bears the table's own column heads.
    const auto pages = allWords(pdf);
    int start = -1, end = -1;
    for (int p = 0; p < int(pages.size()) && start < 0; ++p)
        if (containsLine(pages[size_t(p)], heading))
            start = p;
    for (int p = start + 1; start >= 0 && p < int(pages.size()) && end < 0; ++p)
        if (containsLine(pages[size_t(p)], tableMark))
            end = p;
    std::vector<GuideBlock> blocks;
    if (start < 0 || end < 0 || !readIntroPages(pdf, pages, heading, end, &blocks) || !blocks.front().text.startsWith(heading)) {
        *error = QStringLiteral("%1: no \"%2\" pages before \"%3\"").arg(pdf.fileName(), heading, tableMark);
        return false;
    }
    using K = GuideBlock::Kind;
    static const QRegularExpression sentenceEnd(QStringLiteral("[.:;!?]$"));
    // The heading bar is the page's title.
    blocks.front().kind = K::Title;
    std::vector<GuideBlock> tidy{ blocks.front() };
    for (size_t i = 1; i < blocks.size(); ++i) {
        GuideBlock b = blocks[i];
        const bool ended = sentenceEnd.match(b.text).hasMatch();
        // Labels of the figures ("Wind Direction", "Spill") are artwork: short
        // lines outside lists that are no sentence.
        if (b.kind != K::Bullet && !ended && b.text.split(QLatin1Char(' ')).size() <= 4)
            continue;
        // A sentence broken by a page or a note label goes on in the next block.
        GuideBlock& last = tidy.back();
        if (b.kind == K::Paragraph && (last.kind == K::Paragraph || last.kind == K::Label) && !sentenceEnd.match(last.text).hasMatch()) {
            if (last.kind == K::Label)
                last.html = QStringLiteral("<b>%1</b>").arg(last.html);  // a label is set in bold
            last.kind = K::Paragraph;
            last.text += QLatin1Char(' ') + b.text;
            last.html += QLatin1Char(' ') + b.html;
            continue;
        }
        tidy.push_back(b);
    }
    *out = std::move(tidy);
    return true;
}

namespace {

QString anchorFor(const QString& heading)
{
    QString id = heading.toLower();
    id.replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("-"));
    return id.remove(QRegularExpression(QStringLiteral("^-|-$")));
}

QString blocksHtml(const std::vector<GuideBlock>& blocks)
{
    using K = GuideBlock::Kind;
    QString html;
    int depth = 0;  // open lists
    auto closeTo = [&](int level) {
        for (; depth > level; --depth)
            html += QStringLiteral("</li>\n</ul>\n");
    };
    bool sectionOpen = false;
    for (const GuideBlock& b : blocks) {
        if (b.kind == K::Bullet) {
            if (depth >= b.level) {
                closeTo(b.level);
                html += QStringLiteral("</li>\n");
            }
            for (; depth < b.level; ++depth)
                html += QStringLiteral("<ul>\n");
            html += QStringLiteral("<li>") + b.html;
            continue;
        }
        closeTo(0);
        // A section runs to the next section or page title.
        if (sectionOpen && (b.kind == K::Title || b.kind == K::Section)) {
            html += QStringLiteral("</div>\n");
            sectionOpen = false;
        }
        switch (b.kind) {
        case K::Title:
            html += QStringLiteral("<h1 id=\"%1\">%2</h1>\n").arg(anchorFor(b.text), b.html);
            break;
        case K::Section:
            sectionOpen = true;
            html += QStringLiteral("<div class=\"section\" id=\"%1\">\n<h3>%2</h3>\n").arg(anchorFor(b.text), b.html);
            break;
        case K::Subsection:
            html += QStringLiteral("<h4>%1</h4>\n").arg(b.html);
            break;
        case K::Label:
            html += QStringLiteral("<h5>%1</h5>\n").arg(b.html);
            break;
        case K::Note:
            html += QStringLiteral("<p class=\"note\">%1</p>\n").arg(b.html);
            break;
        default:
            html += QStringLiteral("<p>%1</p>\n").arg(b.html);
        }
    }
    closeTo(0);
    if (sectionOpen)
        html += QStringLiteral("</div>\n");
    return html;
}

} // namespace

QString guideBodyHtml(const ErgGuide& guide)
{
    return QStringLiteral("<h1 class=\"guide-number\">GUIDE %1</h1>\n<h2 class=\"guide-title\">%2</h2>\n")
               .arg(guide.number.toHtmlEscaped(), guide.title.toHtmlEscaped())
        + blocksHtml(guide.blocks);
}

QString introductionBodyHtml(const std::vector<GuideBlock>& blocks)
{
    return blocksHtml(blocks);
}

QString guidesCsv(const ErgGuides& guides)
{
    QString csv;
    for (const ErgGuide& g : guides.guides)
        if (!g.blank)
            csv += g.number + QLatin1Char('^') + g.title + QLatin1Char('\n');
    return csv;
}

} // namespace qor::import
