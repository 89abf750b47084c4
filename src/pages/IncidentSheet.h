#pragma once
// The one-page incident sheet for one material, as PDF: identity and
// placard, the guide's headings with their first points, the isolation and
// protective distances in both unit systems, the zone figure, and where the
// figures come from. Black ink on white, so it survives a monochrome printer.
#include "ProtectiveZone.h"

#include <QDateTime>
#include <QLocale>
#include <QPageSize>
#include <QString>
#include <QStringList>

namespace qor {

class QORModel;

struct SheetOptions {
    QString preparedBy;                   // the responder's name, optional
    QDateTime made;                       // the time printed on the sheet; now when invalid
    std::optional<QPageSize::PageSizeId> pageSize;  // by locale when absent
    ZoneOptions zone;                     // the figure's spill case, wind and units
};

// A guide heading and the first point written under it (empty for a
// heading that only groups the ones below).
struct GuidePoint {
    int level = 4;  // 3 for a section, 4 for a heading inside it
    QString heading;
    QString firstPoint;
};

class IncidentSheet {
public:
    // Letter where the locale measures in US units or is one of the
    // countries that print on Letter; A4 everywhere else.
    static QPageSize::PageSizeId pageSizeForLocale(const QLocale& locale);

    // Headings (h3, h4) of a guide page with the first list item or
    // paragraph after each, as plain text.
    static QList<GuidePoint> guidePoints(const QString& html);

    // One text row per spill case: "Small spill: isolate 30 m (100 ft); ..."
    static QStringList distanceLines(const IsolationDistances& iso, const ProtectiveZone::ContainerRows& containers);

    // Writes the sheet to path in one step; false with *error naming the
    // file when it cannot be written (nothing is left behind).
    static bool write(const QString& path, QORModel& model, Material& material, const SheetOptions& options, QString* error);
    static QByteArray pdf(QORModel& model, Material& material, const SheetOptions& options);
};

} // namespace qor
