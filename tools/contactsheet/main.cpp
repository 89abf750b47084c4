// qor-contactsheet PACK_DIR OUT.png: draws the pack's placards, pictograms and
// icons the way the app does (QtPdf rendering the PDF resources) onto one
// labelled sheet, so a person can check the artwork at a glance.
#include "model/PackSchema.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfDocument>
#include <QTextStream>

namespace {

struct Section {
    QString title;
    QStringList names;  // PDF resources without ".pdf"
    QColor background;  // cell colour; icons are white and need a dark one
};

constexpr int kCell = 150, kArt = 110, kColumns = 8, kTitle = 34, kMargin = 16;

// PDF resource names without their ".pdf".
QStringList pdfNames(const QStringList& files)
{
    QStringList names;
    for (const QString& file : files)
        if (file.endsWith(QLatin1String(".pdf")))
            names << file.chopped(4);
    return names;
}

QImage renderPdf(const QString& path, int box)
{
    QPdfDocument doc;
    if (doc.load(path) != QPdfDocument::Error::None || doc.pageCount() < 1)
        return QImage();
    const QSizeF page = doc.pagePointSize(0);
    const qreal scale = box / std::max(page.width(), page.height());
    return doc.render(0, (page * scale).toSize());
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        err << "usage: qor-contactsheet PACK_DIR OUT.png" << Qt::endl;
        return 2;
    }
    const QDir pack(args.at(1));
    const QList<Section> sections = {
        { QStringLiteral("Placards (the key is the file name; \"blank\" shows placard 9)"),
          qor::packPlacardKeys() + QStringList{ QStringLiteral("blank") }, Qt::white },
        { QStringLiteral("GHS pictograms"), qor::packGhsPictograms(), Qt::white },
        { QStringLiteral("Sort buttons and icons"), pdfNames(qor::packSortButtonImages() + qor::packOtherArtwork()),
          QColor(0x2c, 0x3e, 0x50) },
    };
    int height = kMargin;
    for (const Section& s : sections)
        height += kTitle + int((s.names.size() + kColumns - 1) / kColumns) * kCell;
    QImage sheet(kColumns * kCell + 2 * kMargin, height + kMargin, QImage::Format_ARGB32);
    sheet.fill(QColor(0xee, 0xee, 0xee));
    QPainter p(&sheet);
    p.setRenderHint(QPainter::Antialiasing);
    int y = kMargin;
    int missing = 0;
    for (const Section& s : sections) {
        p.setPen(Qt::black);
        p.setFont(QFont(QStringLiteral("DejaVu Sans"), 14, QFont::Bold));
        p.drawText(QRect(kMargin, y, kColumns * kCell, kTitle), Qt::AlignLeft | Qt::AlignVCenter, s.title);
        y += kTitle;
        for (qsizetype i = 0; i < s.names.size(); ++i) {
            const QRect cell(kMargin + int(i % kColumns) * kCell, y + int(i / kColumns) * kCell, kCell - 6, kCell - 6);
            p.fillRect(cell, s.background);
            const QString file = s.names.at(i) + QStringLiteral(".pdf");
            const QImage art = renderPdf(pack.filePath(file), kArt);
            if (art.isNull()) {
                ++missing;
                err << "qor-contactsheet: cannot render " << pack.filePath(file) << Qt::endl;
            } else {
                p.drawImage(cell.left() + (cell.width() - art.width()) / 2, cell.top() + 6 + (kArt - art.height()) / 2, art);
            }
            p.setPen(s.background == Qt::white ? Qt::black : Qt::white);
            p.setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
            p.drawText(QRect(cell.left(), cell.bottom() - 24, cell.width(), 22), Qt::AlignCenter, file);
        }
        y += int((s.names.size() + kColumns - 1) / kColumns) * kCell;
    }
    p.end();
    if (!sheet.save(args.at(2), "png")) {
        err << "qor-contactsheet: cannot write " << args.at(2) << Qt::endl;
        return 1;
    }
    return missing == 0 ? 0 : 1;
}
