// The manifest of the pack the app is reading, and the source lines and
// marks screens derive from it. Not part of the pack builder.
#include "PackManifest.h"
#include "Resources.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMutex>

namespace qor {

std::shared_ptr<const PackManifest> PackManifest::active(QString* error)
{
    // Screens ask for every section they build; reading and parsing the
    // manifest each time would cost more than the lookups themselves.
    static QMutex mutex;
    static QString cachedKey;
    static std::shared_ptr<const PackManifest> cached;
    static QString cachedError;
    const QString dir = Resources::dir();
    const QFileInfo info(QDir(dir).filePath(QString::fromLatin1(kFileName)));
    const QString key = QStringLiteral("%1|%2|%3").arg(info.absoluteFilePath()).arg(info.exists() ? info.size() : -1)
                            .arg(info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0);
    QMutexLocker lock(&mutex);
    if (key != cachedKey) {
        cachedKey = key;
        cachedError.clear();
        auto manifest = read(dir, &cachedError);
        cached = manifest ? std::make_shared<const PackManifest>(std::move(*manifest)) : nullptr;
    }
    if (error)
        *error = cachedError;
    return cached;
}

QString PackManifest::activeNotice()
{
    const auto manifest = active();
    if (!manifest)
        return unverifiedNotice();
    return manifest->sample ? sampleNotice() : QString();
}

QString PackManifest::sourceLine(const QStringList& tables)
{
    const auto manifest = active();
    if (!manifest)
        return L::tr("Source: unknown (unverified data pack)");
    QStringList citations;
    // pack.json spells out joined citations too ("A; B"): each part once.
    const auto add = [&](const QString& citation) {
        for (const QString& part : citation.split(QStringLiteral("; "), Qt::SkipEmptyParts))
            if (!citations.contains(part))
                citations << part;
    };
    // Citations are gathered source by source, so tables sharing a source name it once.
    for (const QString& table : tables) {
        const PackTable t = manifest->tables.value(table);
        if (t.sources.isEmpty())
            continue;
        if (!t.citation.isEmpty()) {
            add(t.citation);
            continue;
        }
        for (const QString& id : t.sources)
            if (const PackSource* s = manifest->source(id))
                add(s->citation.isEmpty() ? s->title : s->citation);
    }
    if (citations.isEmpty())
        return L::tr("Source: not recorded in this data pack");
    return L::tr("Source: %1").arg(citations.join(QStringLiteral("; ")));
}

QString PackManifest::activePartialNote(const QString& table)
{
    const auto manifest = active();
    return manifest ? manifest->partialNote(table) : QString();
}

} // namespace qor
