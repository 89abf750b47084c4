#pragma once
// File access for the user's own files (history, legacy archive), with every
// failure shown as an "Error Message" dialog except where a caller asked for
// quiet. Plain object: create one, use it, drop it; it keeps no state.
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

namespace qor {

struct FileError {
    // Numeric codes as the dialog shows them.
    enum Code {
        NoSuchFile = 4,
        ReadUnknown = 256,
        ReadNoPermission = 257,
        ReadNoSuchFile = 260,
        WriteUnknown = 512,
        WriteNoPermission = 513,
        WriteOutOfSpace = 640,
        WriteVolumeReadOnly = 642,
    };
    int code = WriteUnknown;
    QString description;  // what failed, localised
    QString reason;       // why, from the system
};

struct FileAttributes {
    QDateTime modificationDate;
    qint64 size = 0;
    bool isDirectory = false;
    uint permissions = 0;  // POSIX mode bits
};

class FileManager {
public:
    QString documentFilePath() const;
    QString libraryFilePath() const;

    // "prefix-N.suffix", N the milliseconds since 2001-01-01Z rounded to whole.
    QString uniqueFileNameWithPrefix(const QString& prefix, const QString& suffix) const;

    // Writes the object as a keyed archive. An empty path means Documents.
    // A failure to encode is shown and still answers true.
    bool saveDataToFile(const QVariant& object, const QString& path, const QString& fileName);
    // The archive's root object, or none (after a dialog).
    std::optional<QVariant> loadDataFromFileName(const QString& fileName, const QString& path);

    // True when removed, or when absent and keepQuiet is set.
    bool deleteFile(const QString& fileName, const QString& path, bool keepQuiet);
    // None, silently, when nothing is there.
    std::optional<FileAttributes> fileAttributes(const QString& fileName, const QString& path);
    // Atomic, owner-only. An existing file with overWrite false: false, no dialog.
    bool writeFile(const QByteArray& data, const QString& fileName, const QString& path, bool overWrite);
    std::optional<QByteArray> readFile(const QString& fileName, const QString& path);
    // Entry names starting with prefix (case-sensitive), in listing order.
    std::optional<QStringList> filesAtPath(const QString& path, const QString& prefix);

    // The two dialog forms.
    static void showErrorMessage(const QString& message);
    static void showFileError(const FileError& error);

private:
    QString resolveDir(const QString& path) const;
};

// Writes bytes atomically to path, owner-only, creating the folder; sets
// *error on failure.
bool writeFileAtomically(const QString& path, const QByteArray& data, FileError* error = nullptr);

} // namespace qor
