import QtQuick
import QtQuick.Controls
import QtTest
import QOR
import QorTest

// The wide layout: the detail area beside the list.
TestCase {
    id: test
    name: "WideLayout"
    when: windowShown
    property var win

    Component { id: mainComponent; Main {} }

    function initTestCase() {
        AppDelegate.setFormFactorOverride("tablet")
        win = mainComponent.createObject(null, { width: 1280, height: 800 })
        verify(win)
        verify(ModelChecks.attachAll(win) >= 4, "the shell's list models are watched")
        verify(AppDelegate.tablet)
    }
    function cleanupTestCase() {
        AppDelegate.clearDetail()
        win.destroy()
        AppDelegate.setFormFactorOverride("phone")
    }

    // Qt's item-model tester watches every list model on screen.
    function init() { ModelChecks.attachAll(win) }
    function cleanup() {
        ModelChecks.attachAll(win)
        compare(ModelChecks.takeFailures(), "", "item model faults")
    }

    function materialWithId(unId) {
        var controller = win.materialList.controller
        var field = win.materialList.searchField
        field.text = unId
        field.textEdited()
        tryVerify(function() { return controller.rowCount() > 0 && controller.materialAt(0).unId === unId }, 3000)
        var m = controller.materialAt(0)
        win.materialList.endSearch()
        return m
    }

    function detailPage() {
        var page = findChild(win.contentItem, "materialDetail")
        verify(page, "the detail area shows a material")
        return page
    }

    function test_aNewMaterialStartsFromItsOwnDetail() {
        var a = materialWithId("1005")
        var b = materialWithId("1017")
        AppDelegate.showDetailForMaterial(a)
        var stack = detailPage().StackView.view
        detailPage().openIsolation()
        tryCompare(stack, "busy", false)
        compare(stack.currentItem.objectName, "isolationPage")
        compare(stack.currentItem.material.unId, "1005")

        AppDelegate.showDetailForMaterial(b)
        stack = detailPage().StackView.view
        tryCompare(stack, "busy", false)
        compare(stack.depth, 1, "nothing of the previous material stays on top")
        compare(stack.currentItem.objectName, "materialDetail")
        compare(stack.currentItem.material.unId, "1017")
        compare(stack.currentItem.title, b.name)
        verify(!findChild(win.contentItem, "isolationPage"), "no isolation table left behind")
    }

    function test_inlineShippingRowsFollowTheMaterial() {
        // Both have their own shipping entry; the inline rows must open the shown one's.
        AppDelegate.showDetailForMaterial(materialWithId("1005"))
        var page = detailPage()
        var first = page.controller.shipping.entryAt(0)
        verify(first.name, "the pack has a shipping entry for 1005")
        compare(page.shippingTable.attributes.name, first.name)

        AppDelegate.showDetailForMaterial(materialWithId("1017"))
        page = detailPage()
        var second = page.controller.shipping.entryAt(0)
        verify(second.name && second.name !== first.name)
        compare(page.shippingTable.attributes.name, second.name)
        compare(page.shippingTable.actionForKey("nonBulk").title, "49CFR § 173." + second.nonBulk.replace(/ /g, ""))
    }

    function test_aboutIsReachableWithoutAnAboutTab() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        var button = findChild(win.referencePage, "aboutButton")
        verify(button && button.visible, "the Reference header offers About")
        mouseClick(button)
        compare(AppDelegate.currentTab, AppDelegate.AboutTab)
        tryCompare(win.aboutPage, "visible", true)
        verify(win.aboutPage.width > 0)
        AppDelegate.currentTab = AppDelegate.ReferenceTab
    }
}
