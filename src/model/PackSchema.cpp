#include "PackSchema.h"

namespace qor {

QString TableSchema::createSql() const
{
    QStringList cols;
    for (const QString& c : columns)
        cols << c + QStringLiteral(" text");
    return QStringLiteral("create table %1 (%2)").arg(name, cols.join(QStringLiteral(", ")));
}

const std::vector<DatabaseSchema>& packDatabases()
{
    static const std::vector<DatabaseSchema> dbs = {
        { QStringLiteral("hazmat_incidents.dat"),
          { { QStringLiteral("incidents"),
              { QStringLiteral("report_number"), QStringLiteral("un_id"), QStringLiteral("incident_date"),
                QStringLiteral("Mode_of_Transportation"), QStringLiteral("HMIS_Serious_Incident_Ind"),
                QStringLiteral("HMIS_Serious_Bulk_Release"), QStringLiteral("HMIS_Serious_Evacuations"),
                QStringLiteral("HMIS_Serious_Fatality"), QStringLiteral("HMIS_Serious_Major_Artery"),
                QStringLiteral("HMIS_Serious_Marine_Pollutant"), QStringLiteral("HMIS_Serious_Radioactive") } } } },
        { QStringLiteral("npg.db"),
          {
              { QStringLiteral("npg_guides"),
                { "id", "name", "cas_no", "formula", "rtec_no", "synonyms", "dot", "niosh_exp_limit", "osha_exp_limit",
                  "idlh", "conversion", "phys_desc", "mw", "bp", "mlt_frz", "sol", "vp", "ip", "rgasd", "spgr", "flp",
                  "uel", "lel", "mec", "flammability", "incomp", "meas_meth", "icsc" } },
              { QStringLiteral("unid_npgid"), { "un_number", "npgid" } },
              { QStringLiteral("cameo"), { "cameo_id", "name", "cas_no", "un_id", "description", "formula", "health_haz" } },
              { QStringLiteral("wiser_text"), { "un_id", "type", "description" } },
              { QStringLiteral("ghs"), { "cas_no", "pictograms", "hazard_statements" } },
              { QStringLiteral("nfpa"), { "un_id", "name", "health", "fire", "risk", "other" } },
              { QStringLiteral("iso_distances"),
                { "un_id", "condition", "small_isolation_m", "small_isolation_ft", "small_day_km", "small_day_mi",
                  "small_night_km", "small_night_mi", "large_isolation_m", "large_isolation_ft", "large_day_km",
                  "large_day_mi", "large_night_km", "large_night_mi" } },
              { QStringLiteral("hmt"),
                { "un_id", "name", "symbols", "class", "packing_group", "label_codes", "special_provisions",
                  "exceptions", "non_bulk", "bulk", "pass_air_rail", "cargo_air", "vessel_loc", "other", "future" } },
              { QStringLiteral("hmt_sections"), { "section_id", "title" } },
              { QStringLiteral("vessel_stowage"), { "category", "description" } },
              { QStringLiteral("dot_placards"), { "un_number", "name" } },
              { QStringLiteral("dot_classes"), { "un_number", "class_id" } },
          } },
        { QStringLiteral("cfr49.db"),
          { { QStringLiteral("cfr_text"), { "section_id", "node_id", "node_text", "section_name" } } } },
    };
    return dbs;
}

const DatabaseSchema* packDatabase(const QString& fileName)
{
    for (const auto& db : packDatabases())
        if (db.fileName == fileName)
            return &db;
    return nullptr;
}

} // namespace qor
