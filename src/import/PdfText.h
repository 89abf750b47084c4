#pragma once
// Words with their positions, and the page as drawn, from a PDF file.
// The guidebook's tables carry meaning in layout (columns, wrapped names,
// rule lines, highlighted rows), so the importers read positions, not text runs.
#include <QImage>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

namespace poppler {
class document;
}

namespace qor::import {

struct PdfWord {
    QString text;
    QRectF box;          // in points, origin top left of the page as displayed
    bool spaceAfter = false;
    // Quarter turns of the text: 0 upright, 1 reading downwards, 2 upside
    // down, 3 reading upwards (tables set sideways on the page).
    int rotation = 0;
    // The font as the PDF names it (subset prefix included) and its size in
    // points: headings, emphasis and subscripts are known only by their type.
    QString font;
    double fontSize = 0;
};

class PdfText {
public:
    PdfText();
    ~PdfText();
    PdfText(const PdfText&) = delete;
    PdfText& operator=(const PdfText&) = delete;

    // False with *error = "FILE: reason" when the file is missing, damaged or locked.
    bool open(const QString& path, QString* error);
    bool openData(const QByteArray& bytes, const QString& name, QString* error);

    QString fileName() const { return m_name; }
    int pageCount() const;
    QSizeF pageSize(int page) const;    // points, as displayed (rotation applied)
    // Words in reading order of the content stream; empty for a bad index.
    std::vector<PdfWord> words(int page) const;
    // The page rendered at `dpi` (cached for the last page asked), for
    // reading fills and rule lines that exist only as drawing.
    QImage render(int page, double dpi = 72.0) const;
    // The colour drawn at a point (points, display orientation).
    QColor colorAt(int page, QPointF point, double dpi = 72.0) const;

private:
    std::unique_ptr<poppler::document> m_doc;
    QByteArray m_data;  // keeps openData()'s bytes alive for poppler
    QString m_name;
    mutable int m_cachedPage = -1;
    mutable double m_cachedDpi = 0;
    mutable QImage m_cachedImage;
};

} // namespace qor::import
