import QtQuick
import QtQuick.Controls
import QtTest
import QOR
import QorTest

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
        verify(ModelChecks.attachAll(win) >= 4, "the shell's list models are watched")
    }
    function cleanupTestCase() { win.destroy() }

    function referenceStack() { return win.referencePage.StackView.view }
    // Qt's item-model tester watches every list model on screen.
    function init() { ModelChecks.attachAll(win) }
    function cleanup() {
        ModelChecks.attachAll(win)
        referenceStack().pop(null, StackView.Immediate)
        win.historyPage.StackView.view.pop(null, StackView.Immediate)
        compare(ModelChecks.takeFailures(), "", "item model faults")
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
        compare(findChild(info, "textSizeButton").visible, false)
        referenceStack().pop(null, StackView.Immediate)
        ref.controller.selectRow(5)
        info = referenceStack().currentItem
        compare(info.title, "Emergency Response Phone Numbers")
        var button = findChild(info, "textSizeButton")
        verify(button && button.visible, "the other pages offer the text size")
        tryCompare(referenceStack(), "busy", false)
        mouseClick(button)
        tryCompare(button.sheet, "opened", true)
        button.sheet.accept()
        tryCompare(button.sheet, "visible", false)
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

    function test_indexRowsShowTheirOrderFromTheListRoot() {
        // A material left open on the Materials tab, sorted by name.
        AppDelegate.showAllMaterialsWithSort(0)
        var list = win.materialList
        var materials = list.StackView.view
        win.openMaterial(list.firstMaterial())
        tryCompare(materials, "depth", 2)
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        win.referencePage.controller.selectRow(0)  // ID Number Index
        compare(AppDelegate.currentTab, AppDelegate.MaterialsTab)
        compare(materials.depth, 1, "the list itself is shown, not the material left open")
        compare(list.controller.sortType, 1)
        compare(list.controller.sortImage, "Sort-UnId.pdf", "the button shows the order shown")
        win.referencePage.controller.selectRow(1)  // Name of Material Index
        compare(list.controller.sortImage, "Sort-Alphabetically.pdf")
    }

    function test_explosiveNumberOpensItsDivisionsRow() {
        AppDelegate.currentTab = 5  // the search comes last
        var page = findChild(win, "searchById")
        var field = findChild(page, "unIdField")
        verify(field)
        mouseClick(field)
        field.selectAll()
        keyClick(Qt.Key_Delete)
        for (var c of "0004")
            keyClick(c)
        var row = findChild(page, "searchByIdRow")
        tryCompare(row, "visible", true)
        verify(row.text.indexOf("guide 112") >= 0, row.text)
        verify(findChild(page, "searchByIdNote").visible)
        mouseClick(row)
        compare(AppDelegate.currentTab, AppDelegate.MaterialsTab)
        var materials = win.materialList.StackView.view
        tryCompare(materials, "depth", 2)
        compare(materials.currentItem.material.guideId, "112")
        materials.pop(null, StackView.Immediate)
    }
}
