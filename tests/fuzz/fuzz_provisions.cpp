// Special-provision texts from the shipping table: split as the detail
// screen does, each code put in its page group.
#include "FuzzSupport.h"

#include "queries/SpecialProvisions.h"

#include <QStringList>

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(fuzz::bytes(data, size));
    static const QStringList keys = SpecialProvisionsViewFactory::categoryKeys();
    for (const QString& code : text.split(QStringLiteral(", "))) {
        const SpecialProvisionGroup group = specialProvisionGroupForCode(code);
        // Every code must land on one of the pages that exist.
        if (!keys.contains(group.key))
            __builtin_trap();
    }
    return 0;
}
