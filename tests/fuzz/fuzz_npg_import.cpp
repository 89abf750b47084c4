// Pocket-guide chemical pages: any bytes parse to a chemical or to nothing,
// with rows as wide as the pack's table and only four-digit UN numbers.
#include "FuzzSupport.h"

#include "import/NpgImport.h"

#include <QRegularExpression>

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QString error;
    const auto chemical = import::parseNpgPage(fuzz::bytes(data, size), QStringLiteral("0001"), &error);
    if (!chemical)
        return 0;
    if (chemical->columns().size() != import::npgColumns().size())
        __builtin_trap();
    static const QRegularExpression fourDigits(QStringLiteral("^\\d{4}$"));
    for (const QString& id : chemical->unIds)
        if (!fourDigits.match(id).hasMatch())
            __builtin_trap();
    return 0;
}
