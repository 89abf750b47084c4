#pragma once
// The protective-action zone drawn to scale: a circle of the initial
// isolation distance around the spill and, downwind, a square whose length
// and width are the protective distance, starting at the spill and centred
// on the wind axis. The figures are the stored texts the isolation tables
// show, so figure and table can never disagree. Schematic only: north is up,
// nothing is placed on a map.
#include "model/Material.h"
#include "model/OrderedMap.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QString>
#include <array>
#include <functional>
#include <optional>

namespace qor {

// What the user chose for the figure.
struct ZoneOptions {
    enum WindSpeed { LowWind = 0, ModerateWind = 1, HighWind = 2 };
    bool large = false;
    bool night = false;
    bool metric = true;        // m and km, else ft and mi
    double windFromDeg = 270;  // where the wind blows from, clockwise from north
    QString condition;         // a key of the isolation map; empty: the first
    int container = 0;         // row of the container table (large spills of the six gases)
    int windSpeed = LowWind;   // column of the container table
    bool dark = false;
};

// The two figures of one spill case, as stored, in one unit system.
struct ZoneDistances {
    QString isolation;   // e.g. "100" (m or ft)
    QString protective;  // e.g. "0.3", "11+" (km or mi)
    bool metric = true;
    QString condition;   // the condition's title; empty for the ordinary case
    bool inWater = false;
    QString container;   // the container row used, if any
    QString windText;    // the wind-speed caption for a container row
    QString spillText() const;  // "Small spill, day" and the like
    bool large = false;
    bool night = false;

    QString isolationUnit() const { return metric ? QStringLiteral("m") : QStringLiteral("ft"); }
    QString protectiveUnit() const { return metric ? QStringLiteral("km") : QStringLiteral("mi"); }
};

// A stored distance text read as a number: "11+" is 11 and open-ended.
struct DistanceValue {
    double value = 0;
    bool openEnded = false;
    static std::optional<DistanceValue> parse(const QString& text);
};

// Plane coordinates in metres: x east, y north, the spill at the origin.
struct ZoneGeometry {
    double isolationRadius = 0;     // metres
    double protectiveDistance = 0;  // metres: the square's length and width
    bool openEnded = false;         // the protective figure is a lower bound ("11+")
    QPointF downwind;               // unit vector the wind blows towards
    // near-left, near-right, far-right, far-left (left and right seen looking downwind)
    std::array<QPointF, 4> square;
    QPointF zoneCentre() const { return (square[0] + square[2]) / 2; }

    static std::optional<ZoneGeometry> make(const ZoneDistances& d, double windFromDeg);
};

// Colours of the figure; each ink meets 4.5:1 against its background.
struct ZonePalette {
    QColor background, text, isolation, protective, wind;
    static ZonePalette forTheme(bool dark);
};

class ProtectiveZone {
public:
    // Container name -> fourteen comma-separated figures (isolate m, ft, then
    // day and night downwind km, mi for low, moderate and high wind).
    using ContainerRows = OrderedMap<QString>;

    // The model's large-spill container table of the material; empty when
    // there is no model yet.
    static ContainerRows containerRows(const Material& material);

    // Picks the figures for the options from the isolation map (and the
    // container rows when the spill is large and the material has them).
    // nullopt with *why set when the pack holds no such figures.
    static std::optional<ZoneDistances> distancesFor(const IsolationDistances& iso, const ContainerRows& containers,
                                                     const ZoneOptions& options, QString* why = nullptr);

    // The figure as SVG (deterministic text); title names the material.
    static QString svg(const QString& title, const ZoneDistances& d, const ZoneOptions& options);
    // The message figure for a material without figures: no shape, only words.
    static QString emptySvg(const QString& title, const QString& why, bool dark);
    // The SVG rendered at width x width pixels.
    static QImage render(const QString& svg, int width);

    static constexpr int kSize = 640;  // SVG canvas, square

    // The wind direction is remembered like the units of the tables.
    static constexpr const char* kSavedWindKey = "savedWindFrom";
    static constexpr const char* kSavedUnitsKey = "savedUnits";  // 1 metric, else imperial
    static double savedWindFrom();
    static void saveWindFrom(double degrees);
    static bool savedMetric();

    // Writes text or an image to path in one step (nothing partial is left);
    // false with *error naming the file.
    static bool writeFile(const QString& path, const QByteArray& bytes, QString* error);
};

} // namespace qor
