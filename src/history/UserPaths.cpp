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
    QFileInfo info(dir);
    if (info.isDir())
        return true;
    if (!QDir().mkpath(dir))
        return false;
    QFile::setPermissions(dir, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return true;
}

} // namespace qor
