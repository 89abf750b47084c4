#include "ProtectiveZone.h"

#include "model/QORModel.h"
#include "model/Resources.h"

#include <QPainter>
#include <QSaveFile>
#include <QSettings>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QtMath>
#include <cmath>

namespace qor {

namespace {

constexpr double kFeet = 0.3048;
constexpr double kMile = 1609.344;

QString esc(const QString& text)
{
    return text.toHtmlEscaped();
}

// Fixed-point numbers keep the SVG text identical from run to run.
QString num(double v)
{
    QString s = QString::number(v, 'f', 1);
    return s == QLatin1String("-0.0") ? QStringLiteral("0.0") : s;
}

QString pt(QPointF p)
{
    return num(p.x()) + QLatin1Char(',') + num(p.y());
}

QString withUnit(const QString& value, const QString& unit)
{
    return QStringLiteral("%1 %2").arg(value, unit);
}

// The text of an open-ended figure says what the "+" means.
QString distanceText(const QString& value, const QString& unit)
{
    const auto v = DistanceValue::parse(value);
    if (v && v->openEnded)
        return L::tr("more than %1 %2").arg(QString(value).remove(QLatin1Char('+')), unit);
    return withUnit(value, unit);
}

const char* kWindNames[] = { QT_TRANSLATE_NOOP("QOR", "Low wind"), QT_TRANSLATE_NOOP("QOR", "Moderate wind"),
                             QT_TRANSLATE_NOOP("QOR", "High wind") };

QString windCaption(int speed, bool metric)
{
    static const char* metricRanges[] = { "< 10 km/h", "10-20 km/h", "> 20 km/h" };
    static const char* imperialRanges[] = { "< 6 mph", "6-12 mph", "> 12 mph" };
    return QStringLiteral("%1 (%2)").arg(L::tr(kWindNames[speed]),
                                         QLatin1String(metric ? metricRanges[speed] : imperialRanges[speed]));
}

// 1, 2 or 5 times a power of ten, no longer than limit.
double niceLength(double limit)
{
    if (limit <= 0)
        return 0;
    const double p = std::pow(10.0, std::floor(std::log10(limit)));
    for (double f : { 5.0, 2.0, 1.0 })
        if (f * p <= limit)
            return f * p;
    return p;
}

QString numberText(double v)
{
    return QString::number(v, 'g', 6);
}

} // namespace

std::optional<DistanceValue> DistanceValue::parse(const QString& text)
{
    static const QRegularExpression re(QStringLiteral("^\\s*(\\d+(?:\\.\\d+)?|\\.\\d+)\\s*(\\+?)\\s*$"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    return DistanceValue{ m.captured(1).toDouble(), !m.captured(2).isEmpty() };
}

QString ZoneDistances::spillText() const
{
    QString s = large ? L::tr("Large spill") : L::tr("Small spill");
    if (!container.isEmpty())
        s += QStringLiteral(", ") + container;
    if (!windText.isEmpty())
        s += QStringLiteral(", ") + windText;
    s += QStringLiteral(", ") + (night ? L::tr("night") : L::tr("day"));
    return s;
}

std::optional<ZoneGeometry> ZoneGeometry::make(const ZoneDistances& d, double windFromDeg)
{
    const auto iso = DistanceValue::parse(d.isolation);
    const auto prot = DistanceValue::parse(d.protective);
    if (!iso || !prot || iso->value <= 0 || prot->value <= 0)
        return std::nullopt;
    ZoneGeometry g;
    g.isolationRadius = iso->value * (d.metric ? 1.0 : kFeet);
    g.protectiveDistance = prot->value * (d.metric ? 1000.0 : kMile);
    g.openEnded = prot->openEnded;
    // The wind blows towards the opposite bearing; bearings run clockwise from north.
    const double to = qDegreesToRadians(windFromDeg + 180.0);
    g.downwind = QPointF(std::sin(to), std::cos(to));
    const QPointF left(-g.downwind.y(), g.downwind.x());
    const double half = g.protectiveDistance / 2;
    const QPointF far = g.downwind * g.protectiveDistance;
    g.square = { left * half, -left * half, far - left * half, far + left * half };
    return g;
}

ZonePalette ZonePalette::forTheme(bool dark)
{
    if (dark)
        return { QColor("#15191e"), QColor("#eeeeee"), QColor("#ff8a80"), QColor("#ffb74d"), QColor("#8ab4f8") };
    return { QColor("#ffffff"), QColor("#1a1a1a"), QColor("#b3261e"), QColor("#9a4f00"), QColor("#1f5fa8") };
}

ProtectiveZone::ContainerRows ProtectiveZone::containerRows(const Material& material)
{
    // The same container table the isolation screen shows.
    QORModel* model = QORModel::sharedInstance(false);
    return model ? model->largeSpillIsoDistancesForMaterial(material) : ContainerRows();
}

std::optional<ZoneDistances> ProtectiveZone::distancesFor(const IsolationDistances& iso, const ContainerRows& containers,
                                                          const ZoneOptions& o, QString* why)
{
    auto fail = [&](const QString& text) -> std::optional<ZoneDistances> {
        if (why)
            *why = text;
        return std::nullopt;
    };
    if (iso.isEmpty() && containers.isEmpty())
        return fail(L::tr("Isolation distances: not in this data pack"));
    QString key = o.condition.isEmpty() && !iso.isEmpty() ? iso.keys().first() : o.condition;
    if (!o.condition.isEmpty() && !iso.contains(key)) {
        // A word of the condition is enough ("water").
        key.clear();
        for (const QString& k : iso.keys())
            if (k.contains(o.condition, Qt::CaseInsensitive)) {
                key = k;
                break;
            }
        if (key.isEmpty())
            return fail(L::tr("No condition \"%1\" for this material").arg(o.condition));
    }
    const IsolationRecord record = iso.value(key);
    ZoneDistances d;
    d.metric = o.metric;
    d.large = o.large;
    d.night = o.night;
    const QString title = capitalized(record.value(QStringLiteral("Condition")));
    d.inWater = title.contains(QLatin1String("Water"), Qt::CaseInsensitive);
    if (key != L::tr("default"))
        d.condition = title;

    // The container table stands for the large spill of the first condition.
    const bool firstCondition = iso.isEmpty() || key == iso.keys().first();
    if (o.large && !containers.isEmpty() && firstCondition) {
        const int row = qBound(0, o.container, int(containers.count()) - 1);
        const QString name = containers.keys().at(row);
        const QStringList f = containers.value(name).split(QLatin1Char(','));
        if (f.size() < 14)
            return fail(L::tr("Container row \"%1\" is incomplete").arg(name));
        const int first = o.metric ? 0 : 1;
        const int speed = qBound(0, o.windSpeed, 2);
        d.isolation = f.at(first).trimmed();
        d.protective = f.at((o.night ? 8 : 2) + first + 2 * speed).trimmed();
        d.container = name;
        d.windText = windCaption(speed, o.metric);
        return d;
    }
    const QString spill = o.large ? QStringLiteral("Large Spill") : QStringLiteral("Small Spill");
    const QString units = o.metric ? QStringLiteral("Metric") : QStringLiteral("Imp");
    d.isolation = record.value(QStringLiteral("%1 Initial isolation distance %2").arg(spill, units));
    d.protective = record.value(QStringLiteral("%1 Protect distance %2 %3").arg(spill, o.night ? QStringLiteral("Night") : QStringLiteral("Day"), units));
    if (d.isolation.isEmpty() || d.protective.isEmpty())
        return fail(o.large ? L::tr("Large spill distances: not in this data pack") : L::tr("Small spill distances: not in this data pack"));
    if (!DistanceValue::parse(d.isolation) || !DistanceValue::parse(d.protective))
        return fail(L::tr("Distances \"%1\" and \"%2\" cannot be drawn").arg(d.isolation, d.protective));
    return d;
}

namespace {

struct Canvas {
    QString out;
    ZonePalette pal;
    void text(QPointF p, const QString& s, int size, const QColor& c, const char* anchor = "start", bool bold = false)
    {
        out += QStringLiteral("<text x=\"%1\" y=\"%2\" font-family=\"sans-serif\" font-size=\"%3\" fill=\"%4\" text-anchor=\"%5\"%6>%7</text>\n")
                   .arg(num(p.x()), num(p.y()))
                   .arg(size)
                   .arg(c.name(), QLatin1String(anchor), bold ? QStringLiteral(" font-weight=\"bold\"") : QString(), esc(s));
    }
    void line(QPointF a, QPointF b, const QColor& c, double width)
    {
        out += QStringLiteral("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\" stroke-width=\"%6\"/>\n")
                   .arg(num(a.x()), num(a.y()), num(b.x()), num(b.y()), c.name(), num(width));
    }
    void polygon(std::initializer_list<QPointF> pts, const QColor& c)
    {
        QStringList p;
        for (QPointF q : pts)
            p << pt(q);
        out += QStringLiteral("<polygon points=\"%1\" fill=\"%2\"/>\n").arg(p.join(QLatin1Char(' ')), c.name());
    }
    // An arrow from a to b with its head at b.
    void arrow(QPointF a, QPointF b, const QColor& c, double width)
    {
        const QPointF d = b - a;
        const double len = std::hypot(d.x(), d.y());
        if (len <= 0)
            return;
        const QPointF u = d / len, n(-u.y(), u.x());
        const double head = 4 * width + 4;
        line(a, b - u * head * 0.8, c, width);
        polygon({ b, b - u * head + n * head * 0.5, b - u * head - n * head * 0.5 }, c);
    }
};

} // namespace

QString ProtectiveZone::emptySvg(const QString& title, const QString& why, bool dark)
{
    Canvas cv{ {}, ZonePalette::forTheme(dark) };
    cv.out = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\" width=\"%1\" height=\"%1\" viewBox=\"0 0 %1 %1\">\n").arg(kSize);
    cv.out += QStringLiteral("<rect x=\"0\" y=\"0\" width=\"%1\" height=\"%1\" fill=\"%2\"/>\n").arg(kSize).arg(cv.pal.background.name());
    cv.text({ 20, 34 }, title, 20, cv.pal.text, "start", true);
    cv.text({ kSize / 2.0, kSize / 2.0 }, why, 18, cv.pal.text, "middle");
    cv.out += QStringLiteral("</svg>\n");
    return cv.out;
}

QString ProtectiveZone::svg(const QString& title, const ZoneDistances& d, const ZoneOptions& o)
{
    const auto geo = ZoneGeometry::make(d, o.windFromDeg);
    if (!geo)
        return emptySvg(title, L::tr("Distances \"%1\" and \"%2\" cannot be drawn").arg(d.isolation, d.protective), o.dark);
    const ZoneGeometry& g = *geo;
    Canvas cv{ {}, ZonePalette::forTheme(o.dark) };
    const ZonePalette& pal = cv.pal;
    const QString isoUnit = d.isolationUnit(), protUnit = d.protectiveUnit();

    // Fit the circle and the square into the drawing area, north up.
    const QRectF area(40, 110, kSize - 80, 380);
    double x0 = -g.isolationRadius, x1 = g.isolationRadius, y0 = -g.isolationRadius, y1 = g.isolationRadius;
    for (QPointF p : g.square) {
        x0 = std::min(x0, p.x());
        x1 = std::max(x1, p.x());
        y0 = std::min(y0, p.y());
        y1 = std::max(y1, p.y());
    }
    const double scale = std::min(area.width() / (x1 - x0), area.height() / (y1 - y0));  // px per metre
    const QPointF mid((x0 + x1) / 2, (y0 + y1) / 2);
    auto map = [&](QPointF m) { return area.center() + QPointF(m.x() - mid.x(), -(m.y() - mid.y())) * scale; };
    const QPointF spill = map({ 0, 0 });
    const QPointF downPx(g.downwind.x(), -g.downwind.y());

    cv.out = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\" width=\"%1\" height=\"%1\" viewBox=\"0 0 %1 %1\">\n").arg(kSize);
    cv.out += QStringLiteral("<rect x=\"0\" y=\"0\" width=\"%1\" height=\"%1\" fill=\"%2\"/>\n").arg(kSize).arg(pal.background.name());

    // Header: the material, the spill case and, in its own line, the condition.
    cv.text({ 20, 34 }, title, 20, pal.text, "start", true);
    cv.text({ 20, 58 }, d.spillText(), 15, pal.text);
    if (d.inWater)
        cv.text({ 20, 80 }, d.condition.contains(QLatin1String("spilled in water"), Qt::CaseInsensitive) ? d.condition : L::tr("When spilled in water: %1").arg(d.condition),
                15, pal.isolation, "start", true);
    else if (!d.condition.isEmpty())
        cv.text({ 20, 80 }, L::tr("Condition: %1").arg(d.condition), 15, pal.text, "start", true);

    // The protective-action zone. An open-ended figure fades out and has no far edge.
    const QPointF nl = map(g.square[0]), nr = map(g.square[1]), fr = map(g.square[2]), fl = map(g.square[3]);
    const QPointF farMid = (fr + fl) / 2;
    const QString prot = pal.protective.name();
    if (g.openEnded) {
        cv.out += QStringLiteral("<defs><linearGradient id=\"fade\" gradientUnits=\"userSpaceOnUse\" x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\">"
                                 "<stop offset=\"0\" stop-color=\"%5\" stop-opacity=\"0.35\"/><stop offset=\"0.6\" stop-color=\"%5\" stop-opacity=\"0.2\"/>"
                                 "<stop offset=\"1\" stop-color=\"%5\" stop-opacity=\"0\"/></linearGradient>"
                                 "<linearGradient id=\"fadeEdge\" gradientUnits=\"userSpaceOnUse\" x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\">"
                                 "<stop offset=\"0\" stop-color=\"%5\" stop-opacity=\"1\"/><stop offset=\"0.7\" stop-color=\"%5\" stop-opacity=\"0.8\"/>"
                                 "<stop offset=\"1\" stop-color=\"%5\" stop-opacity=\"0\"/></linearGradient></defs>\n")
                      .arg(num(spill.x()), num(spill.y()), num(farMid.x()), num(farMid.y()), prot);
        cv.out += QStringLiteral("<polygon id=\"zone-fill\" points=\"%1 %2 %3 %4\" fill=\"url(#fade)\" stroke=\"none\"/>\n").arg(pt(nl), pt(nr), pt(fr), pt(fl));
        // Three sides only: the far side is left open.
        cv.out += QStringLiteral("<polyline id=\"zone\" points=\"%1 %2 %3 %4\" fill=\"none\" stroke=\"url(#fadeEdge)\" stroke-width=\"2.5\" stroke-dasharray=\"9,5\"/>\n")
                      .arg(pt(fl), pt(nl), pt(nr), pt(fr));
        const QPointF beyond = farMid + downPx * 26;
        cv.arrow(farMid - downPx * 30, beyond, pal.protective, 2.5);
    } else {
        cv.out += QStringLiteral("<polygon id=\"zone\" points=\"%1 %2 %3 %4\" fill=\"%5\" fill-opacity=\"0.25\" stroke=\"%5\" stroke-width=\"2.5\" stroke-dasharray=\"9,5\"/>\n")
                      .arg(pt(nl), pt(nr), pt(fr), pt(fl), prot);
    }

    // The initial isolation circle around the spill, and the spill itself.
    const QString iso = pal.isolation.name();
    cv.out += QStringLiteral("<circle id=\"isolation\" cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\" fill-opacity=\"0.2\" stroke=\"%4\" stroke-width=\"2.5\"/>\n")
                  .arg(num(spill.x()), num(spill.y()), num(g.isolationRadius * scale), iso);
    cv.out += QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"4\" fill=\"%3\"/>\n").arg(num(spill.x()), num(spill.y()), pal.text.name());

