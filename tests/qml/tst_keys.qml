import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// Every path through the phone layout with the keyboard alone: no mouse event here.
ShellTestCase {
    id: test
    name: "Keyboard"
    windowProperties: ({ width: 420, height: 780 })

    function setUpWindow() { AppDelegate.currentTab = AppDelegate.MaterialsTab }
    function reset() {
        AppDelegate.setFullscreen(false)
        win.materialList.endSearch()
        for (var i = 0; i < 6; ++i) {
            AppDelegate.currentTab = i
            win.currentStack().pop(null, StackView.Immediate)
        }
        AppDelegate.currentTab = AppDelegate.MaterialsTab
    }

    function list() { return win.materialList }
    function materialsStack() { return list().StackView.view }
    // The page on top once the materials stack has stopped moving.
    function settled() { tryCompare(materialsStack(), "busy", false); return materialsStack().currentItem }
    function typeText(text) {
        for (var i = 0; i < text.length; ++i)
            keyClick(text[i])
    }
    function focused() { return win.activeFocusItem }
    // The row table holding the keyboard focus (its current row has the focus itself).
    function focusedTable() {
        var item = focused()
        while (item && item.activate === undefined)
            item = item.parent
        return item
    }

    // "/" from anywhere, the number, Enter: the first result's detail, its rows holding the keys.
    function openByKeys(unId) {
        keyClick("/")
        verify(list().searchField.activeFocus, "/ goes to the search field " + focused())
        typeText(unId)
        tryVerify(function() { return list().controller.rowCount() > 0 && list().controller.materialAt(0).unId === unId }, 3000)
        keyClick(Qt.Key_Return)
        var page = settled()
        compare(page.material.unId, unId)
        tryVerify(function() { return page.table.activeFocus }, 2000, "the rows take the keys")
        return page
    }
    // Down through the rows to the first one of `kind` (and `key`), by keys only.
    function focusRow(table, kind, key) {
        var rows = rowsIn(table.model)
        // "guide" names DetailRowModel.Guide, and so on.
        var wanted = DetailRowModel[kind.charAt(0).toUpperCase() + kind.slice(1)]
        var target = rows.findIndex(function(r) { return r.kind === wanted && (key === undefined || r.key === key) })
        verify(target >= 0, "a " + kind + " row in " + JSON.stringify(rows.map(function(r) { return r.kind + ":" + r.key })))
        while (table.currentIndex < target)
            keyClick(Qt.Key_Down)
        compare(table.currentIndex, target)
        return rows[target]
    }

    function test_searchFieldResults() {
        // Typing on the list goes to the search; Down and Up walk the results and back.
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        keyClick(Qt.Key_F, Qt.ControlModifier)
        compare(AppDelegate.currentTab, AppDelegate.MaterialsTab, "Ctrl+F comes to the materials list")
        verify(list().searchField.activeFocus)
        keyClick(Qt.Key_Escape)
        list().listView.forceActiveFocus()
        typeText("chlor")
        verify(list().searchField.activeFocus, "typing on the list goes to the search")
        compare(list().searchField.text, "chlor")
        // In the field "?" is a character, not the shortcut sheet.
        keyClick("?")
        compare(list().searchField.text, "chlor?")
        keyClick(Qt.Key_Backspace)
        tryVerify(function() { return list().controller.rowCount() > 2 }, 3000)
        var view = list().listView
        keyClick(Qt.Key_Down)
        verify(view.activeFocus)
        compare(view.currentIndex, 0)
        keyClick(Qt.Key_Up)
        verify(list().searchField.activeFocus, "Up from the first result returns to the field")
        // Enter on a result opens that one, not the first.
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        var second = list().controller.materialAt(1)
        keyClick(Qt.Key_Return)
        compare(settled().material.unId, second.unId)
    }

    function test_guideAndBackWithFullScreen() {
        var page = openByKeys("1005")
        var guideId = page.material.guideId
        focusRow(page.table, "guide")
        keyClick(Qt.Key_Return)
        compare(AppDelegate.currentTab, AppDelegate.GuidesTab)
        tryVerify(function() { var g = win.currentStack().currentItem; return g.objectName === "guidePage" && g.guideId === guideId }, 3000)
        var guide = win.currentStack().currentItem
        tryCompare(win.currentStack(), "busy", false)
        // Full screen: neither Alt+Left nor Esc leaves the guide while the bars are hidden.
        keyClick(Qt.Key_F11)
        verify(AppDelegate.fullscreen)
        keyClick(Qt.Key_Left, Qt.AltModifier)
        verify(!AppDelegate.fullscreen, "Alt+Left brings the bars back first")
        compare(win.currentStack().currentItem, guide)
        keyClick(Qt.Key_F11)
        keyClick(Qt.Key_Escape)
        verify(!AppDelegate.fullscreen)
        compare(win.currentStack().currentItem, guide, "the guide stays")
        // Text size in steps, kept within 65..130 and stored.
        guide.controller.sliderChanged(125)
        keyClick(Qt.Key_Equal, Qt.ControlModifier)
        compare(guide.controller.textFontSize, 130)
        keyClick(Qt.Key_Equal, Qt.ControlModifier)
        compare(guide.controller.textFontSize, 130, "never above 130")
        keyClick(Qt.Key_Minus, Qt.ControlModifier)
        compare(guide.controller.textFontSize, 125)
        guide.controller.sliderChanged(68)
        keyClick(Qt.Key_Minus, Qt.ControlModifier)
        keyClick(Qt.Key_Minus, Qt.ControlModifier)
        compare(guide.controller.textFontSize, 65, "never below 65")
        guide.controller.sliderChanged(100)
        // Then back: Esc leaves the guide.
        keyClick(Qt.Key_Escape)
        tryCompare(win.currentStack(), "depth", 1)
    }

    function test_isolationTablesAndUnits() {
        var page = openByKeys("1005")
        focusRow(page.table, "iso")
        keyClick(Qt.Key_Space)
        var iso = settled()
        var units = iso.table.delegateController.units
        keyClick(Qt.Key_U)
        compare(iso.table.delegateController.units, 1 - units)
        compare(iso.table.delegateController.sections[1].isolate, units === 0 ? "300 m" : "1000 ft")
        keyClick(Qt.Key_Left, Qt.AltModifier)
        compare(settled(), page)
        tryVerify(function() { return page.table.activeFocus }, 2000, "the rows have the keys again")
    }

    function test_tabsAndPackagingSection() {
        var page = openByKeys("1005")
        keyClick(Qt.Key_2, Qt.ControlModifier)
        compare(page.controller.selectedViewIndex, 1)
        // Ctrl+I: the page about the focused row's section, as its "i" button opens.
        focusRow(page.table, "incident")
        keyClick(Qt.Key_I, Qt.ControlModifier)
        compare(settled().objectName, "infoPage")
        keyClick(Qt.Key_Escape)
        compare(settled(), page)
        tryVerify(function() { return page.table.activeFocus }, 2000)
        page.table.currentIndex = 0
        // A shipping entry, then its non-bulk packaging section.
        focusRow(page.table, "entry")
        keyClick(Qt.Key_Enter)
        compare(settled().objectName, "shippingEntry")
        tryVerify(function() { return focusedTable() !== null }, 2000, "the entry's rows take the keys")
        focusRow(focusedTable(), "shipping", "nonBulk")
        keyClick(Qt.Key_Space)
        compare(settled().objectName, "regulationPage")
        keyClick(Qt.Key_Escape)
        keyClick(Qt.Key_Escape)
        compare(settled(), page)
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(page.controller.selectedViewIndex, 0)
        // Tab walks the rows one by one before leaving the table.
        page.table.currentIndex = 0
        keyClick(Qt.Key_Tab)
        compare(page.table.currentIndex, 1)
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
        compare(page.table.currentIndex, 0)
    }

    function test_shortcutSheetListsTheScreensKeys() {
        openByKeys("1005")
        keyClick(Qt.Key_F1)
        tryVerify(function() { return findChild(win, "shortcutSheet") !== null })
        var sheet = findChild(win, "shortcutSheet")
        tryCompare(sheet, "opened", true)
        var keys = sheet.shortcuts.map(function(s) { return s.keys })
        verify(keys.indexOf("Ctrl+1, Ctrl+2, Ctrl+3") >= 0, keys.join(" | "))
        verify(keys.indexOf("Ctrl+P") < 0, "no guide keys on the detail screen")
        // Esc closes the sheet and stays on the screen.
        keyClick(Qt.Key_Escape)
        tryCompare(sheet, "visible", false)
        compare(materialsStack().currentItem.objectName, "materialDetail")
        keyClick("?")
        tryCompare(sheet, "opened", true)
        keyClick(Qt.Key_Escape)
        tryCompare(sheet, "visible", false)
    }
}
