#include "UserPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace qor {

namespace {
QString& dataDirOverride()
{
    static QString dir;
    return dir;
}
} // namespace

QString UserPaths::homeDir()
{
    if (!dataDirOverride().isEmpty())
        return dataDirOverride();
    const QByteArray env = qgetenv("QOR_DATA_DIR");
    if (!env.isEmpty())
        return QFileInfo(QString::fromLocal8Bit(env)).absoluteFilePath();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString UserPaths::documentsDir()
{
    return homeDir() + QStringLiteral("/Documents");
}

QString UserPaths::libraryDir()
{
    return homeDir() + QStringLiteral("/Library");
}

QString UserPaths::cachesDir()
{
    if (!dataDirOverride().isEmpty() || !qEnvironmentVariableIsEmpty("QOR_DATA_DIR"))
        return homeDir() + QStringLiteral("/Caches");
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
}

void UserPaths::setDataDir(const QString& dir)
{
    dataDirOverride() = dir.isEmpty() ? QString() : QFileInfo(dir).absoluteFilePath();
}

bool UserPaths::ensureDir(const QString& dir)
{
    // Every folder made here is owner-only, the parents included.
    QStringList missing;
    for (QString d = QDir::cleanPath(QFileInfo(dir).absoluteFilePath()); !QFileInfo(d).isDir();
         d = QFileInfo(d).absolutePath()) {
        if (QFileInfo::exists(d) || d == QFileInfo(d).absolutePath())
            return false;  // a file in the way, or nothing at the root
        missing.prepend(d);
    }
    for (const QString& d : std::as_const(missing)) {
        if (!QDir().mkdir(d) && !QFileInfo(d).isDir())
            return false;
        QFile::setPermissions(d, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
    return true;
}

} // namespace qor
