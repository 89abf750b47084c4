// Page preparation on arbitrary HTML: text size, dark style and tablet
// viewport replacements. Input: two option bytes, then the page.
#include "FuzzSupport.h"

#include "pages/PagePreparation.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return -1;
    PageOptions options;
    options.textSize = int(qint8(data[0])) * 10;
    options.dark = data[1] & 1;
    options.tablet = data[1] & 2;
    const QString page = preparePageText(QString::fromUtf8(fuzz::bytes(data + 2, size - 2)), options);
    (void)page.toUtf8();
    (void)guideTextSizeScript(options.textSize);
    (void)infoTextSizeScript(options.textSize);
    return 0;
}
