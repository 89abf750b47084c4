#pragma once
// Builds a small data pack in a temporary folder: the materials and guides
// files as given, and the three databases with the pack's tables, filled by
// the SQL each test supplies. Points the resource lookup at it.
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <ostream>

// Readable QString values in test failure messages.
inline void PrintTo(const QString& s, std::ostream* os)
{
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* os)
{
    *os << "{ ";
    for (const QString& s : list)
        *os << '"' << s.toStdString() << "\" ";
    *os << "}";
}

#include "model/Material.h"
#include "model/PackManifest.h"

namespace qor::test {

// The names of a list of materials, for comparing lists in one assertion.
inline QStringList names(const MaterialList& list)
{
    QStringList out;
    for (const auto& m : list)
        out << m->name;
    return out;
}

// The pack this build made, unless the environment names another.
inline QString bundledPack()
{
    return qEnvironmentVariable("QOR_PACK", QStringLiteral(QOR_DEFAULT_RESOURCES));
}

class FixturePack {
public:
    FixturePack();
    ~FixturePack();

    QString dir() const { return m_dir.path(); }
    QString path(const QString& file) const { return m_dir.filePath(file); }

    void setMaterials(const QStringList& lines);   // "^"-separated lines
    void setGuides(const QStringList& lines);
    void writeFile(const QString& name, const QByteArray& bytes);
    // Runs SQL against "npg.db", "cfr49.db" or "hazmat_incidents.dat" (tables exist already).
    void sql(const QString& dbFile, const QString& statements);
    // Makes the resource lookup read this pack.
    void activate();
    // pack.json of a test pack: every table and content declared from one
    // source of sample content, as packs built from our own content are.
    static PackManifest fixtureManifest();
    // The incident reports as an official pack declares them: a partial
    // extract ("DOT 5800.1"), Aug 2024 to Jul 2025, with one file and sum.
    static PackSource partialReportsSource();
    // An official pack's: the regulation ("cfr") for the shipping tables, the
    // guidebook ("erg2024") for materials, guides and distances, the reports
    // for incidents; the chemistry tables are declared without a source.
    static PackManifest officialManifest();
    // Writes it with the checksums of the files as they are now.
    void writeManifest();

private:
    QTemporaryDir m_dir;
};

// A fresh shared model over the active pack; loadData has run when load is true.
class ModelFixture {
public:
    explicit ModelFixture(bool load = true);
    ~ModelFixture();
};

} // namespace qor::test
