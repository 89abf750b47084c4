// qor-cli zone and sheet: the protective-action zone of one material as SVG
// or PNG, and the one-page incident sheet as PDF.
#include "Cli.h"
#include "MaterialJson.h"

#include "model/QORModel.h"
#include "pages/IncidentSheet.h"
#include "pages/ProtectiveZone.h"

#include <QBuffer>

namespace qor::cli {

namespace {

// Options shared with the incident sheet: spill, time of day, wind, units, condition.
bool takeZoneOptions(Context& ctx, QStringList& args, ZoneOptions* o, int* status)
{
    o->large = takeFlag(args, QStringLiteral("--large"));
    o->night = takeFlag(args, QStringLiteral("--night"));
    o->dark = takeFlag(args, QStringLiteral("--dark"));
    QString wind, units, container, speed;
    bool hasWind = false, hasUnits = false, hasContainer = false, hasSpeed = false;
    if (!takeOption(args, QStringLiteral("--wind"), &wind, &hasWind) || !takeOption(args, QStringLiteral("--units"), &units, &hasUnits)
        || !takeOption(args, QStringLiteral("--condition"), &o->condition) || !takeOption(args, QStringLiteral("--container"), &container, &hasContainer)
        || !takeOption(args, QStringLiteral("--wind-speed"), &speed, &hasSpeed)) {
        *status = ctx.usage(QStringLiteral("an option is missing its value"));
        return false;
    }
    o->windFromDeg = ProtectiveZone::savedWindFrom();
    if (hasWind) {
        bool ok = false;
        o->windFromDeg = wind.toDouble(&ok);
        if (!ok || o->windFromDeg < 0 || o->windFromDeg > 360) {
            *status = ctx.usage(QStringLiteral("--wind needs degrees from 0 to 360 (where the wind blows from), not '%1'").arg(wind));
            return false;
        }
    }
    o->metric = ProtectiveZone::savedMetric();
    if (hasUnits) {
        if (units != QLatin1String("m") && units != QLatin1String("ft")) {
            *status = ctx.usage(QStringLiteral("--units is m or ft, not '%1'").arg(units));
            return false;
        }
        o->metric = units == QLatin1String("m");
    }
    if (hasContainer) {
        bool ok = false;
        o->container = container.toInt(&ok) - 1;
        if (!ok || o->container < 0) {
            *status = ctx.usage(QStringLiteral("--container needs a row number from 1, not '%1'").arg(container));
            return false;
        }
    }
    if (hasSpeed) {
        const QStringList speeds{ QStringLiteral("low"), QStringLiteral("moderate"), QStringLiteral("high") };
        o->windSpeed = int(speeds.indexOf(speed));
        if (o->windSpeed < 0) {
            *status = ctx.usage(QStringLiteral("--wind-speed is low, moderate or high, not '%1'").arg(speed));
            return false;
        }
    }
    return true;
}

// The material named by the one argument left; null after reporting it.
MaterialPtr materialArg(Context& ctx, QORModel& model, const QString& arg)
{
    const MaterialList found = findMaterials(model, arg);
    if (found.isEmpty())
        ctx.err << "No material matches " << arg << Qt::endl;
    return found.value(0);
}

int sheetCommand(Context& ctx, QStringList args)
{
    ZoneOptions o;
    int status = 0;
    if (!takeZoneOptions(ctx, args, &o, &status))
        return status;
    SheetOptions options;
    QString out, paper;
    bool hasPaper = false;
    if (!takeOption(args, QStringLiteral("--name"), &options.preparedBy) || !takeOption(args, QStringLiteral("-o"), &out)
        || !takeOption(args, QStringLiteral("--paper"), &paper, &hasPaper))
        return ctx.usage(QStringLiteral("an option is missing its value"));
    if (args.size() != 1 || out.isEmpty())
        return ctx.usage(QStringLiteral("sheet needs one UN number or name and -o FILE.pdf"));
    if (hasPaper) {
        if (paper.compare(QLatin1String("a4"), Qt::CaseInsensitive) == 0)
            options.pageSize = QPageSize::A4;
        else if (paper.compare(QLatin1String("letter"), Qt::CaseInsensitive) == 0)
            options.pageSize = QPageSize::Letter;
        else
            return ctx.usage(QStringLiteral("--paper is a4 or letter, not '%1'").arg(paper));
    }
    options.zone = o;
    QORModel& model = loadedModel();
    const MaterialPtr m = materialArg(ctx, model, args.first());
    if (!m)
        return NothingFound;
    QString error;
    if (!IncidentSheet::write(out, model, *m, options, &error)) {
        ctx.err << error << Qt::endl;
        return UsageError;
    }
    ctx.out << out << Qt::endl;
    return Found;
}

int zoneCommand(Context& ctx, QStringList args)
{
    ZoneOptions o;
    int status = 0;
    if (!takeZoneOptions(ctx, args, &o, &status))
        return status;
    QString svgPath, pngPath, size;
    bool hasSize = false;
    if (!takeOption(args, QStringLiteral("--svg"), &svgPath) || !takeOption(args, QStringLiteral("--png"), &pngPath)
        || !takeOption(args, QStringLiteral("--size"), &size, &hasSize))
        return ctx.usage(QStringLiteral("an option is missing its value"));
    if (args.size() != 1 || (svgPath.isEmpty() && pngPath.isEmpty()))
        return ctx.usage(QStringLiteral("zone needs one UN number or name and --svg FILE or --png FILE"));
    const int width = hasSize ? size.toInt() : ProtectiveZone::kSize;
    if (width < 64 || width > 8192)
        return ctx.usage(QStringLiteral("--size is a width in pixels from 64 to 8192"));

    QORModel& model = loadedModel();
    const MaterialPtr found = materialArg(ctx, model, args.first());
    if (!found)
        return NothingFound;
    Material& m = *found;
    const QString title = QStringLiteral("UN%1 %2").arg(m.unId, m.name);
    QString why;
    const auto d = ProtectiveZone::distancesFor(model.isolationDistancesForMaterial(m), ProtectiveZone::containerRows(m), o, &why);
    const QString svg = d ? ProtectiveZone::svg(title, *d, o) : ProtectiveZone::emptySvg(title, why, o.dark);
    QString error;
    if (!svgPath.isEmpty() && !ProtectiveZone::writeFile(svgPath, svg.toUtf8(), &error)) {
        ctx.err << error << Qt::endl;
        return UsageError;
    }
    if (!pngPath.isEmpty()) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        if (!ProtectiveZone::render(svg, width).save(&buffer, "PNG") || !ProtectiveZone::writeFile(pngPath, png, &error)) {
            ctx.err << (error.isEmpty() ? pngPath + QStringLiteral(": cannot render the figure") : error) << Qt::endl;
            return UsageError;
        }
    }
    if (!d)
        ctx.err << why << Qt::endl;
    else
        ctx.out << d->spillText() << ": isolate " << d->isolation << " " << d->isolationUnit() << ", protect downwind "
                << d->protective << " " << d->protectiveUnit() << Qt::endl;
    return d ? Found : NothingFound;
}

const bool sheetRegistered = registerCommand(
    { QStringLiteral("sheet"),
      QStringLiteral("sheet ID [--name NAME] [--paper a4|letter] [zone options] -o FILE.pdf   the one-page incident sheet"), sheetCommand });

const bool registered = registerCommand(
    { QStringLiteral("zone"),
      QStringLiteral("zone ID [--large] [--night] [--wind DEG] [--units m|ft] [--condition TEXT] [--container N] "
                     "[--wind-speed low|moderate|high] [--dark] [--size PX] --svg FILE|--png FILE   the protective-action zone to scale"),
      zoneCommand });

} // namespace
} // namespace qor::cli
