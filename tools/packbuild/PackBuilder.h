#pragma once
// Turns the pack sources (resources/) into the data pack the app reads.
// Every step is deterministic: no clock, no random numbers, sorted inputs.
#include "import/EcfrImport.h"
#include "import/NpgImport.h"
#include "model/PackManifest.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

struct sqlite3;

namespace qor::packbuild {

class PackBuilder {
public:
    PackBuilder(const QString& sourceDir, const QString& outputDir);

    // Runs every step; on failure error() says "file[:line]: reason".
    bool run();
    QString error() const { return m_error; }

    // The shipping data read from the official sections (after run()). Its
    // placardKey(unId, inhalationHazard) gives the placard field of a
    // materials-file line.
    const import::ShippingData& shipping() const { return m_shipping; }

private:
    bool readPackInfo();
    bool importGuidebook();
    bool readOfficialSources();
    bool copyPlainFiles();
    bool hashSources();
    bool buildDatabases();
    // Every table declared, none with rows but no source; decides "sample".
    bool checkProvenance();
    bool buildGuidePages();
    bool buildInfoPages();
    bool buildIsolationPage();
    // "Source: ..." for a page read from the documents of a table.
    QString sourceLineHtml(const QString& table) const;
    bool buildProvisionPages();
    bool buildArtwork();
    bool writeManifest();

    // Fills {{name}} placeholders; an unknown name is an error.
    bool fillTemplate(QString* text, const QHash<QString, QString>& values, const QString& where);
    // The shared page frame around a body, with the pack's values.
    bool writePage(const QString& name, const QString& title, const QString& body, const QString& where);
    bool runSqlFile(::sqlite3* db, const QString& path);

    bool fail(const QString& where, const QString& why);
    QString src(const QString& rel) const;
    QString out(const QString& rel) const;
    bool readText(const QString& path, QString* text);
    // The lines of a list file that are neither blank nor "#" comments,
    // each with "file:line" for its error messages.
    struct ListLine {
        QString where;
        QString line;
    };
    bool readList(const QString& path, QList<ListLine>* lines);
    bool writeBytes(const QString& rel, const QByteArray& bytes);

    QString m_source;
    QString m_output;
    QString m_error;
    QString m_pageTemplate;
    QHash<QString, QString> m_packValues;  // edition, buildDate, notice
    QString m_edition;
    QString m_buildDate;
    bool m_sample = true;
    QStringList m_sources;
    QString m_isoDistancesSql;   // Table 1 rows for npg.db
    QString m_largeSpillSql;     // Table 3 rows for npg.db
    import::ShippingData m_shipping;
    import::ImportTables m_officialTables;
    bool m_declaredSample = false;
    PackManifest m_manifest;  // sources and tables as declared, then checked
};

} // namespace qor::packbuild
