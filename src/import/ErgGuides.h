#pragma once
// The orange response guides of the guidebook PDF and the pages that explain
// them, read from the words' positions and type, and their HTML form.
// Guides are found by their "GUIDE nnn" page heads, never by page numbers, so
// the same reader takes the guide section alone or the whole guidebook.
#include <QString>
#include <vector>

namespace qor::import {

class PdfText;

// One heading, line of text or bullet of a page, in reading order.
struct GuideBlock {
    enum class Kind {
        Title,       // a page title ("GENERAL FIRST AID")
        Section,     // "POTENTIAL HAZARDS", "PUBLIC SAFETY", "EMERGENCY RESPONSE"
        Subsection,  // "FIRE OR EXPLOSION", "HEALTH", ... "FIRST AID"
        Label,       // a bold line that heads the bullets below it ("Small Fire")
        Paragraph,   // a line of text outside a list ("CAUTION: ...")
        Bullet,      // a list item; `level` 1 for "•", 2 and 3 for the marks under it
        Note,        // the small print at the foot of a page
    };
    Kind kind = Kind::Paragraph;
    int level = 0;
    QString text;    // as printed, wrapped lines joined
    QString html;    // the same, escaped, with bold, italics, sub- and superscripts
};

struct ErgGuide {
    QString number;      // "111"
    QString title;       // as printed, wrapped lines joined
    bool blank = false;  // "Intentionally left blank": no title, no text
    int page = 0;        // first of its two pages, from 1
    std::vector<GuideBlock> blocks;  // both pages
};

struct ErgGuides {
    std::vector<ErgGuide> guides;           // by number
    std::vector<GuideBlock> introduction;   // "how to use the orange guides" pages, when the file has them

    const ErgGuide* find(const QString& number) const;
    int withText() const;  // guides that are not blank
};

// Every guide of the file, each from its two pages, with the introduction
// pages that come before them. False with *error = "FILE: page N: reason"
// (or "FILE: reason") when the file holds no guide pages or a guide cannot be
// read; *out is then left untouched.
bool readGuides(const PdfText& pdf, ErgGuides* out, QString* error);
// Only the introduction ("HOW TO USE THE ORANGE GUIDES" up to the first guide).
bool readGuideIntroduction(const PdfText& pdf, std::vector<GuideBlock>* out, QString* error);

// The pages that explain a table: from the first page bearing `heading` up
// to the next page bearing `tableMark` (words only the table's head has);
// found by their words, never by page numbers. False with
// *error = "FILE: reason" when there are none.
bool readTableIntroduction(const PdfText& pdf, const QString& heading, const QString& tableMark, std::vector<GuideBlock>* out,
                           QString* error);

// HTML bodies for the page frame of the pack: headings and lists only, no
// styles of their own, so the app's style sheets, text size and dark
// appearance apply.
QString guideBodyHtml(const ErgGuide& guide);
QString introductionBodyHtml(const std::vector<GuideBlock>& blocks);
// "guides.csv": number^title per guide with text, by number.
QString guidesCsv(const ErgGuides& guides);

} // namespace qor::import
