#include "FileManager.h"

#include "Clock.h"
#include "DialogService.h"
#include "KeyedArchive.h"
#include "UserPaths.h"
#include "model/Resources.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qor {

namespace {

enum class Op { Remove, Read, Write, List, Attributes };

FileError errorFor(Op op, int err, const QString& path)
{
    FileError e;
    const QString name = QFileInfo(path).fileName();
    switch (op) {
    case Op::Remove:
        e.code = err == ENOENT || err == ENOTDIR ? FileError::NoSuchFile
                 : err == EACCES || err == EPERM ? FileError::WriteNoPermission
                 : err == EROFS                  ? FileError::WriteVolumeReadOnly
                                                 : FileError::WriteUnknown;
        e.description = L::tr("The file \"%1\" couldn't be removed.").arg(name);
        break;
    case Op::Write:
        e.code = err == ENOENT || err == ENOTDIR     ? FileError::NoSuchFile
                 : err == EACCES || err == EPERM     ? FileError::WriteNoPermission
                 : err == ENOSPC || err == EDQUOT    ? FileError::WriteOutOfSpace
                 : err == EROFS                      ? FileError::WriteVolumeReadOnly
                                                     : FileError::WriteUnknown;
        e.description = L::tr("The file \"%1\" couldn't be saved.").arg(name);
        break;
    case Op::Read:
    case Op::List:
    case Op::Attributes:
        e.code = err == ENOENT || err == ENOTDIR ? FileError::ReadNoSuchFile
                 : err == EACCES || err == EPERM ? FileError::ReadNoPermission
                                                 : FileError::ReadUnknown;
        e.description = op == Op::List ? L::tr("The folder \"%1\" couldn't be opened.").arg(name)
                                       : L::tr("The file \"%1\" couldn't be opened.").arg(name);
        break;
    }
    e.reason = qt_error_string(err);
    return e;
}

QString join(const QString& dir, const QString& fileName)
{
    return dir + QLatin1Char('/') + fileName;
}

bool pathExists(const QString& path)
{
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0;
}

// Whole file via POSIX so the failure keeps its errno.
std::optional<QByteArray> readAll(const QString& path, int* err)
{
    errno = 0;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        *err = errno;
        return std::nullopt;
    }
    struct stat st;
    if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
        *err = errno ? errno : EISDIR;
        ::close(fd);
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(qsizetype(st.st_size));
    char buf[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buf, sizeof buf);
        if (n == 0)
            break;
        if (n < 0) {
            if (errno == EINTR)
                continue;
            *err = errno;
            ::close(fd);
            return std::nullopt;
        }
        bytes.append(buf, qsizetype(n));
    }
    ::close(fd);
    return bytes;
}

} // namespace

bool writeFileAtomically(const QString& path, const QByteArray& data, FileError* error)
{
    auto fail = [&](int err) {
        if (error)
            *error = errorFor(Op::Write, err ? err : EIO, path);
        return false;
    };
    const QString dir = QFileInfo(path).absolutePath();
    errno = 0;
    if (!UserPaths::ensureDir(dir))
        return fail(errno);
    if (QFileInfo(path).isDir())
        return fail(EISDIR);
    QSaveFile file(path);
    errno = 0;
    // Unbuffered: a buffered write that fails only when flushed at commit is
    // not noticed by QSaveFile, which then puts the short file in place.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(errno);
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    errno = 0;
    if (file.write(data) != data.size()) {
        const int err = errno;
        file.cancelWriting();
        return fail(err);
    }
    errno = 0;
    if (!file.commit())
        return fail(errno);
    return true;
}

QString FileManager::documentFilePath() const
{
    return UserPaths::documentsDir();
}

QString FileManager::libraryFilePath() const
{
    return UserPaths::libraryDir();
}

QString FileManager::resolveDir(const QString& path) const
{
    return path.isEmpty() ? documentFilePath() : path;
}

QString FileManager::uniqueFileNameWithPrefix(const QString& prefix, const QString& suffix) const
{
    // C formatting on purpose: exact halves round to even, as "%.0f" does.
    char number[64];
    std::snprintf(number, sizeof number, "%.0f", Clock::timeIntervalSinceReferenceDate() * 1000.0);
    return QStringLiteral("%1-%2.%3").arg(prefix, QString::fromLatin1(number), suffix);
}

