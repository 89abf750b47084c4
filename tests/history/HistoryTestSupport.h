#pragma once
// Shared by the history tests: a throwaway user folder and small helpers.
#include "history/Clock.h"
#include "history/UserPaths.h"
#include "model/Material.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>

namespace qor::test {

// Points the user's folders at a fresh temporary folder; restores the real
// folders and the real clock afterwards.
struct UserFolder {
    QTemporaryDir root;
    UserFolder() { UserPaths::setDataDir(root.path()); }
    ~UserFolder()
    {
        UserPaths::setDataDir(QString());
        Clock::setSource({});
    }
    QString documents(const QString& file = QString()) const { return join(QStringLiteral("Documents"), file); }
    QString library(const QString& file = QString()) const { return join(QStringLiteral("Library"), file); }

private:
    QString join(const QString& folder, const QString& file) const
    {
        const QString dir = root.path() + QLatin1Char('/') + folder;
        QDir().mkpath(dir);
        return file.isEmpty() ? dir : dir + QLatin1Char('/') + file;
    }
};

inline MaterialPtr makeMaterial(const QString& unId, const QString& name, const QString& guideId = QStringLiteral("125"))
{
    auto m = std::make_shared<Material>();
    m->unId = unId;
    m->name = name;
    m->guideId = guideId;
    m->placardId = QStringLiteral("2.3");
    return m;
}

inline QByteArray readBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    f.write(bytes);
}

inline QDateTime utc(const char* iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODateWithMs);
}

} // namespace qor::test
