// Links opened into the app: qor://search?... and qor://chemical?...
#include "FuzzSupport.h"

#include "AppLinks.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(fuzz::bytes(data, size));
    const AppLink link = parseAppLink(text);
    if (link.kind == AppLink::Chemical && (link.unId < 1 || link.unId > 9998))
        __builtin_trap();
    (void)parseAppLink(QUrl(QStringLiteral("qor://search?q=") + text));
    (void)parseAppLink(QUrl(QStringLiteral("qor://chemical?un=") + text));
    return 0;
}