    // The figures on the drawing: the zone's length along its axis, the
    // isolation distance on the upwind side, where the zone is not.
    const QPointF zoneLabel = spill + downPx * std::max(g.protectiveDistance * scale * 0.55, g.isolationRadius * scale + 40);
    cv.text(zoneLabel + QPointF(0, 5), distanceText(d.protective, protUnit), 16, pal.text, "middle", true);
    // Far enough out that the text (about 9 px a character) clears the circle whichever way it points.
    const QString isoText = withUnit(d.isolation, isoUnit);
    const double along = std::abs(downPx.x()) * isoText.size() * 4.7 + std::abs(downPx.y()) * 9;
    const QPointF isoLabel = spill - downPx * (g.isolationRadius * scale + 10 + along);
    cv.text(isoLabel + QPointF(0, 5), isoText, 15, pal.text, "middle", true);

    // North arrow, top right; wind, top left (an arrow blowing the way the wind goes).
    const QPointF north(kSize - 40, 150);
    cv.arrow(north + QPointF(0, 26), north - QPointF(0, 20), pal.text, 2.5);
    cv.text(north + QPointF(0, 46), QStringLiteral("N"), 16, pal.text, "middle", true);
    const QPointF windCentre(80, 150);
    cv.arrow(windCentre - downPx * 24, windCentre + downPx * 24, pal.wind, 3);
    cv.text(windCentre + QPointF(0, 48), L::tr("Wind from %1\u00b0").arg(qRound(std::fmod(std::fmod(o.windFromDeg, 360) + 360, 360))), 13, pal.wind, "middle", true);

