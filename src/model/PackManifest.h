#pragma once
// "pack.json": what a data pack is (edition, build date, sample or not) and
// the SHA-256 of every file in it. Only Qt Core, so the pack builder can
// compile this file too.
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

namespace qor {

struct PackManifest {
    static constexpr const char* kFileName = "pack.json";

    QString edition;
    QString buildDate;  // ISO date, fixed in the pack sources
    bool sample = false;
    QStringList sources;           // where the real parts of the data come from
    QMap<QString, QString> files;  // relative path -> SHA-256 (hex)

    // Reads DIR/pack.json; nullopt with *error set when it is missing or malformed.
    static std::optional<PackManifest> read(const QString& dir, QString* error = nullptr);
    // Lists the pack's files and their checksums, then writes DIR/pack.json.
    bool writeWithChecksums(const QString& dir, QString* error = nullptr);

    // Every file of a pack, relative and sorted; pack.json itself and hidden
    // files (build stamps) are not part of it.
    static QStringList packFiles(const QString& dir);
    static QString sha256(const QString& path, QString* error = nullptr);

    // The line shown wherever reference values from a sample pack appear.
    static QString sampleNotice();
};

} // namespace qor
