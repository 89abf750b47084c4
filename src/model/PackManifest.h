#pragma once
// "pack.json": what a data pack is (edition, build date, sample or not), the
// SHA-256 of every file in it, the documents its content came from, and for
// each table or text file which of those documents it holds values of.
// Only Qt Core, so the pack builder can compile this file too.
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class QJsonObject;

namespace qor {

// One document the pack's values were read from.
struct PackSource {
    QString id;        // key used by the tables ("erg2024")
    QString title;     // full title
    QString edition;   // edition or capture date, as the document gives it
    QString citation;  // short form shown on screens ("ERG 2024")
    bool sample = false;   // content written by us, not an official document
    bool own = false;      // the app's own artwork or help text: no reference values, so not sample
    bool partial = false;  // an extract: counts drawn from it are not complete
    QString periodFrom, periodTo;  // "yyyy-MM": months a partial extract covers
    QMap<QString, QString> files;  // path in the pack sources -> SHA-256 (hex)

    // "Title, edition" for lists of sources.
    QString displayLine() const;
};

// Where one table (or text file) of the pack comes from.
struct PackTable {
    QStringList sources;  // PackSource ids; none means the table must be empty
    QString citation;     // "ERG 2024, Table 1"; empty: the sources' citations
    qint64 rows = -1;     // rows at build time; -1 when not counted (text files)
};

struct PackManifest {
    static constexpr const char* kFileName = "pack.json";

    QString edition;
    QString buildDate;  // ISO date, fixed in the pack sources
    bool sample = false;
    QStringList sources;           // display lines of sourceList, for plain listings
    QList<PackSource> sourceList;  // the documents, in declaration order
    QMap<QString, PackTable> tables;  // table or content name -> provenance
    QMap<QString, QString> files;  // relative path -> SHA-256 (hex)

    // Reads DIR/pack.json; nullopt with *error set when it is missing or malformed.
    static std::optional<PackManifest> read(const QString& dir, QString* error = nullptr);
    // Lists the pack's files and their checksums, then writes DIR/pack.json.
    bool writeWithChecksums(const QString& dir, QString* error = nullptr);

    // Reads the "sources" and "tables" members (pack.json and the builder's
    // declaration share this form); false with *error on a malformed entry.
    bool readProvenance(const QJsonObject& o, QString* error);

    const PackSource* source(const QString& id) const;
    // Short citation of a table: its own, else its sources' joined; empty
    // when the table is not listed.
    QString citation(const QString& table) const;
    // "From a partial extract of DOT 5800.1 reports, Aug 2024 to Jul 2025"
    // when a source of the table is partial; empty otherwise.
    QString partialNote(const QString& table) const;
    // Whether a table declares sample content among its sources.
    bool tableIsSample(const QString& table) const;

    // Every file of a pack, relative and sorted; pack.json itself and hidden
    // files (build stamps) are not part of it.
    static QStringList packFiles(const QString& dir);
    static QString sha256(const QString& path, QString* error = nullptr);

    // The line shown wherever reference values from a sample pack appear.
    static QString sampleNotice();
    // The same for a pack whose pack.json is missing or unreadable.
    static QString unverifiedNotice();

    // The manifest of the active pack (Resources::dir()), read again only
    // when pack.json changes; null with *error set when there is none usable.
    static std::shared_ptr<const PackManifest> active(QString* error = nullptr);
    // The mark screens show over reference values of the active pack: the
    // sample or unverified notice, or empty for a verified official pack.
    static QString activeNotice();
    // "Source: ERG 2024, Table 1" for the tables a screen section shows
    // values of (tables without a declared source add nothing); for a pack
    // without a usable pack.json, a line that says the source is unknown.
    static QString sourceLine(const QStringList& tables);
    // The partial-extract note of a table of the active pack, or empty.
    static QString activePartialNote(const QString& table);
};

} // namespace qor
