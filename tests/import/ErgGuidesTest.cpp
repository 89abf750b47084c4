// The orange guides read from the official guidebook pages, checked against
// what the printed pages say, and the errors of files that are not guides.
#include "ImportTestSupport.h"

#include "import/ErgGuides.h"
#include "import/PdfText.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace qor::import {
namespace {

using Kind = GuideBlock::Kind;
using test::DrawnText;
using test::ergPdf;

// The guide section is read once for all tests.
const ErgGuides& section()
{
    static const ErgGuides guides = [] {
        PdfText pdf;
        QString error;
        ErgGuides g;
        EXPECT_TRUE(pdf.open(ergPdf("ERG_Guide_Section.pdf"), &error)) << error.toStdString();
        EXPECT_TRUE(readGuides(pdf, &g, &error)) << error.toStdString();
        return g;
    }();
    return guides;
}

const ErgGuide& guide(const char* number)
{
    const ErgGuide* g = section().find(QLatin1String(number));
    EXPECT_NE(g, nullptr) << number;
    static const ErgGuide none;
    return g ? *g : none;
}

QStringList texts(const ErgGuide& g, Kind kind)
{
    QStringList out;
    for (const GuideBlock& b : g.blocks)
        if (b.kind == kind)
            out << b.text;
    return out;
}

QStringList texts(const std::vector<GuideBlock>& blocks)
{
    QStringList out;
    for (const GuideBlock& b : blocks)
        out << b.text;
    return out;
}

// The blocks between a heading and the next heading of the same or a higher rank.
std::vector<GuideBlock> under(const ErgGuide& g, const QString& heading)
{
    std::vector<GuideBlock> out;
    bool in = false;
    for (const GuideBlock& b : g.blocks) {
        if (b.kind == Kind::Section || b.kind == Kind::Subsection) {
            if (in)
                break;
            in = b.text == heading;
            continue;
        }
        if (in)
            out.push_back(b);
    }
    return out;
}

TEST(ErgGuides, EveryGuideOfTheEditionInOrder)
{
    const ErgGuides& all = section();
    ASSERT_EQ(all.guides.size(), 64u);
    for (size_t i = 0; i < all.guides.size(); ++i)
        EXPECT_EQ(all.guides[i].number, QString::number(111 + int(i)));
    EXPECT_EQ(all.withText(), 62);
    for (const char* blank : { "121", "167" })
        EXPECT_TRUE(guide(blank).blank && guide(blank).blocks.empty()) << blank;
    // Each guide takes two pages after the four of the introduction.
    EXPECT_EQ(guide("111").page, 5);
    EXPECT_EQ(guide("174").page, 131);
}

TEST(ErgGuides, TitlesAsPrinted)
{
    EXPECT_EQ(guide("112").title, QStringLiteral("Explosives* - Division 1.1, 1.2, 1.3 or 1.5"));
    // Set on two lines of the page head.
    EXPECT_EQ(guide("136").title, QStringLiteral("Substances - Spontaneously Combustible - Toxic and/or Corrosive (Air-Reactive)"));
    EXPECT_EQ(guide("113").title, QStringLiteral("Flammable Materials (Wet/Desensitized Explosive)"));
}

TEST(ErgGuides, HeadingsOfEveryGuideInPageOrder)
{
    for (const ErgGuide& g : section().guides) {
        if (g.blank)
            continue;
        EXPECT_EQ(texts(g, Kind::Section), QStringList({ "POTENTIAL HAZARDS", "PUBLIC SAFETY", "EMERGENCY RESPONSE" })) << g.number.toStdString();
        QStringList sub = texts(g, Kind::Subsection);
        // The greater hazard comes first: fire or health, as the guide has it.
        ASSERT_EQ(sub.size(), 7) << g.number.toStdString();
        EXPECT_TRUE(sub.mid(0, 2).contains(QStringLiteral("HEALTH")) && sub.mid(0, 2).contains(QStringLiteral("FIRE OR EXPLOSION"))) << g.number.toStdString();
        EXPECT_EQ(sub.mid(2), QStringList({ "PROTECTIVE CLOTHING", "EVACUATION", "FIRE", "SPILL OR LEAK", "FIRST AID" })) << g.number.toStdString();
        EXPECT_EQ(under(g, QStringLiteral("FIRST AID")).front().text, QStringLiteral("Refer to the “General First Aid” section.")) << g.number.toStdString();
        EXPECT_EQ(under(g, QStringLiteral("EVACUATION")).front().text, QStringLiteral("Immediate precautionary measure")) << g.number.toStdString();
        for (const GuideBlock& b : g.blocks) {
            // Running heads, page numbers and the edition line are not text of the guide.
            EXPECT_FALSE(b.text.contains(QLatin1String("ERG 2024"))) << b.text.toStdString();
            EXPECT_FALSE(b.text.contains(QRegularExpression(QStringLiteral("^Page \\d+|Page \\d+$")))) << b.text.toStdString();
            EXPECT_NE(b.text, QStringLiteral("GUIDE"));
        }
    }
    EXPECT_EQ(texts(guide("111"), Kind::Subsection).first(), QStringLiteral("FIRE OR EXPLOSION"));
}

TEST(ErgGuides, BulletsVerbatimWithWrappedLinesJoined)
{
    const auto health = under(guide("125"), QStringLiteral("HEALTH"));
    ASSERT_GE(health.size(), 5u);
    EXPECT_EQ(health[0].kind, Kind::Bullet);
    EXPECT_EQ(health[0].html, QStringLiteral("<b>TOXIC and/or CORROSIVE; may be fatal if inhaled, ingested or absorbed through skin.</b>"));
    // Two lines on the page, one bullet; the bold part keeps its emphasis.
    const auto safety = under(guide("111"), QStringLiteral("PUBLIC SAFETY"));
    ASSERT_FALSE(safety.empty());
    EXPECT_EQ(safety[0].text, QStringLiteral("CALL 911. Then call emergency response telephone number on shipping paper. If shipping paper "
                                             "not available or no answer, refer to appropriate telephone number listed on the inside back cover."));
    EXPECT_TRUE(safety[0].html.startsWith(QStringLiteral("<b>CALL 911. Then call emergency response telephone number on shipping paper.</b> If")));
    // A wrapped line in capitals continues its bullet; it is no heading.
    EXPECT_EQ(under(guide("112"), QStringLiteral("FIRE OR EXPLOSION")).size(), 1u);
    // Subscripts stay in the text and are marked in the HTML.
    const auto response = under(guide("111"), QStringLiteral("FIRE"));
    ASSERT_GE(response.size(), 3u);
    EXPECT_EQ(response[0].kind, Kind::Paragraph);
    EXPECT_EQ(response[1].kind, Kind::Label);
    EXPECT_EQ(response[2].text, QStringLiteral("Dry chemical, CO2, water spray or regular foam."));
    EXPECT_EQ(response[2].html, QStringLiteral("Dry chemical, CO<sub>2</sub>, water spray or regular foam."));
    EXPECT_EQ(texts(guide("111"), Kind::Label),
              QStringList({ "Immediate precautionary measure", "Fire", "Small Fire", "Large Fire", "Fire Involving Tanks", "Small Spill", "Large Spill" }));
}

TEST(ErgGuides, ColumnsAndSharedLinesComeApart)
{
    // Guide 131 sets its small and large spill side by side.
    const QStringList spill = texts(under(guide("131"), QStringLiteral("SPILL OR LEAK")));
    const qsizetype small = spill.indexOf(QStringLiteral("Small Spill")), large = spill.indexOf(QStringLiteral("Large Spill"));
    ASSERT_GE(small, 0);
    ASSERT_EQ(large, small + 3);
    EXPECT_EQ(spill.at(small + 2), QStringLiteral("Use clean, non-sparking tools to collect absorbed material."));
    EXPECT_EQ(spill.at(large + 1), QStringLiteral("Dike far ahead of liquid spill for later disposal."));
    // Guide 163 prints two short bullets on one line.
    const QStringList safety = texts(under(guide("163"), QStringLiteral("PUBLIC SAFETY")));
    EXPECT_EQ(safety.indexOf(QStringLiteral("Keep unauthorized personnel away.")) - safety.indexOf(QStringLiteral("Stay upwind, uphill and/or upstream.")), 1);
}

TEST(ErgGuides, FootNotesKeptAsNotes)
{
    EXPECT_EQ(texts(guide("112"), Kind::Note).first(), QStringLiteral("* For information on \"Compatibility Group\" letters, refer to the Glossary section."));
    // A glyph the font draws blank inside "Some" is no blank of the text.
    EXPECT_EQ(texts(guide("173"), Kind::Note).first(), QStringLiteral("*Some substances may also be flammable, corrosive and/or oxidizing"));
}

TEST(ErgGuides, IntroductionFromEitherFile)
{
    const std::vector<GuideBlock>& intro = section().introduction;
    PdfText pdf;
    QString error;
    ASSERT_TRUE(pdf.open(ergPdf("Guide_introduction.pdf"), &error));
    std::vector<GuideBlock> alone;
    ASSERT_TRUE(readGuideIntroduction(pdf, &alone, &error)) << error.toStdString();
    EXPECT_EQ(texts(alone), texts(intro));

    QStringList titles, levels;
    for (const GuideBlock& b : intro) {
        if (b.kind == Kind::Title)
            titles << b.text;
        if (b.text.startsWith(QStringLiteral("The term “isolate”")) || b.text.startsWith(QStringLiteral("EVACUATION:"))
            || b.text.startsWith(QStringLiteral("DO NOT perform mouth-to-mouth")))
            levels << QString::number(b.level);
    }
    EXPECT_EQ(titles, QStringList({ "HOW TO USE THE ORANGE GUIDES", "GENERAL FIRST AID" }));
    EXPECT_EQ(levels, QStringList({ "2", "3", "2" }));
    // The warning set over each page is said once; the notes page is left out.
    EXPECT_EQ(std::count_if(intro.begin(), intro.end(), [](const GuideBlock& b) { return b.text.startsWith(QStringLiteral("SUGGESTED")); }), 1);
    EXPECT_EQ(intro.back().text, QStringLiteral("Note: Basic Life Support (BLS) and Advanced Life Support (ALS) should be done by trained professionals."));
}

TEST(ErgGuides, HtmlAndGuideList)
{
    const QString html = guideBodyHtml(guide("125"));
    EXPECT_TRUE(html.contains(QStringLiteral("<h4>FIRST AID</h4>\n<p><b>Refer to the “General First Aid” section.</b></p>")));
    const QString intro = introductionBodyHtml(section().introduction);
    for (const QString& page : { html, intro }) {
        EXPECT_EQ(page.count(QStringLiteral("<ul>")), page.count(QStringLiteral("</ul>")));
        EXPECT_EQ(page.count(QStringLiteral("<li>")), page.count(QStringLiteral("</li>")));
        EXPECT_EQ(page.count(QStringLiteral("<div")), page.count(QStringLiteral("</div>")));
        EXPECT_EQ(page.count(QStringLiteral("<b>")), page.count(QStringLiteral("</b>")));
    }
    // Nested items sit inside their parent item.
    EXPECT_TRUE(intro.contains(QStringLiteral("<li>If victim is not breathing:<ul>\n<li>DO NOT perform")));

    const QStringList lines = guidesCsv(section()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 62);  // less the two blank guides
    EXPECT_EQ(lines.first(), QStringLiteral("111^Mixed Load/Unidentified Cargo"));
}

// A PDF drawn here, page by page: a "GUIDE nnn" head in large type with a title, a heading and a bullet.
QByteArray drawnGuides(const QStringList& heads)
{
    QList<QList<DrawnText>> pages;
    for (const QString& head : heads) {
        QList<DrawnText> page{ { 150, 70, 9, "POTENTIAL HAZARDS", true }, { 30, 90, 9, "• Keep unauthorized personnel away." } };
        if (!head.isEmpty())
            page << DrawnText{ 30, 28, 16, "GUIDE" } << DrawnText{ 30, 46, 16, head } << DrawnText{ 92, 30, 11, "Gases - Inert" };
        pages << page;
    }
    return test::drawnPdf(pages);
}

QString readError(const QByteArray& bytes)
{
    PdfText pdf;
    QString error;
    if (!pdf.openData(bytes, QStringLiteral("drawn.pdf"), &error))
        return error;
    ErgGuides out;
    out.guides.resize(3);  // stays as it is on failure
    if (readGuides(pdf, &out, &error))
        return QStringLiteral("read %1 guides").arg(out.guides.size());
    EXPECT_EQ(out.guides.size(), 3u);
    return error;
}

TEST(ErgGuidesErrors, NameTheFileAndPage)
{
    EXPECT_EQ(readError(drawnGuides({ "111", "111", "112", "112" })), QStringLiteral("read 2 guides"));
    EXPECT_EQ(readError(drawnGuides({ "111", "111", "112" })), QStringLiteral("drawn.pdf: page 3: guide 112 has only one page"));
    EXPECT_EQ(readError(drawnGuides({ "111", "112", "112" })), QStringLiteral("drawn.pdf: page 1: guide 111 has only one page"));
    EXPECT_EQ(readError(drawnGuides({ "111", "111", "111" })), QStringLiteral("drawn.pdf: page 3: guide 111 runs over more than two pages"));
    EXPECT_EQ(readError(drawnGuides({ "111", "111", "113", "113" })), QStringLiteral("drawn.pdf: page 3: guide 113 follows guide 111; the guides between are missing"));
    EXPECT_EQ(readError(drawnGuides({ "", "" })), QStringLiteral("drawn.pdf: no \"GUIDE nnn\" page heads found"));
    EXPECT_EQ(readError(QByteArray("%PDF-1.4 not really")), QStringLiteral("drawn.pdf: not a readable PDF"));
    EXPECT_EQ(readError(QByteArray()), QStringLiteral("drawn.pdf: not a readable PDF"));

    PdfText pdf;
    QString error;
    ASSERT_TRUE(pdf.openData(drawnGuides({ "111", "111" }), QStringLiteral("drawn.pdf"), &error));
    std::vector<GuideBlock> intro;
    EXPECT_FALSE(readGuideIntroduction(pdf, &intro, &error));
    EXPECT_EQ(error, QStringLiteral("drawn.pdf: no \"HOW TO USE THE ORANGE GUIDES\" pages found"));
}

TEST(ErgGuides, TableOneIntroductionAsPrinted)
{
    PdfText pdf;
    QString error;
    ASSERT_TRUE(pdf.open(ergPdf("TIH_Table.pdf"), &error)) << error.toStdString();
    std::vector<GuideBlock> intro;
    ASSERT_TRUE(readTableIntroduction(pdf, QStringLiteral("HOW TO USE TABLE 1"), QStringLiteral("ISOLATE"), &intro, &error))
        << error.toStdString();
    ASSERT_GE(intro.size(), 10u);
    EXPECT_EQ(intro.front().text, QStringLiteral("HOW TO USE TABLE 1 – INITIAL ISOLATION AND PROTECTIVE ACTION DISTANCES"));
    const QStringList lines = texts(intro);
    // Numbered steps whole, the four bullets of step 1, nothing of Table 1 itself.
    EXPECT_EQ(std::count_if(intro.begin(), intro.end(), [](const GuideBlock& b) { return b.kind == Kind::Bullet; }), 4);
    EXPECT_TRUE(lines.filter(QStringLiteral("Ammonia")).isEmpty());
    // The figure's labels are not text; a sentence broken by the page or a note label is one block.
    EXPECT_FALSE(lines.contains(QStringLiteral("Wind Direction")) || lines.contains(QStringLiteral("Crosswind")));
    EXPECT_EQ(lines.filter(QStringLiteral("Note 3: For the instantaneous release of the entire contents of a package (e.g., as a result of terrorism, sabotage or catastrophic failure), the distances should be doubled.")).size(), 1);

    // The guide section has no such pages: an error naming the file, nothing read.
    PdfText guides;
    ASSERT_TRUE(guides.open(ergPdf("ERG_Guide_Section.pdf"), &error));
    std::vector<GuideBlock> none;
    EXPECT_FALSE(readTableIntroduction(guides, QStringLiteral("HOW TO USE TABLE 1"), QStringLiteral("ISOLATE"), &none, &error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("ERG_Guide_Section.pdf: no \"HOW TO USE TABLE 1\" pages"))) << error.toStdString();
}

} // namespace
} // namespace qor::import
