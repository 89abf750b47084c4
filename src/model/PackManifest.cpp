#include "PackManifest.h"
#include "Resources.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QDate>
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
    QString why;
    if (!m.readProvenance(o, &why))
        return fail(why);
    const QJsonValue files = o.value(QStringLiteral("files"));
    if (!files.isObject())
        return fail(QStringLiteral("no \"files\" object"));
    const QJsonObject fo = files.toObject();
    for (auto it = fo.begin(); it != fo.end(); ++it)
        m.files.insert(it.key(), it.value().toString());
    return m;
}

QString PackSource::displayLine() const
{
    return edition.isEmpty() ? title : QStringLiteral("%1, %2").arg(title, edition);
}

bool PackManifest::readProvenance(const QJsonObject& o, QString* error)
{
    auto fail = [&](const QString& why) {
        if (error)
            *error = why;
        return false;
    };
    sourceList.clear();
    sources.clear();
    tables.clear();
    const QJsonArray list = o.value(QStringLiteral("sources")).toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QJsonValue v = list.at(i);
        PackSource s;
        if (v.isString()) {
            // Older packs list their sources as plain lines.
            s.title = v.toString();
        } else if (v.isObject()) {
            const QJsonObject so = v.toObject();
            s.id = so.value(QStringLiteral("id")).toString();
            s.title = so.value(QStringLiteral("title")).toString();
            s.edition = so.value(QStringLiteral("edition")).toString();
            s.citation = so.value(QStringLiteral("citation")).toString();
            s.sample = so.value(QStringLiteral("sample")).toBool(false);
            s.own = so.value(QStringLiteral("own")).toBool(false);
            s.partial = so.value(QStringLiteral("partial")).toBool(false);
            const QJsonObject period = so.value(QStringLiteral("period")).toObject();
            s.periodFrom = period.value(QStringLiteral("from")).toString();
            s.periodTo = period.value(QStringLiteral("to")).toString();
            const QJsonValue files = so.value(QStringLiteral("files"));
            if (files.isObject()) {
                const QJsonObject fo = files.toObject();
                for (auto it = fo.begin(); it != fo.end(); ++it)
                    s.files.insert(it.key(), it.value().toString());
            } else {
                // The builder's declaration names the files; it fills in the sums.
                for (const QJsonValue& f : files.toArray())
                    s.files.insert(f.toString(), QString());
            }
            if (s.id.isEmpty() || s.title.isEmpty())
                return fail(QStringLiteral("source %1 needs an \"id\" and a \"title\"").arg(i + 1));
            if (source(s.id))
                return fail(QStringLiteral("source \"%1\" is declared twice").arg(s.id));
        } else {
            return fail(QStringLiteral("source %1 is neither a text nor an object").arg(i + 1));
        }
        sources << s.displayLine();
        sourceList << s;
    }
    const QJsonObject to = o.value(QStringLiteral("tables")).toObject();
    for (auto it = to.begin(); it != to.end(); ++it) {
        const QJsonObject t = it.value().toObject();
        PackTable table;
        for (const QJsonValue& id : t.value(QStringLiteral("sources")).toArray()) {
            if (!source(id.toString()))
                return fail(QStringLiteral("table \"%1\" names the undeclared source \"%2\"").arg(it.key(), id.toString()));
            table.sources << id.toString();
        }
        table.citation = t.value(QStringLiteral("citation")).toString();
        table.rows = qint64(t.value(QStringLiteral("rows")).toDouble(-1));
        tables.insert(it.key(), table);
    }
    return true;
}

const PackSource* PackManifest::source(const QString& id) const
{
    for (const PackSource& s : sourceList)
        if (!id.isEmpty() && s.id == id)
            return &s;
    return nullptr;
}

QString PackManifest::citation(const QString& table) const
{
    const auto it = tables.constFind(table);
    if (it == tables.constEnd())
        return QString();
    if (!it->citation.isEmpty())
        return it->citation;
    QStringList parts;
    for (const QString& id : it->sources)
        if (const PackSource* s = source(id))
            parts << (s->citation.isEmpty() ? s->title : s->citation);
    return parts.join(QStringLiteral("; "));
}

QString PackManifest::partialNote(const QString& table) const
{
    static const auto month = [](const QString& yyyyMm) {
        const QDate d = QDate::fromString(yyyyMm + QStringLiteral("-01"), Qt::ISODate);
        return d.isValid() ? QLocale::c().toString(d, QStringLiteral("MMM yyyy")) : yyyyMm;
    };
    for (const QString& id : tables.value(table).sources) {
        const PackSource* s = source(id);
        if (!s || !s->partial)
            continue;
        const QString name = s->citation.isEmpty() ? s->title : s->citation;
        if (s->periodFrom.isEmpty() || s->periodTo.isEmpty())
            return L::tr("From a partial extract of %1 reports").arg(name);
        return L::tr("From a partial extract of %1 reports, %2 to %3").arg(name, month(s->periodFrom), month(s->periodTo));
    }
    return QString();
}

bool PackManifest::tableIsSample(const QString& table) const
{
    for (const QString& id : tables.value(table).sources)
        if (const PackSource* s = source(id); s && s->sample)
            return true;
    return false;
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
    QJsonArray so;
    for (const PackSource& s : std::as_const(sourceList)) {
        QJsonObject sf;
        for (auto it = s.files.cbegin(); it != s.files.cend(); ++it)
            sf.insert(it.key(), it.value());
        QJsonObject entry{ { QStringLiteral("id"), s.id },
                           { QStringLiteral("title"), s.title },
                           { QStringLiteral("edition"), s.edition },
                           { QStringLiteral("citation"), s.citation },
                           { QStringLiteral("files"), sf } };
        if (s.sample)
            entry.insert(QStringLiteral("sample"), true);
        if (s.own)
            entry.insert(QStringLiteral("own"), true);
        if (s.partial)
            entry.insert(QStringLiteral("partial"), true);
        if (!s.periodFrom.isEmpty())
            entry.insert(QStringLiteral("period"), QJsonObject{ { QStringLiteral("from"), s.periodFrom }, { QStringLiteral("to"), s.periodTo } });
        so.append(entry);
    }
    QJsonObject to;
    for (auto it = tables.cbegin(); it != tables.cend(); ++it) {
        QJsonObject entry{ { QStringLiteral("sources"), QJsonArray::fromStringList(it->sources) },
                           { QStringLiteral("citation"), citation(it.key()) } };
        if (it->rows >= 0)
            entry.insert(QStringLiteral("rows"), it->rows);
        to.insert(it.key(), entry);
    }
    const QJsonObject o{ { QStringLiteral("edition"), edition },
                         { QStringLiteral("buildDate"), buildDate },
                         { QStringLiteral("sample"), sample },
                         { QStringLiteral("sources"), so },
                         { QStringLiteral("tables"), to },
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

QString PackManifest::unverifiedNotice()
{
    return L::tr("Unverified data pack — sources unknown");
}

} // namespace qor
