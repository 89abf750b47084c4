#include "PackSchema.h"

#include <QSet>

namespace qor {

namespace {

// Lookups put the UN id into their SQL unquoted, so an id such as 0004 arrives
// as the integer 4. Under numeric affinity SQLite stores '0004' as 4 as well,
// and both the bare and the quoted form match; ids such as "NA1993" stay text.
// Readers that show such a column pad it again (packUnIdColumnText).
bool isUnIdColumn(const QString& table, const QString& column)
{
    static const QSet<QString> columns = { "unid_npgid.un_number", "cameo.un_id",     "wiser_text.un_id", "iso_distances.un_id",
                                           "hmt.un_id",            "dot_placards.un_number", "dot_classes.un_number" };
    return columns.contains(table + QLatin1Char('.') + column);
}

} // namespace

QString packUnIdColumnText(const QString& column)
{
    // Built by concatenation: arg() would take the "%04" of the format for a placeholder.
    return QStringLiteral("(case typeof(") + column + QStringLiteral(") when 'integer' then printf('%04d', ") + column
        + QStringLiteral(") else ") + column + QStringLiteral(" end)");
}

QString TableSchema::createSql() const
{
    QStringList cols;
    for (const QString& c : columns)
        cols << c + (isUnIdColumn(name, c) ? QStringLiteral(" numeric") : QStringLiteral(" text"));
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
                  "uel", "lel", "mec", "flammability", "incomp", "meas_meth", "icsc",
                  // The response cells, read by the protection tab.
                  "exposure_routes", "symptoms", "target_organs", "cancer_site", "personal_protection", "first_aid",
                  "respirator" } },
              { QStringLiteral("unid_npgid"), { "un_number", "npgid" } },
              { QStringLiteral("cameo"), { "cameo_id", "name", "cas_no", "un_id", "description", "formula", "health_haz" } },
              { QStringLiteral("wiser_text"), { "un_id", "type", "description" } },
              { QStringLiteral("ghs"), { "cas_no", "pictograms", "hazard_statements" } },
              { QStringLiteral("nfpa"), { "un_id", "name", "health", "fire", "risk", "other" } },
              { QStringLiteral("iso_distances"),
                { "un_id", "condition", "small_isolation_m", "small_isolation_ft", "small_day_km", "small_day_mi",
                  "small_night_km", "small_night_mi", "large_isolation_m", "large_isolation_ft", "large_day_km",
                  "large_day_mi", "large_night_km", "large_night_mi" } },
              // Large spills by transport container for the six gases of the
              // guidebook's Table 3, one row per UN number and container.
              { QStringLiteral("large_spill_distances"),
                { "un_id", "container", "isolation_m", "isolation_ft", "day_low_km", "day_low_mi", "day_moderate_km",
                  "day_moderate_mi", "day_high_km", "day_high_mi", "night_low_km", "night_low_mi", "night_moderate_km",
                  "night_moderate_mi", "night_high_km", "night_high_mi" } },
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

const QStringList& packPlacardKeys()
{
    static const QStringList keys = { "1", "1.1", "1.2", "1.3", "1.4", "1.5", "1.6", "2.1", "2.2", "2.3", "3", "4.1",
                                      "4.2", "4.3", "5.1", "5.2", "6.1", "6.1-tih", "6.1-toxic", "6.2", "7", "8", "9" };
    return keys;
}

const QStringList& packInfoPages()
{
    static const QStringList pages = { "emergency", "control", "battery", "bleve", "criminal", "howto", "intermodal",
                                       "pipelines", "clothing", "shippingdocuments", "protectiveactions", "factors",
                                       "railcar", "placards", "roadtrailer", "safetyprecautions", "whotocall", "glossary",
                                       "ied_safe_standoff_distance", "NPG", "GHS", "Isolation_Distances" };
    return pages;
}

const QStringList& packSortButtonImages()
{
    static const QStringList images = { "Sort-Alphabetically.pdf", "Sort-UnId.pdf", "Sort-Incidents.pdf", "Sort-Guide.pdf" };
    return images;
}

QString packDefaultSortImageFallback()
{
    return QStringLiteral("Sort-Alphabetically.png");
}

const QStringList& packSortImages()
{
    static const QStringList images = packSortButtonImages() + QStringList{ packDefaultSortImageFallback() };
    return images;
}

const QStringList& packGhsPictograms()
{
    static const QStringList names = { "ghs01", "ghs02", "ghs03", "ghs04", "ghs05", "ghs06", "ghs07", "ghs08", "ghs09" };
    return names;
}

const QStringList& packOtherArtwork()
{
    static const QStringList files = {
        "diamond.pdf", "newtruck.pdf", "ppe_dust_mask.pdf", "search_icon.pdf", "guidecircle.pdf", "book.pdf",
        "DownAccessoryWhite.png", "testtube.png", "placards.png", "Cloudy-Daytime-icon.png", "Cloudy-Nighttime-icon.png",
        "111.png", "112.a.png", "112.b.png", "112.c.png", "114.png", "118.png", "121.png", "122.png", "123.png", "125.png",
        "127.png", "128.png", "134.png", "136.png", "139.png", "143.png", "148.png", "153.a.png", "153.b.png", "158.png",
        "163.png", "171.png" };
    return files;
}

const DatabaseSchema* packTableDatabase(const QString& table)
{
    for (const DatabaseSchema& db : packDatabases())
        for (const TableSchema& t : db.tables)
            if (t.name == table)
                return &db;
    return nullptr;
}

const QStringList& packTextContents()
{
    static const QStringList names = { "materials", "guides", "pages", "provisions", "placards", "descriptions" };
    return names;
}

const QStringList& packOtherPages()
{
    static const QStringList pages = { "decon", "hazardclasses", "about", "about-ipad", "sendEmailBody" };
    return pages;
}

const QStringList& specialProvisionPages()
{
    static const QStringList pages = { "A", "B", "IB", "IP", "N", "W", "TP", "T", "numeric" };
    return pages;
}

QString specialProvisionPage(const QString& code)
{
    // "TP" codes must be caught before the plain "T" ones.
    if (code.startsWith(QLatin1Char('A')))
        return QStringLiteral("A");
    if (code.startsWith(QLatin1Char('B')))
        return QStringLiteral("B");
    if (code.startsWith(QLatin1String("IB")) || code.startsWith(QLatin1String("IP")))
        return code.left(2);
    if (code.startsWith(QLatin1Char('N')))
        return QStringLiteral("N");
    if (code.startsWith(QLatin1String("TP")))
        return QStringLiteral("TP");
    if (code.startsWith(QLatin1Char('T')))
        return QStringLiteral("T");
    if (code.startsWith(QLatin1Char('W')))
        return QStringLiteral("W");
    return QStringLiteral("numeric");
}

QString regulationNotInPackHtml(const QString& citation)
{
    const QString c = citation.toHtmlEscaped();
    return QStringLiteral("<div class=\"not-in-pack\"><h3>%1</h3>"
                          "<p>The text of %1 is not in this data pack.</p>"
                          "<p>To add it, download the section from the eCFR (ecfr.gov) as XML and import it into the "
                          "pack:</p><p><code>qor-cli import-ecfr FILE.xml ... --output PACK-FOLDER</code></p></div>")
        .arg(c);
}

QString chapterNotInPackHtml(const QString& title)
{
    return QStringLiteral("<h1>%1</h1>\n<div class=\"not-in-pack\"><p>This chapter is not in this data pack. The pack holds "
                          "only what its official source documents give, and none of them has this chapter.</p></div>\n")
        .arg(title.toHtmlEscaped());
}

} // namespace qor