bool FileManager::saveDataToFile(const QVariant& object, const QString& path, const QString& fileName)
{
    const QString dir = resolveDir(path);
    QString reason;
    const auto bytes = keyedarchive::archive(object, &reason);
    if (!bytes) {
        showErrorMessage(L::tr("Unable to save data: %@").replace(QLatin1String("%@"), reason));
        // Callers are deliberately told it worked; the dialog was the report.
        return true;
    }
    return writeFile(*bytes, fileName, dir, true);
}

std::optional<QVariant> FileManager::loadDataFromFileName(const QString& fileName, const QString& path)
{
    const auto bytes = readFile(fileName, resolveDir(path));
    if (!bytes)
        return std::nullopt;  // readFile has said why
    QString reason;
    auto root = keyedarchive::unarchive(*bytes, &reason);
    if (!root) {
        // Not localised, unlike the save message.
        showErrorMessage(QStringLiteral("Unable to load data: %@").replace(QLatin1String("%@"), reason));
        return std::nullopt;
    }
    return root;
}

bool FileManager::deleteFile(const QString& fileName, const QString& path, bool keepQuiet)
{
    const QString target = join(resolveDir(path), fileName);
    const QByteArray native = QFile::encodeName(target);
    struct stat st;
    int err = 0;
    if (::lstat(native.constData(), &st) != 0) {
        err = errno;
    } else if (S_ISDIR(st.st_mode)) {
        if (!QDir(target).removeRecursively())
            err = errno ? errno : EACCES;
    } else if (::unlink(native.constData()) != 0) {
        err = errno;
    }
    if (err == 0)
        return true;
    const FileError error = errorFor(Op::Remove, err, target);
    if (keepQuiet && error.code == FileError::NoSuchFile)
        return true;
    showFileError(error);
    return false;
}

std::optional<FileAttributes> FileManager::fileAttributes(const QString& fileName, const QString& path)
{
    const QString target = join(path, fileName);
    struct stat st;
    if (::stat(QFile::encodeName(target).constData(), &st) != 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            showFileError(errorFor(Op::Attributes, errno, target));
        return std::nullopt;
    }
    FileAttributes a;
    a.modificationDate = QDateTime::fromMSecsSinceEpoch(qint64(st.st_mtim.tv_sec) * 1000 + st.st_mtim.tv_nsec / 1000000);
    a.size = qint64(st.st_size);
    a.isDirectory = S_ISDIR(st.st_mode);
    a.permissions = uint(st.st_mode & 07777);
    return a;
}

bool FileManager::writeFile(const QByteArray& data, const QString& fileName, const QString& path, bool overWrite)
{
    const QString target = join(path, fileName);
    if (pathExists(target) && !overWrite)
        return false;
    // No delete before writing: the atomic replace keeps the old file if the
    // new one cannot be written.
    FileError error;
    if (!writeFileAtomically(target, data, &error)) {
        showFileError(error);
        return false;
    }
    return true;
}

std::optional<QByteArray> FileManager::readFile(const QString& fileName, const QString& path)
{
    const QString target = join(path, fileName);
    if (!pathExists(target)) {
        showErrorMessage(L::tr("Unable to locate file %@").replace(QLatin1String("%@"), fileName));
        return std::nullopt;
    }
    int err = 0;
    auto bytes = readAll(target, &err);
    if (!bytes)
        showFileError(errorFor(Op::Read, err, target));
    return bytes;
}

std::optional<QStringList> FileManager::filesAtPath(const QString& path, const QString& prefix)
{
    DIR* dir = ::opendir(QFile::encodeName(path).constData());
    if (!dir) {
        showFileError(errorFor(Op::List, errno, path));
        return std::nullopt;
    }
    QStringList names;
    while (const dirent* entry = ::readdir(dir)) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name == QLatin1String(".") || name == QLatin1String(".."))
            continue;
        if (name.startsWith(prefix, Qt::CaseSensitive))
            names << name;
    }
    ::closedir(dir);
    return names;
}

void FileManager::showErrorMessage(const QString& message)
{
    DialogService::show(L::tr("Error Message"), message, L::tr("Dismiss"));
}

void FileManager::showFileError(const FileError& error)
{
    showErrorMessage(QStringLiteral("[%1] %2, reason: %3").arg(QString::number(error.code), error.description, error.reason));
}

} // namespace qor
