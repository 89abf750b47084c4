import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// Legibility of the bars, the appearance shortcut, and a side index that fits.
ShellTestCase {
    id: test
    name: "Theme"
    windowProperties: ({ width: 420, height: 560 })

    function setUpWindow() {
        QorTheme.choice = "system"
        AppDelegate.currentTab = AppDelegate.MaterialsTab
    }
    function cleanupTestCase() {
        QorTheme.choice = "system"
        AppDelegate.showAllMaterialsWithSort(0)
        win.destroy()
    }

    function luminance(c) {
        function ch(v) { return v <= 0.03928 ? v / 12.92 : Math.pow((v + 0.055) / 1.055, 2.4) }
        return 0.2126 * ch(c.r) + 0.7152 * ch(c.g) + 0.0722 * ch(c.b)
    }
    function contrast(a, b) {
        var la = luminance(a), lb = luminance(b)
        return (Math.max(la, lb) + 0.05) / (Math.min(la, lb) + 0.05)
    }
    function toolButtons(item, found) {
        for (var i = 0; i < item.children.length; ++i) {
            var child = item.children[i]
            if (child instanceof ToolButton)
                found.push(child)
            toolButtons(child, found)
        }
        return found
    }

    function test_barButtonsReadOnTheBar_data() {
        return [{ tag: "light", choice: "light" }, { tag: "dark", choice: "dark" }]
    }
    function test_barButtonsReadOnTheBar(data) {
        QorTheme.choice = data.choice
        var buttons = toolButtons(win.materialList.header, []).concat(toolButtons(win.referencePage.header, []))
        verify(buttons.length >= 4, "category, filter, sort and placards buttons")
        for (var i = 0; i < buttons.length; ++i) {
            var b = buttons[i]
            verify(contrast(b.palette.buttonText, QorTheme.barBackground) >= 4.5, "button " + (b.text || b.Accessible.name))
            verify(b.width >= QorTheme.touchTarget && b.height >= QorTheme.touchTarget, "touch target " + (b.text || b.Accessible.name))
        }
        QorTheme.choice = "system"
    }

    function test_shortcutSwitchesAppearance() {
        var before = QorTheme.dark
        var page = win.color.toString()
        keyClick(Qt.Key_D, Qt.ControlModifier | Qt.ShiftModifier)
        compare(QorTheme.dark, !before)
        verify(!Qt.colorEqual(win.color, page), "the content recolours")
        keyClick(Qt.Key_D, Qt.ControlModifier | Qt.ShiftModifier)
        compare(QorTheme.dark, before)
        QorTheme.choice = "system"
    }

    function test_sideIndexFitsAndDragShowsKey() {
        var list = win.materialList
        AppDelegate.showAllMaterialsWithSort(3)
        var controller = list.controller
        tryVerify(function() { return controller.sectionIndex.length > 0 })
        var index = findChild(list, "sideIndex")
        verify(index.width >= 44)
        var capacity = Math.floor(index.height / index.entryHeight)
        verify(index.entries.length <= capacity)
        verify(controller.sectionIndex.length > capacity, controller.sectionIndex.length + " keys, room for " + capacity)

        // It ends above the tab bar.
        var tabBar = findChild(win, "tabBar")
        var bottom = index.mapToItem(null, 0, index.height).y
        verify(bottom <= tabBar.mapToItem(null, 0, 0).y, "side index bottom " + bottom)

        // A drag from top to bottom scrolls and shows the key under the finger.
        var bubble = findChild(list, "sideIndexBubble")
        var view = list.listView
        mousePress(index, index.width / 2, index.height / 2)
        verify(bubble.visible)
        for (var y = 0; y <= index.height; y += 10)
            mouseMove(index, index.width / 2, y)
        verify(view.contentY > 0, "the list moved")
        verify(index.shownKey !== "")
        mouseRelease(index, index.width / 2, index.height)
        verify(!bubble.visible)
    }
}
