// Inputs the fuzzers found crashes with, each kept as it was found.
#include "../history/HistoryTestSupport.h"

#include "history/HistoryManager.h"
#include "history/PropertyList.h"

#include <gtest/gtest.h>

using namespace qor;

namespace {

// Binary history whose keys hold a NUL byte; libplist asserted (aborting the
// app at start-up) when the key was read.
const char kDictWithArrayKey[] =
    "YnBsaXN0MDCiARLYAgMEBQYHCAkKCwwNDg8QEVdndWlkZUlkXGxBc3RWaWV3RGF0ZV1tYXlQb2x5bWVyaXplVG5hbWVZcGxhY2FyZElkU3RpaFR1"
    "WUlkbnZpZXdDb3VudFMxMjUzQcXLr0aAAAAIXxASQW1tb25pYSwgQW5oeWRyb3VzUzIuM1FYVDEwMDUQA2sDBQgJEwsUFRYXWXdhdGNoRmxhZ1hD"
    "aGxvcmluZVQxMDE3EAEJCAscJDE/RE5SV2Flbm+EiIqPkZymr7S2AAAAAAgAAQEAAAAAAAAAGAAAAAAAAAAAAAAAAAAAALc=";

} // namespace

TEST(FuzzFindings, HistoryKeysHoldingNulAreUnreadableNotACrash)
{
    const QByteArray bytes = QByteArray::fromBase64(kDictWithArrayKey);
    EXPECT_FALSE(plist::parse(bytes));
    test::UserFolder user;
    test::writeBytes(user.library("viewedHistory.dat"), bytes);
    HistoryManager manager;
    manager.loadHistory();
    EXPECT_TRUE(manager.viewedHistory().objects.isEmpty());
    EXPECT_TRUE(manager.keepsUnreadableFile());
}
