// The guidebook importer on a damaged PDF: any input gives the tables or an
// error naming the file, never a crash; what it reads still writes cleanly.
#include "FuzzSupport.h"

#include "import/ErgImport.h"

#include <cstdlib>

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray input = fuzz::bytes(data, size);
    QString error;
    const auto tables = import::ErgImport::readData(input, QStringLiteral("damaged.pdf"), &error);
    if (!tables) {
        // The error names the file; an empty one would leave the user guessing.
        if (!error.startsWith(QLatin1String("damaged.pdf: ")) || error.size() <= 13)
            std::abort();
        return 0;
    }
    for (const auto& row : tables->table3)
        if (row.values.size() != 14 || row.ids.isEmpty())
            std::abort();
    (void)import::materialsLines(*tables);
    (void)import::isoDistancesSql(*tables);
    (void)import::largeSpillSql(*tables);
    (void)import::table1Csv(*tables);
    (void)import::ErgImport::highlightMismatches(*tables);
    return 0;
}