    // Legend with the two distances in words.
    double y = 530;
    cv.out += QStringLiteral("<circle cx=\"30\" cy=\"%1\" r=\"8\" fill=\"%2\" fill-opacity=\"0.2\" stroke=\"%2\" stroke-width=\"2.5\"/>\n").arg(num(y - 5), iso);
    cv.text({ 48, y }, L::tr("Isolate %1 in all directions").arg(withUnit(d.isolation, isoUnit)), 15, pal.text);
    y += 26;
    cv.out += QStringLiteral("<rect x=\"22\" y=\"%1\" width=\"16\" height=\"16\" fill=\"%2\" fill-opacity=\"0.25\" stroke=\"%2\" stroke-width=\"2.5\" stroke-dasharray=\"4,2\"/>\n").arg(num(y - 13), prot);
    cv.text({ 48, y }, L::tr("Protect persons downwind for %1 (%2)").arg(distanceText(d.protective, protUnit), d.night ? L::tr("night") : L::tr("day")), 15, pal.text);
    if (g.openEnded) {
        y += 22;
        cv.text({ 48, y }, L::tr("The zone may reach further: it is not closed on the far side."), 13, pal.text);
    }

    // Scale bar in the chosen units, at most a third of the drawing wide.
    const bool bigUnit = g.protectiveDistance >= (d.metric ? 1000.0 : kMile);
    const double unitMetres = d.metric ? (bigUnit ? 1000.0 : 1.0) : (bigUnit ? kMile : kFeet);
    const QString unit = d.metric ? (bigUnit ? QStringLiteral("km") : QStringLiteral("m")) : (bigUnit ? QStringLiteral("mi") : QStringLiteral("ft"));
    const double len = niceLength(area.width() / 3 / scale / unitMetres);
    const double px = len * unitMetres * scale;
    const QPointF s0(24, kSize - 28), s1 = s0 + QPointF(px, 0);
    cv.out += QStringLiteral("<line id=\"scalebar\" x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\" stroke-width=\"3\"/>\n")
                  .arg(num(s0.x()), num(s0.y()), num(s1.x()), num(s1.y()), pal.text.name());
    cv.line(s0 - QPointF(0, 6), s0 + QPointF(0, 6), pal.text, 2);
    cv.line(s1 - QPointF(0, 6), s1 + QPointF(0, 6), pal.text, 2);
    cv.text(s0 + QPointF(0, -10), QStringLiteral("0"), 13, pal.text, "middle");
    cv.text(s1 + QPointF(0, -10), withUnit(numberText(len), unit), 13, pal.text, "middle");
    cv.text({ kSize - 20.0, kSize - 22.0 }, L::tr("Schematic, not a map"), 14, pal.text, "end", true);
    cv.out += QStringLiteral("</svg>\n");
    return cv.out;
}

double ProtectiveZone::savedWindFrom()
{
    return QSettings().value(QLatin1String(kSavedWindKey), 270.0).toDouble();
}

void ProtectiveZone::saveWindFrom(double degrees)
{
    QSettings().setValue(QLatin1String(kSavedWindKey), std::fmod(std::fmod(degrees, 360.0) + 360.0, 360.0));
}

bool ProtectiveZone::savedMetric()
{
    return QSettings().value(QLatin1String(kSavedUnitsKey), 0).toInt() == 1;
}

bool ProtectiveZone::writeFile(const QString& path, const QByteArray& bytes, QString* error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

QImage ProtectiveZone::render(const QString& svgText, int width)
{
    QSvgRenderer renderer(svgText.toUtf8());
    QImage image(width, width, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!renderer.isValid())
        return QImage();
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    renderer.render(&p);
    p.end();
    return image;
}

} // namespace qor
