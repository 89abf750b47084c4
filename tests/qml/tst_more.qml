import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// The placards, reference, history and About screens inside the real shell.
TestCase {
    id: test
    name: "MoreScreens"
    when: windowShown
    property var win

    Component { id: mainComponent; Main {} }

    function initTestCase() {
        win = mainComponent.createObject(null)
        verify(win)
    }
    function cleanupTestCase() { win.destroy() }

    function referenceStack() { return win.referencePage.StackView.view }
    function cleanup() {
        referenceStack().pop(null, StackView.Immediate)
        win.historyPage.StackView.view.pop(null, StackView.Immediate)
    }

    function test_placardsNameNoGuide() {
        win.openPlacards()
        compare(AppDelegate.currentTab, AppDelegate.ReferenceTab)
        var page = referenceStack().currentItem
        tryCompare(page, "objectName", "placardsPage")
        tryCompare(referenceStack(), "busy", false)
        compare(page.controller.rowCount(), 22)
        var list = page.listView
        tryVerify(function() { return list.count === 22 })
        // The chart naming each placard's guide is not in the pack: the
        // screen says so, and touching a placard opens nothing.
        var notice = findChild(list.headerItem, "placardChartNotice")
        verify(notice && notice.visible && notice.text.indexOf("not in this data pack") >= 0)
        list.positionViewAtIndex(2, ListView.Beginning)
        var row = list.itemAtIndex(2)
        verify(row)
        compare(findChild(row, "placardName").text, "Division 1.2")
        mouseClick(row)
        wait(50)
        compare(referenceStack().depth, 2)
        compare(referenceStack().currentItem, page)
    }

    function test_referenceRowsOpenPagesAndLists() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        var ref = win.referencePage
        compare(ref.controller.rowCount(), 27)
        var list = ref.listView
        // An info page: pushed with its title; the how-to page has no text-size button.
        ref.controller.selectRow(10)
        var info = referenceStack().currentItem
        compare(info.objectName, "infoPage")
        compare(info.page, "howto")
        compare(info.textSizeButton, false)
        referenceStack().pop(null, StackView.Immediate)
        ref.controller.selectRow(5)
        compare(referenceStack().currentItem.title, "Emergency Response Phone Numbers")
        compare(referenceStack().currentItem.textSizeButton, true)
        referenceStack().pop(null, StackView.Immediate)
        // The yellow-pages row opens the material list by UN number.
        ref.controller.selectRow(0)
        compare(AppDelegate.currentTab, AppDelegate.MaterialsTab)
        compare(win.materialList.controller.sortType, 1)
        AppDelegate.showAllMaterialsWithSort(0)
    }

    function test_historyStartsOnRecent() {
        AppDelegate.currentTab = AppDelegate.HistoryTab
        var page = win.historyPage
        compare(page.controller.segment, 1)
        page.controller.clearHistory()
        compare(page.listView.count, 0)
        compare(page.clearButton.opacity, 0)
        compare(page.clearButton.enabled, false)
        var mostViewed = findChild(page, "segment2")
        verify(mostViewed)
        mouseClick(mostViewed)
        compare(page.controller.segment, 2)
        mouseClick(findChild(page, "segment1"))
        compare(page.controller.segment, 1)
    }

    function test_aboutShowsThePack() {
        AppDelegate.currentTab = AppDelegate.AboutTab
        var about = win.aboutPage.controller
        verify(about.packFound)
        verify(about.edition.length > 0)
        tryCompare(about, "checksumState", AboutController.Verified)
        verify(about.aboutHtml.indexOf("About") >= 0)
    }
}
