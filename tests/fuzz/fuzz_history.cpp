// The viewed-history file through the real loader, then everything the
// history screen and the next view do with what was loaded.
#include "FuzzSupport.h"

#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "history/UserPaths.h"

#include <QDir>

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString library = UserPaths::libraryDir();
    QDir(library).removeRecursively();
    UserPaths::ensureDir(library);
    fuzz::writeFile(library + QLatin1String("/viewedHistory.dat"), fuzz::bytes(data, size));

    HistoryManager manager;
    manager.loadHistory();
    ViewedHistory& history = manager.viewedHistory();
    history.allAlpha();
    history.recent();
    history.mostViewed();
    history.watching();
    for (const HistoryObjectPtr& entry : history.history()) {
        (void)entry->name();
        (void)entry->lastViewDate();
        // A second view of a loaded entry counts on from whatever was stored.
        manager.addToHistory(entry->material);
    }
    manager.saveHistory();
    return 0;
}
