// Artwork: src/art/artwork.txt names each output, the library element that
// draws it and its box; the <defs> of every src/art/*.svg form the library.
#include "PackBuilder.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace qor::packbuild {

namespace {

// Renderer warnings (an undefined link, an unknown element) would silently
// drop parts of a drawing, so they are collected and treated as errors.
QStringList* s_svgWarnings = nullptr;
QtMessageHandler s_previousHandler = nullptr;

void collectSvgWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (s_svgWarnings && context.category && QByteArray(context.category).startsWith("qt.svg")) {
        s_svgWarnings->append(message);
        return;
    }
    if (s_previousHandler)
        s_previousHandler(type, context, message);
}

struct WarningCollector {
    QStringList warnings;
    WarningCollector()
    {
        s_svgWarnings = &warnings;
        s_previousHandler = qInstallMessageHandler(collectSvgWarnings);
    }
    ~WarningCollector()
    {
        qInstallMessageHandler(s_previousHandler);
        s_svgWarnings = nullptr;
    }
};

QByteArray svgDocument(const QString& defs, const QString& element, int width, int height)
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                          "width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\"><defs>%3</defs>"
                          "<use xlink:href=\"#%4\"/></svg>")
        .arg(width).arg(height).arg(defs, element)
        .toUtf8();
}

// Qt stamps /CreationDate with the current time; the pack's build date goes
// in its place. Same width, so the cross-reference offsets stay right.
bool fixCreationDate(QByteArray* pdf, const QString& buildDate)
{
    static const QRegularExpression stamp(QStringLiteral("/CreationDate \\(D:\\d{14}Z\\)"));
    const QString text = QString::fromLatin1(*pdf);
    const auto m = stamp.match(text);
    if (!m.hasMatch() || stamp.match(text, m.capturedEnd()).hasMatch())
        return false;
    const QByteArray fixed = "/CreationDate (D:" + QString(buildDate).remove(QLatin1Char('-')).toLatin1() + "000000Z)";
    if (fixed.size() != m.capturedLength())
        return false;
    pdf->replace(m.capturedStart(), m.capturedLength(), fixed);
    return true;
}

} // namespace

bool PackBuilder::buildArtwork()
{
    const QString artDir = src(QStringLiteral("src/art"));
    QString defs;
    for (const QString& name : QDir(artDir).entryList({ QStringLiteral("*.svg") }, QDir::Files, QDir::Name)) {
        QString text;
        if (!readText(artDir + QLatin1Char('/') + name, &text))
            return false;
        const qsizetype begin = text.indexOf(QLatin1String("<defs>")), end = text.lastIndexOf(QLatin1String("</defs>"));
        if (begin < 0 || end < begin)
            return fail(artDir + QLatin1Char('/') + name, QStringLiteral("an art library file keeps its drawings in <defs>"));
        defs += text.mid(begin + 6, end - begin - 6);
    }

    QList<ListLine> list;
    if (!readList(artDir + QStringLiteral("/artwork.txt"), &list))
        return false;
    for (const auto& [where, line] : std::as_const(list)) {
        const QStringList f = line.split(QRegularExpression(QStringLiteral("\\s+")));
        const bool png = f.value(0).endsWith(QLatin1String(".png"));
        bool ok = (f.size() == 4 && f.at(0).endsWith(QLatin1String(".pdf"))) || (f.size() == 6 && png);
        int size[4] = { 0, 0, 0, 0 };
        for (int i = 2; ok && i < f.size(); ++i) {
            size[i - 2] = f.at(i).toInt(&ok);
            ok = ok && size[i - 2] > 0;
        }
        if (!ok)
            return fail(where, QStringLiteral("expected \"NAME.pdf ELEMENT W H\" or \"NAME.png ELEMENT W H PIXELS_W PIXELS_H\""));
        if (!defs.contains(QStringLiteral("id=\"%1\"").arg(f.at(1))))
            return fail(where, QStringLiteral("no element \"%1\" in the art library").arg(f.at(1)));

        WarningCollector collector;
        QSvgRenderer renderer(svgDocument(defs, f.at(1), size[0], size[1]));
        if (!renderer.isValid())
            return fail(where, QStringLiteral("the drawing does not parse"));
        QByteArray bytes;
        if (png) {
            QImage image(size[2], size[3], QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            renderer.render(&painter, QRectF(0, 0, size[2], size[3]));
            painter.end();
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            QImageWriter(&buffer, "png").write(image);
        } else {
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter writer(&buffer);
            writer.setResolution(72);  // one unit of the box is one point
            writer.setPageSize(QPageSize(QSizeF(size[0], size[1]), QPageSize::Point, QString(), QPageSize::ExactMatch));
            writer.setPageMargins(QMarginsF(0, 0, 0, 0));
            writer.setCreator(QStringLiteral("qor-packbuild"));
            writer.setTitle(f.at(0));
            QPainter painter(&writer);
            renderer.render(&painter, QRectF(0, 0, size[0], size[1]));
            painter.end();
            buffer.close();
            if (!fixCreationDate(&bytes, m_buildDate))
                return fail(where, QStringLiteral("unexpected PDF date stamp; the output would not be reproducible"));
        }
        if (!collector.warnings.isEmpty())
            return fail(where, collector.warnings.join(QStringLiteral("; ")));
        if (!writeBytes(f.at(0), bytes))
            return false;
    }
    return true;
}

} // namespace qor::packbuild
