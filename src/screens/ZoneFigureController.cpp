#include "ZoneFigureController.h"

#include "history/UserPaths.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/IncidentSheet.h"

#include <QBuffer>
#include <QDir>
#include <QtMath>
#include <cmath>

namespace qor {

ZoneFigureController::ZoneFigureController(QObject* parent) : QObject(parent)
{
    m_options.windFromDeg = ProtectiveZone::savedWindFrom();
    m_options.metric = ProtectiveZone::savedMetric();
}

void ZoneFigureController::setMaterial(const MaterialRef& material)
{
    m_material = material;
    m_condition = 0;
    m_options.container = 0;
    refresh();
}

void ZoneFigureController::setLarge(bool v)
{
    m_options.large = v;
    refresh();
}

void ZoneFigureController::setNight(bool v)
{
    m_options.night = v;
    refresh();
}

void ZoneFigureController::setDark(bool v)
{
    if (v == m_options.dark)
        return;
    m_options.dark = v;
    refresh();
}

void ZoneFigureController::setWindFrom(double degrees)
{
    const double d = std::fmod(std::fmod(degrees, 360.0) + 360.0, 360.0);
    ProtectiveZone::saveWindFrom(d);
    m_options.windFromDeg = d;
    refresh();
}

void ZoneFigureController::dragNeedleTo(double dx, double dy)
{
    if (dx == 0 && dy == 0)
        return;
    // Bearing clockwise from north (up), rounded to whole degrees.
    setWindFrom(std::round(qRadiansToDegrees(std::atan2(dx, -dy))));
}

void ZoneFigureController::setCondition(int index)
{
    m_condition = qBound(0, index, std::max(0, int(m_conditions.size()) - 1));
    refresh();
}

void ZoneFigureController::setContainer(int index)
{
    m_options.container = qBound(0, index, std::max(0, int(m_containers.count()) - 1));
    refresh();
}

QStringList ZoneFigureController::windSpeeds()
{
    return { L::tr("Low wind"), L::tr("Moderate wind"), L::tr("High wind") };
}

void ZoneFigureController::setWindSpeed(int speed)
{
    m_options.windSpeed = qBound(0, speed, 2);
    refresh();
}

bool ZoneFigureController::usesContainers() const
{
    return m_options.large && !m_containers.isEmpty() && m_condition == 0;
}

void ZoneFigureController::setPixelSize(int px)
{
    px = qBound(64, px, 4096);
    if (px == m_pixelSize)
        return;
    m_pixelSize = px;
    m_imageCache.clear();
    emit changed();
}

void ZoneFigureController::refresh()
{
    m_options.metric = ProtectiveZone::savedMetric();
    m_distances.reset();
    m_message.clear();
    m_conditions.clear();
    m_containers = {};
    m_imageCache.clear();
    if (m_material.ptr) {
        const IsolationDistances& iso = QORModel::sharedInstance()->isolationDistancesForMaterial(*m_material.ptr);
        for (const QString& key : iso.keys())
            m_conditions << capitalized(iso.value(key).value(QStringLiteral("Condition")));
        m_containers = ProtectiveZone::containerRows(*m_material.ptr);
        m_options.condition = iso.keys().value(m_condition);
        m_distances = ProtectiveZone::distancesFor(iso, m_containers, m_options, &m_message);
    }
    emit changed();
}

QString ZoneFigureController::summary() const
{
    if (!m_distances)
        return m_message;
    const ZoneDistances& d = *m_distances;
    return L::tr("%1: isolate %2 %3 in all directions, protect downwind %4 %5; wind from %6\u00b0")
        .arg(d.spillText(), d.isolation, d.isolationUnit(), d.protective, d.protectiveUnit())
        .arg(qRound(m_options.windFromDeg));
}

QString ZoneFigureController::svg() const
{
    if (!m_material.ptr)
        return QString();
    const QString title = QStringLiteral("UN%1 %2").arg(m_material.unId(), m_material.name());
    return m_distances ? ProtectiveZone::svg(title, *m_distances, m_options) : ProtectiveZone::emptySvg(title, m_message, m_options.dark);
}

QString ZoneFigureController::imageSource() const
{
    if (!m_material.ptr)
        return QString();
    if (m_imageCache.isEmpty()) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        ProtectiveZone::render(svg(), m_pixelSize).save(&buffer, "PNG");
        m_imageCache = QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
    }
    return m_imageCache;
}

bool ZoneFigureController::saveSheet(const QString& preparedBy, const QString& dir)
{
    if (!m_material.ptr)
        return false;
    const QString folder = dir.isEmpty() ? UserPaths::documentsDir() : dir;
    QString error;
    bool ok = UserPaths::ensureDir(folder);
    const QString path = QDir(folder).filePath(QStringLiteral("UN%1-incident-sheet.pdf").arg(m_material.unId()));
    if (ok) {
        SheetOptions options;
        options.preparedBy = preparedBy;
        options.zone = m_options;
        ok = IncidentSheet::write(path, *QORModel::sharedInstance(), *m_material.ptr, options, &error);
    } else {
        error = L::tr("%1: cannot create the folder").arg(folder);
    }
    m_sheetPath = ok ? path : QString();
    m_sheetStatus = ok ? L::tr("Saved to %1").arg(path) : error;
    emit sheetStatusChanged();
    return ok;
}

} // namespace qor
