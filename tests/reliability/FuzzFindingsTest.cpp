// Inputs the fuzzers found crashes with, each kept as it was found.
#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "history/UserPaths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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
    // The same through the XML form, and an ordinary key still reads.
    const QByteArray xml = "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><dict><key>un&#0;Id</key><string>1005</string>"
                           "</dict></array></plist>";
    EXPECT_FALSE(plist::parse(xml));
    EXPECT_EQ(plist::parse(QByteArray(xml).replace("&#0;", ""))->toList().value(0).toMap().value("unId"), "1005");

    QTemporaryDir root;
    UserPaths::setDataDir(root.path());
    QDir().mkpath(root.path() + "/Library");
    QFile f(root.path() + "/Library/viewedHistory.dat");
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
    f.close();
    HistoryManager manager;
    manager.loadHistory();
    EXPECT_TRUE(manager.viewedHistory().objects.isEmpty());
    EXPECT_TRUE(manager.keepsUnreadableFile());
    UserPaths::setDataDir(QString());
}
