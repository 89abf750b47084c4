#pragma once
// Imports the public hazardous-materials incident report files (the monthly
// CSV exports of the DOT 5800.1 form) into the incidents table. Needs only
// Qt Core and SQLite: the pack builder compiles this file too.
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

struct sqlite3;

namespace qor::incidents {

// One reported incident of one material, as the incidents table stores it.
struct Incident {
    QString reportNumber;
    QString unId;
    QString date;  // yyyy-MM-dd
    QString mode;  // "Highway", "Rail", ...
    // Serious incident, bulk release, evacuation, fatality, major artery,
    // marine pollutant, radioactive: the table's "Y"/"N" columns in order.
    std::array<bool, 7> flags{};
};

struct ImportReport {
    QList<Incident> incidents;  // by date, then report number and UN id
    int files = 0;
    int rows = 0;
    int mergedRows = 0;     // further rows of a report already counted
    int withoutUnId = 0;    // rows with no usable identification number
    int outsideWindow = 0;  // incidents older than the window
    QDate newest;
    QDate cutoff;           // incidents on or before this date are left out
};

// Reads the files and keeps the incidents of the last `months` months before
// the newest incident date. A report spanning several rows of one material
// counts once. On the first file not in the expected format it stops and sets
// *error to "FILE:LINE: reason"; nothing is returned then.
std::optional<ImportReport> readIncidentReports(const QStringList& paths, int months, QString* error);

// Adds the incidents to an open database whose incidents table exists.
bool insertIncidents(sqlite3* db, const QList<Incident>& incidents, QString* error);
// Writes a new incidents database; an existing file is replaced only on success.
bool writeIncidentDatabase(const QString& path, const QList<Incident>& incidents, QString* error);

} // namespace qor::incidents
