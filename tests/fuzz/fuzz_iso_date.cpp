// ISO 8601 dates as they come from outside, and the texts made from them.
#include "FuzzSupport.h"

#include "history/DateUtilities.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto date = DateUtilities::parseIS08601Date(QString::fromUtf8(fuzz::bytes(data, size)));
    if (date) {
        (void)DateUtilities::timeSinceNowWorker(*date);
        (void)DateUtilities::formatShortTimeWorker(*date);
        (void)DateUtilities::isToday(*date);
    }
    return 0;
}
