// eCFR section XML as a user may download it: the reader either names the
// file in its error or gives rows whose shape the pack tables accept.
#include "FuzzSupport.h"

#include "import/EcfrImport.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QString error;
    const auto section = import::parseEcfrSection(fuzz::bytes(data, size), QStringLiteral("fuzz.xml"), &error);
    if (!section) {
        if (!error.startsWith(QLatin1String("fuzz.xml: ")))
            __builtin_trap();
        return 0;
    }
    import::ShippingData shipping;
    shipping.add(*section);
    const import::ImportTables tables = shipping.tables();
    for (const QStringList& row : tables.value(QStringLiteral("hmt")))
        if (row.size() != 15 || row.first().size() != 4)
            __builtin_trap();
    for (const import::HmtRow& r : shipping.hmt())
        (void)shipping.placardKey(r.unId, true);
    return 0;
}
