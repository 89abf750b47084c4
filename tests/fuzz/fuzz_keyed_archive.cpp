// The legacy history archive: the keyed-archive decoder and the material
// records read from what it decoded.
#include "FuzzSupport.h"

#include "history/KeyedArchive.h"
#include "history/MaterialArchive.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto root = keyedarchive::unarchive(fuzz::bytes(data, size));
    if (!root)
        return 0;
    if (const auto legacy = MaterialViewedHistory::fromArchive(*root)) {
        for (const MaterialPtr& m : legacy->history())
            (void)archiveViewedMaterial(*m);
    }
    // Whatever was decoded must encode again or be refused cleanly.
    (void)keyedarchive::archive(*root);
    return 0;
}
