import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// The placards, reference, history and About screens inside the real shell.
ShellTestCase {
    id: test
    name: "MoreScreens"

    function referenceStack() { return win.referencePage.StackView.view }
    function reset() {
        referenceStack().pop(null, StackView.Immediate)
        win.historyPage.StackView.view.pop(null, StackView.Immediate)
    }

    function test_placardsNameNoGuide() {
        win.openPlacards()
        compare(AppDelegate.currentTab, AppDelegate.ReferenceTab)
        var page = referenceStack().currentItem
        tryCompare(page, "objectName", "placardsPage")
        tryCompare(referenceStack(), "busy", false)
        var list = page.listView
        tryVerify(function() { return list.count === page.controller.rowCount() })
        // The chart naming each placard's guide is not in the pack: the
        // screen says so, and touching a placard opens nothing.
        var notice = findChild(list.headerItem, "placardChartNotice")
        verify(notice && notice.visible && notice.text.indexOf("not in this data pack") >= 0)
        list.positionViewAtIndex(2, ListView.Beginning)
        mouseClick(list.itemAtIndex(2))
        wait(50)
        compare(referenceStack().depth, 2)
        compare(referenceStack().currentItem, page)
    }

    function test_referenceRowsOpenPagesAndLists() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        var ref = win.referencePage
        // An info page: pushed with its title; the how-to page has no text-size button.
        ref.controller.selectRow(10)
        compare(findChild(referenceStack().currentItem, "textSizeButton").visible, false)
        referenceStack().pop(null, StackView.Immediate)
        ref.controller.selectRow(5)
        var button = findChild(referenceStack().currentItem, "textSizeButton")
        verify(button && button.visible, "the other pages offer the text size")
        tryCompare(referenceStack(), "busy", false)
        mouseClick(button)
        tryCompare(button.sheet, "opened", true)
        button.sheet.accept()
        tryCompare(button.sheet, "visible", false)
    }

    function test_aboutShowsThePack() {
        AppDelegate.currentTab = AppDelegate.AboutTab
        tryCompare(win.aboutPage.controller, "checksumState", AboutController.Verified)
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
        mouseClick(field)
        field.selectAll()
        keyClick(Qt.Key_Delete)
        for (var c of "0004")
            keyClick(c)
        var row = findChild(page, "searchByIdRow")
        tryCompare(row, "visible", true)
        mouseClick(row)
        compare(AppDelegate.currentTab, AppDelegate.MaterialsTab)
        var materials = win.materialList.StackView.view
        tryCompare(materials, "depth", 2)
        compare(materials.currentItem.material.guideId, "112")
        materials.pop(null, StackView.Immediate)
    }
}
