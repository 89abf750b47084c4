#include "IncidentSheet.h"

#include "PdfImages.h"
#include "model/PackManifest.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTextDocumentFragment>

namespace qor {

namespace {

QString plain(const QString& html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

QString pair(const QString& metric, const char* metricUnit, const QString& imperial, const char* imperialUnit)
{
    return QStringLiteral("%1 %2 (%3 %4)").arg(metric, QLatin1String(metricUnit), imperial, QLatin1String(imperialUnit));
}

double textHeight(QPainter& p, double width, const QString& text, const QFont& font)
{
    p.setFont(font);
    return p.boundingRect(QRectF(0, 0, width, 10000), Qt::TextWordWrap, text).height();
}

// Draws wrapped text from y within [x, x + width]; returns the y below it,
// or -1 (drawing nothing) when it would pass bottom.
double paragraph(QPainter& p, double x, double y, double width, double bottom, const QString& text, const QFont& font)
{
    const double h = textHeight(p, width, text, font);
    if (y + h > bottom)
        return -1;
    p.drawText(QRectF(x, y, width, h), Qt::TextWordWrap, text);
    return y + h;
}

QFont sheetFont(double points, bool bold = false)
{
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setStyleHint(QFont::SansSerif);
    f.setPointSizeF(points);
    f.setBold(bold);
    return f;
}

} // namespace

QPageSize::PageSizeId IncidentSheet::pageSizeForLocale(const QLocale& locale)
{
    // Letter is the paper of North and Central America and a few others.
    switch (locale.territory()) {
    case QLocale::UnitedStates:
    case QLocale::Canada:
    case QLocale::Mexico:
    case QLocale::Philippines:
    case QLocale::Chile:
    case QLocale::Colombia:
    case QLocale::Venezuela:
    case QLocale::Guatemala:
    case QLocale::CostaRica:
    case QLocale::Panama:
    case QLocale::DominicanRepublic:
    case QLocale::PuertoRico:
        return QPageSize::Letter;
    default:
        return locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
    }
}

QList<GuidePoint> IncidentSheet::guidePoints(const QString& html)
{
    static const QRegularExpression token(QStringLiteral("<(h[34])\\b[^>]*>(.*?)</\\1\\s*>|<(li|p)\\b[^>]*>(.*?)</\\3\\s*>"),
                                          QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QList<GuidePoint> out;
    bool open = false;  // the last heading still waits for its first point
    for (auto it = token.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        if (!m.captured(1).isEmpty()) {
            const QString heading = plain(m.captured(2));
            if (heading.isEmpty())
                continue;
            out.append({ m.captured(1).endsWith(QLatin1Char('3')) ? 3 : 4, heading, QString() });
            open = true;
        } else if (open) {
            const QString text = plain(m.captured(4));
            if (!text.isEmpty()) {
                out.last().firstPoint = text;
                open = false;
            }
        }
    }
    return out;
}

QStringList IncidentSheet::distanceLines(const IsolationDistances& iso, const ProtectiveZone::ContainerRows& containers)
{
    QStringList lines;
    auto spillLine = [&](const IsolationRecord& r, const QString& spill, const QString& label) {
        auto v = [&](const char* what, const char* units) {
            return r.value(QStringLiteral("%1 %2 %3").arg(spill, QLatin1String(what), QLatin1String(units)));
        };
        if (v("Initial isolation distance", "Metric").isEmpty())
            return;
        lines << L::tr("%1: isolate %2 in all directions; protect downwind by day %3, by night %4")
                     .arg(label, pair(v("Initial isolation distance", "Metric"), "m", v("Initial isolation distance", "Imp"), "ft"),
                          pair(v("Protect distance Day", "Metric"), "km", v("Protect distance Day", "Imp"), "mi"),
                          pair(v("Protect distance Night", "Metric"), "km", v("Protect distance Night", "Imp"), "mi"));
    };
    const QStringList keys = iso.keys();
    for (qsizetype k = 0; k < keys.size(); ++k) {
        const IsolationRecord r = iso.value(keys.at(k));
        const QString condition = keys.at(k) == L::tr("default") ? QString() : capitalized(r.value(QStringLiteral("Condition"))) + QStringLiteral(", ");
        spillLine(r, QStringLiteral("Small Spill"), condition + L::tr("Small spill"));
        spillLine(r, QStringLiteral("Large Spill"), condition + L::tr("Large spill"));
    }
    static const char* winds[] = { QT_TRANSLATE_NOOP("QOR", "low wind"), QT_TRANSLATE_NOOP("QOR", "moderate wind"), QT_TRANSLATE_NOOP("QOR", "high wind") };
    for (const QString& name : containers.keys()) {
        const QStringList f = containers.value(name).split(QLatin1Char(','));
        if (f.size() < 14)
            continue;
        QStringList day, night;
        for (int i = 0; i < 3; ++i) {
            day << QStringLiteral("%1 %2").arg(L::tr(winds[i]), pair(f.at(2 + 2 * i), "km", f.at(3 + 2 * i), "mi"));
            night << QStringLiteral("%1 %2").arg(L::tr(winds[i]), pair(f.at(8 + 2 * i), "km", f.at(9 + 2 * i), "mi"));
        }
        lines << L::tr("Large spill, %1: isolate %2; by day %3; by night %4")
                     .arg(name, pair(f.at(0), "m", f.at(1), "ft"), day.join(QStringLiteral(", ")), night.join(QStringLiteral(", ")));
    }
    return lines;
}

QByteArray IncidentSheet::pdf(QORModel& model, Material& material, const SheetOptions& options)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(72);  // painter units are points
        writer.setPageSize(QPageSize(options.pageSize.value_or(pageSizeForLocale(QLocale()))));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setTitle(QStringLiteral("UN%1 %2").arg(material.unId, material.name));
        writer.setCreator(QStringLiteral("QOR"));
        QPainter p(&writer);
        const QRectF page(0, 0, writer.width(), writer.height());
        const double m = 36, right = page.width() - m, width = right - m;
        p.setPen(Qt::black);

        // Identity: placard, name, UN id, class and guide.
        const QImage placard = ImageCreations::imageWithPDFNamedAtWidth(placardImageForMaterial(model, material), 64);
        if (!placard.isNull())
            p.drawImage(QRectF(m, m, 64, 64 * placard.height() / std::max(1, placard.width())), placard);
        const double tx = m + 76;
        double y = m - 2;
        y = paragraph(p, tx, y, right - tx, page.height(), material.name, sheetFont(17, true));
        const GuidePtr guide = model.dotGuideForMaterial(&material);
        const QString guideText = guide ? QStringLiteral("%1 %2: %3").arg(L::tr("Guide"), guide->guideId, guide->name) : L::tr("Guide: not in this data pack");
        const QString cls = model.classForMaterial(material);
        y = paragraph(p, tx, y + 2, right - tx, page.height(),
                      QStringLiteral("UN %1    %2 %3    %4").arg(material.unId, L::tr("Class"), cls.isEmpty() ? L::tr("not in this data pack") : cls, guideText),
                      sheetFont(10.5, true));
        // With its UTC offset, so a sheet handed on says unambiguously when it was made.
        const QDateTime when = options.made.isValid() ? options.made : QDateTime::currentDateTime();
        const QString made = when.toOffsetFromUtc(when.offsetFromUtc()).toString(Qt::ISODate);
        QString by = L::tr("Sheet made %1").arg(made);
        if (!options.preparedBy.isEmpty())
            by += QStringLiteral("    ") + L::tr("Prepared by: %1").arg(options.preparedBy);
        y = paragraph(p, tx, y + 2, right - tx, page.height(), by, sheetFont(9));
        const auto manifest = PackManifest::read(Resources::dir());
        if (!manifest || manifest->sample)
            y = paragraph(p, tx, y + 2, right - tx, page.height(), PackManifest::sampleNotice(), sheetFont(9, true));
        y = std::max(y, m + 72.0) + 6;
        p.setPen(QPen(Qt::black, 1));
        p.drawLine(QPointF(m, y), QPointF(right, y));
        y += 6;

        // Footer first, so the columns know where to stop.
        QStringList footer;
        if (manifest) {
            footer << L::tr("Data pack: %1 (built %2)").arg(manifest->edition, manifest->buildDate);
            for (const QString& s : manifest->sources)
                footer << L::tr("Source: %1").arg(s);
        } else {
            footer << L::tr("Data pack: not identified (no pack.json)");
        }
        footer << L::tr("The zone figure is schematic, not a map. Check the guide and the current situation.");
        const QFont footFont = sheetFont(7);
        p.setFont(footFont);
        double footHeight = 8;
        for (const QString& line : footer)
            footHeight += p.boundingRect(QRectF(0, 0, width, 1000), Qt::TextWordWrap, line).height();
        const double bottom = page.height() - m - footHeight;
        double fy = bottom + 8;
        p.drawLine(QPointF(m, bottom + 3), QPointF(right, bottom + 3));
        for (const QString& line : footer)
            fy = paragraph(p, m, fy, width, page.height(), line, footFont);

        // Distances, both unit systems, every spill case and container.
        const IsolationDistances& iso = model.isolationDistancesForMaterial(material);
        const ProtectiveZone::ContainerRows containers = ProtectiveZone::containerRows(material);
        y = paragraph(p, m, y, width, bottom, L::tr("ISOLATION AND PROTECTIVE ACTION DISTANCES"), sheetFont(10, true));
        QStringList lines = distanceLines(iso, containers);
        if (lines.isEmpty())
            lines << L::tr("Isolation distances: not in this data pack");
        for (const QString& line : lines) {
            const double next = paragraph(p, m + 6, y + 1, width - 6, bottom, QStringLiteral("\u2022 ") + line, sheetFont(8.5));
            if (next < 0)
                break;
            y = next;
        }
        y += 8;

        // Right: the zone figure; left: the guide's headings and first points.
        const double figure = 260, fx = right - figure, columnRight = fx - 14;
        QString why;
        const auto d = ProtectiveZone::distancesFor(iso, containers, options.zone, &why);
        ZoneOptions light = options.zone;
        light.dark = false;
        const QString title = QStringLiteral("UN%1 %2").arg(material.unId, material.name);
        QSvgRenderer svg(d ? ProtectiveZone::svg(title, *d, light).toUtf8() : ProtectiveZone::emptySvg(title, why, false).toUtf8());
        if (y + figure <= bottom)
            svg.render(&p, QRectF(fx, y, figure, figure));
        p.setPen(QPen(Qt::black, 0.5));
        p.drawRect(QRectF(fx, y, figure, figure));

        double gy = paragraph(p, m, y, columnRight - m, bottom,
                              guide ? L::tr("GUIDE %1 (first points; read the whole guide)").arg(guide->guideId) : L::tr("GUIDE: not in this data pack"),
                              sheetFont(10, true));
        const QString guidePath = guide ? Resources::path(guide->guideId, QStringLiteral("html")) : QString();
        QFile file(guidePath);
        const QList<GuidePoint> points = guide && file.open(QIODevice::ReadOnly) ? guidePoints(QString::fromUtf8(file.readAll())) : QList<GuidePoint>();
        const double reserve = 14;  // room for the continuation line
        for (const GuidePoint& gp : points) {
            const QFont headFont = sheetFont(gp.level == 3 ? 9 : 8.5, true), pointFont = sheetFont(8);
            const double top = gy + (gp.level == 3 ? 4 : 2);
            const double need = textHeight(p, columnRight - m, gp.heading, headFont)
                + (gp.firstPoint.isEmpty() ? 0 : textHeight(p, columnRight - m - 6, QStringLiteral("\u2022 ") + gp.firstPoint, pointFont));
            if (top + need > bottom - reserve) {
                paragraph(p, m, gy + 2, columnRight - m, bottom, L::tr("(continued in the guide)"), sheetFont(8, true));
                break;
            }
            gy = paragraph(p, m, top, columnRight - m, bottom, gp.heading, headFont);
            if (!gp.firstPoint.isEmpty())
                gy = paragraph(p, m + 6, gy, columnRight - m - 6, bottom, QStringLiteral("\u2022 ") + gp.firstPoint, pointFont);
        }
        p.end();
    }
    return bytes;
}

bool IncidentSheet::write(const QString& path, QORModel& model, Material& material, const SheetOptions& options, QString* error)
{
    return ProtectiveZone::writeFile(path, pdf(model, material, options), error);
}

} // namespace qor
