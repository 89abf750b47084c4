#include "PackManifest.h"
#include "Resources.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace qor {

std::optional<PackManifest> PackManifest::read(const QString& dir, QString* error)
{
    auto fail = [&](const QString& why) -> std::optional<PackManifest> {
        if (error)
            *error = why;
        return std::nullopt;
    };
    QFile file(QDir(dir).filePath(QString::fromLatin1(kFileName)));
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot read: %1").arg(file.errorString()));
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (!doc.isObject())
        return fail(QStringLiteral("not a JSON object (%1 at offset %2)").arg(parseError.errorString()).arg(parseError.offset));
    const QJsonObject o = doc.object();
    PackManifest m;
    m.edition = o.value(QStringLiteral("edition")).toString();
    m.buildDate = o.value(QStringLiteral("buildDate")).toString();
    m.sample = o.value(QStringLiteral("sample")).toBool(false);
    for (const QJsonValue& v : o.value(QStringLiteral("sources")).toArray())
        m.sources << v.toString();
    const QJsonValue files = o.value(QStringLiteral("files"));
    if (!files.isObject())
        return fail(QStringLiteral("no \"files\" object"));
    const QJsonObject fo = files.toObject();
    for (auto it = fo.begin(); it != fo.end(); ++it)
        m.files.insert(it.key(), it.value().toString());
    return m;
}

bool PackManifest::writeWithChecksums(const QString& dir, QString* error)
{
    files.clear();
    QJsonObject fo;
    for (const QString& rel : packFiles(dir)) {
        const QString sum = sha256(QDir(dir).filePath(rel), error);
        if (sum.isEmpty())
            return false;
        files.insert(rel, sum);
        fo.insert(rel, sum);
    }
    const QJsonObject o{ { QStringLiteral("edition"), edition },
                         { QStringLiteral("buildDate"), buildDate },
                         { QStringLiteral("sample"), sample },
                         { QStringLiteral("sources"), QJsonArray::fromStringList(sources) },
                         { QStringLiteral("files"), fo } };
    QSaveFile out(QDir(dir).filePath(QString::fromLatin1(kFileName)));
    if (!out.open(QIODevice::WriteOnly)) {
        if (error)
            *error = out.errorString();
        return false;
    }
    out.write(QJsonDocument(o).toJson(QJsonDocument::Indented));
    if (!out.commit()) {
        if (error)
            *error = out.errorString();
        return false;
    }
    return true;
}

QStringList PackManifest::packFiles(const QString& dir)
{
    QStringList out;
    const QDir root(dir);
    QDirIterator it(dir, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString rel = root.relativeFilePath(it.next());
        if (rel == QLatin1String(kFileName) || rel.startsWith(QLatin1Char('.')) || rel.contains(QLatin1String("/.")))
            continue;
        out << rel;
    }
    out.sort();
    return out;
}

QString PackManifest::sha256(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return QString();
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&file);
    return QString::fromLatin1(hash.result().toHex());
}

QString PackManifest::sampleNotice()
{
    return L::tr("Sample data — not for operational use");
}

} // namespace qor
