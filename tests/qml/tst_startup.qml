import QtQuick
import QtTest
import QOR

// The app shows the launch tab before it builds the others; a tab asked for
// before then (a link, a shortcut) is built on the spot.
TestCase {
    name: "Startup"
    when: windowShown

    Component { id: mainComponent; Main {} }

    function test_tabsOtherThanTheLaunchTabWaitForTheFirstFrame() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        var win = mainComponent.createObject(null, { deferTabs: true })
        verify(win)
        compare(win.builtTabs, 1)
        verify(win.referencePage)
        verify(win.materialList === null)
        verify(win.tabPage(AppDelegate.HistoryTab))
        compare(win.builtTabs, 2)
        tryCompare(win, "builtTabs", win.tabPageFiles.length)
        verify(win.materialList && win.aboutPage)
        win.destroy()
        wait(0)
    }
}
