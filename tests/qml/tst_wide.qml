import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// The wide layout: the detail area beside the list.
ShellTestCase {
    id: test
    name: "WideLayout"
    windowProperties: ({ width: 1280, height: 800 })

    function setUpWindow() { AppDelegate.setFormFactorOverride("tablet") }
    function cleanupTestCase() {
        AppDelegate.clearDetail()
        win.destroy()
        AppDelegate.setFormFactorOverride("phone")
    }

    // An info page chosen on a wide window shows in the detail area, is made
    // from its file when asked for, and gives way to the next page or material.
    function test_infoPagesShowInTheDetailArea() {
        Navigation.openInfoPage("howto", "HOW TO USE THE GUIDEBOOK", false, true)
        tryVerify(function() { var p = findChild(win.contentItem, "infoPage"); return p && p.page === "howto" })
        Navigation.openInfoPage("Isolation_Distances", "Isolation Distances", true, true)
        tryVerify(function() { var p = findChild(win.contentItem, "infoPage"); return p && p.page === "Isolation_Distances" })
        compare(findChild(win.contentItem, "infoPage").textSizeButton, true)
        AppDelegate.clearDetail()
        win.detailInfo = null
        tryVerify(function() { return findChild(win.contentItem, "infoPage") === null })
    }

    function materialWithId(unId) {
        var m = searchFor(unId)
        win.materialList.endSearch()
        return m
    }

    function detailPage() { return findChild(win.contentItem, "materialDetail") }

    // The page a shipping row opens, through the first entry's own page when
    // the material has several; taken off the stack again.
    function openedByShippingRow(page, key) {
        var stack = page.StackView.view
        page.controller.selectedViewIndex = 1
        var controller = page.controller
        var row = indexOfKind(page, DetailRowModel.Shipping, key)
        if (row < 0) {
            controller.activate(indexOfKind(page, DetailRowModel.Entry))
            tryCompare(stack, "busy", false)
            compare(stack.currentItem.objectName, "shippingEntry")
            controller = stack.currentItem.controller
            row = rowsIn(controller.rowModel).findIndex(function(r) { return r.key === key })
        }
        controller.activate(row)
        tryCompare(stack, "busy", false)
        var opened = stack.currentItem
        var result = { title: opened.title, headerTitle: opened.headerTitle }
        stack.pop(page, StackView.Immediate)
        page.controller.selectedViewIndex = 0
        return result
    }

    function test_aNewMaterialStartsFromItsOwnDetail() {
        var a = materialWithId("1005")
        var b = materialWithId("1017")
        AppDelegate.showDetailForMaterial(a)
        var stack = detailPage().StackView.view
        detailPage().controller.activate(indexOfKind(detailPage(), DetailRowModel.Iso))
        tryCompare(stack, "busy", false)
        compare(stack.currentItem.objectName, "isolationPage")
        compare(stack.currentItem.material.unId, "1005")

        AppDelegate.showDetailForMaterial(b)
        stack = detailPage().StackView.view
        tryCompare(stack, "busy", false)
        compare(stack.depth, 1, "nothing of the previous material stays on top")
        compare(stack.currentItem.material.unId, "1017")
        verify(!findChild(win.contentItem, "isolationPage"), "no isolation table left behind")
    }

    function test_inlineShippingRowsFollowTheMaterial() {
        // Both have their own shipping entry; the inline rows must open the shown one's.
        AppDelegate.showDetailForMaterial(materialWithId("1005"))
        var page = detailPage()
        var first = page.controller.shipping.entryAt(0)
        verify(first.name, "the pack has a shipping entry for 1005")
        compare(openedByShippingRow(page, "nonBulk").title, "49CFR § 173." + first.nonBulk.replace(/ /g, ""))

        AppDelegate.showDetailForMaterial(materialWithId("1017"))
        page = detailPage()
        var second = page.controller.shipping.entryAt(0)
        verify(second.name && second.name !== first.name)
        compare(openedByShippingRow(page, "nonBulk").title, "49CFR § 173." + second.nonBulk.replace(/ /g, ""))
        compare(openedByShippingRow(page, "specialProvisions").headerTitle, second.name)
    }

    function test_aboutIsReachableWithoutAnAboutTab() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        var button = findChild(win.referencePage, "aboutButton")
        mouseClick(button)
        tryCompare(win.aboutPage, "visible", true)
        AppDelegate.currentTab = AppDelegate.ReferenceTab
    }

    // Summary, distances, shipping and protection at once; the keys reach each.
    function test_theWholeMaterialAtOnce() {
        AppDelegate.currentTab = AppDelegate.MaterialsTab
        AppDelegate.showDetailForMaterial(materialWithId("1017"))
        var page = detailPage()
        verify(!findChild(page, "segments").visible, "no tabs")
        var columns = findChild(page, "wideColumns")
        verify(columns && columns.visible)
        var summary = findChild(columns, "summaryColumn")
        var isolation = findChild(columns, "isolationColumn")
        var shipping = findChild(columns, "shippingColumn")
        verify(isolation.visible && isolation.width >= 280 && summary.width >= 280 && shipping.width >= 280)
        function kinds(view) { return rowsIn(view.model).map(function(r) { return r.kind }) }
        function kindAt(view, index) { return view.model.get(index).kind }
        verify(kinds(shipping).indexOf(DetailRowModel.Npg) >= 0, "protection follows shipping")
        compare(kinds(shipping).indexOf(DetailRowModel.Top), -1, "the name and placard only once")

        // The rows hold the keys; U switches the units of the distances on screen.
        tryVerify(function() { return summary.activeFocus })
        var units = isolation.delegateController.units
        keyClick(Qt.Key_U)
        compare(isolation.delegateController.units, 1 - units)
        keyClick(Qt.Key_U)
        compare(isolation.delegateController.units, units)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        compare(kindAt(shipping, shipping.currentIndex), DetailRowModel.Npg, "Ctrl+3 goes to the protection rows")
        keyClick(Qt.Key_1, Qt.ControlModifier)
        verify(summary.activeFocus)

        // Enter on the guide row opens the guide, as a tap does.
        while (kindAt(summary, summary.currentIndex) !== DetailRowModel.Guide)
            keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        compare(AppDelegate.currentTab, AppDelegate.GuidesTab)
        tryVerify(function() { var g = findChild(win.contentItem, "guidePage"); return g && g.guideId === "124" }, 3000)
        findChild(win.contentItem, "guidePage").StackView.view.pop(null, StackView.Immediate)
    }
}
