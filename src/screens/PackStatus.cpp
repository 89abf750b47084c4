#include "PackStatus.h"

#include "model/PackManifest.h"
#include "model/Resources.h"

namespace qor {

PackStatus::PackStatus(QObject* parent) : QObject(parent)
{
}

QString PackStatus::notice() const
{
    return PackManifest::activeNotice();
}

bool PackStatus::sample() const
{
    const auto manifest = PackManifest::active();
    return manifest && manifest->sample;
}

bool PackStatus::verified() const
{
    return PackManifest::active() != nullptr;
}

QString PackStatus::problem() const
{
    QString error;
    if (PackManifest::active(&error))
        return QString();
    return QStringLiteral("%1: %2").arg(QString::fromLatin1(PackManifest::kFileName), error);
}

QVariantList PackStatus::sources() const
{
    QVariantList out;
    const auto manifest = PackManifest::active();
    if (!manifest)
        return out;
    for (const PackSource& s : manifest->sourceList) {
        QStringList files;
        for (auto it = s.files.cbegin(); it != s.files.cend(); ++it)
            files << QStringLiteral("%1  SHA-256 %2").arg(it.key(), it.value());
        QStringList tables;
        for (auto it = manifest->tables.cbegin(); it != manifest->tables.cend(); ++it)
            if (it->sources.contains(s.id) && it->rows != 0)
                tables << it.key();
        out.append(QVariantMap{ { QStringLiteral("title"), s.title },
                                { QStringLiteral("edition"), s.edition },
                                { QStringLiteral("citation"), s.citation },
                                { QStringLiteral("sample"), s.sample },
                                { QStringLiteral("files"), files },
                                { QStringLiteral("tables"), tables } });
    }
    return out;
}

} // namespace qor
