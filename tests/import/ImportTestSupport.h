#pragma once
// Shared by the importer tests: the official documents' paths, and PDFs drawn
// here for the error paths the official pages never take.
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

namespace qor::test {

inline QString officialFile(const QString& relative)
{
    return QStringLiteral(QOR_OFFICIAL_DIR "/") + relative;
}

inline QString ergPdf(const char* name)
{
    return officialFile(QStringLiteral("erg2024/") + QLatin1String(name));
}

// One line of text placed on a drawn page, at a pixel size.
struct DrawnText {
    double x, y;
    int size;
    QString text;
    bool bold = false;
};

// Pages the guidebook's size (391.5 x 549 pt), each holding its lines.
inline QByteArray drawnPdf(const QList<QList<DrawnText>>& pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(391.5, 549), QPageSize::Point));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(72);
    QPainter p(&writer);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i)
            writer.newPage();
        for (const DrawnText& t : pages.at(i)) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(t.size);
            font.setBold(t.bold);
            p.setFont(font);
            p.drawText(QPointF(t.x, t.y), t.text);
        }
    }
    p.end();
    return buffer.data();
}

} // namespace qor::test
