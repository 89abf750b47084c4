// qor-cli validate on a copy of the bundled pack with one file damaged.
// Input: a selector byte, then either the new contents of a text file or,
// for a database, a 3-byte offset and the bytes to write over it there, so
// that SQLite sees a real database with damage in it rather than noise.
#include "FuzzSupport.h"

#include "PackValidator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <iterator>

using namespace qor;

namespace {
const char* const kTargets[] = { "chemicals_2024.csv", "guides.csv", "pack.json", "A.html", "111.html",
                                 "npg.db", "cfr49.db", "hazmat_incidents.dat" };
constexpr int kFirstDatabase = 5;

struct Pack {
    QTemporaryDir dir;
    QList<QByteArray> originals;
    Pack()
    {
        const QDir source(QStringLiteral(QOR_DEFAULT_RESOURCES));
        for (const QString& name : source.entryList(QDir::Files))
            QFile::copy(source.filePath(name), dir.filePath(name));
        for (const char* t : kTargets) {
            QFile f(dir.filePath(QString::fromLatin1(t)));
            f.open(QIODevice::ReadOnly);
            originals << f.readAll();
        }
    }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Pack* pack = new Pack();
    if (size < 1)
        return -1;
    const int which = data[0] % int(std::size(kTargets));
    const QString path = pack->dir.filePath(QString::fromLatin1(kTargets[which]));
    QByteArray contents;
    if (which >= kFirstDatabase) {
        if (size < 4)
            return -1;
        contents = pack->originals.at(which);
        if (contents.isEmpty())
            return -1;
        const qsizetype offset = ((data[1] << 16) | (data[2] << 8) | data[3]) % contents.size();
        const QByteArray patch = fuzz::bytes(data + 4, size - 4).left(contents.size() - offset);
        contents.replace(offset, patch.size(), patch);
    } else {
        contents = fuzz::bytes(data + 1, size - 1);
    }
    fuzz::writeFile(path, contents);
    (void)cli::validatePack(pack->dir.path());
    fuzz::writeFile(path, pack->originals.at(which));
    return 0;
}
