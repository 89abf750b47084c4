import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// Screen readers (and tests) find every control and row by its name: on
// every screen of both layouts, nothing a user can press or focus is nameless.
TestCase {
    id: test
    name: "AccessibleNames"
    when: windowShown

    Component { id: mainComponent; Main {} }

    // A pointer handler or mouse area makes its parent something to press.
    function pressable(item) {
        var data = item.data
        for (var i = 0; i < data.length; ++i) {
            var d = data[i]
            if (d instanceof TapHandler || d instanceof MouseArea)
                return true
        }
        return false
    }
    function buttonLike(item) { return typeof item.text === "string" && typeof item.clicked === "function" && item.checkable !== undefined }
    function interactive(item) {
        if (buttonLike(item) || item instanceof TextInput || item instanceof TextEdit || item instanceof TextField
                || item instanceof ComboBox || item instanceof Slider)
            return true
        if (item.activeFocusOnTab)
            return true
        return pressable(item)
    }
    function nameOf(item) {
        var name = item.Accessible.name
        if (name && name.length > 0)
            return name
        // Buttons give their text as their name.
        if (buttonLike(item) && item.text.length > 0)
            return item.text
        if (item instanceof ComboBox && item.displayText.length > 0)
            return item.displayText
        return ""
    }
    function describe(item) {
        var parts = []
        for (var p = item; p && parts.length < 4; p = p.parent)
            parts.push((p.objectName || String(p).split("(")[0]))
        return parts.join(" < ")
    }
    // How many interactive items, and rows with a tap handler, the walk met.
    property int seenInteractive: 0
    property int seenPressable: 0
    function nameless(item, out) {
        if (!item.visible || item.opacity === 0)
            return out
        // A mouse area is the pressable part of its parent, which carries the name.
        if (!(item instanceof MouseArea) && interactive(item)) {
            seenInteractive += 1
            if (pressable(item))
                seenPressable += 1
            if (nameOf(item) === "")
                out.push(describe(item))
        }
        // A web view is one document to a screen reader; its inner items are the engine's.
        if (typeof item.runJavaScript === "function")
            return out
        var kids = item.children
        for (var i = 0; i < kids.length; ++i)
            nameless(kids[i], out)
        return out
    }

    function reset(win) {
        AppDelegate.setFullscreen(false)
        AppDelegate.clearDetail()
        for (var t = 0; t < 6; ++t) {
            AppDelegate.currentTab = t
            win.currentStack().pop(null, StackView.Immediate)
        }
    }

    function checkEveryScreen(formFactor, width, height) {
        AppDelegate.setFormFactorOverride(formFactor)
        var win = mainComponent.createObject(null, { width: width, height: height })
        verify(win)
        tryVerify(function() { return win.materialList.firstMaterial().valid }, 5000)
        var problems = []
        seenInteractive = 0
        seenPressable = 0
        var names = win.screenNames()
        for (var i = 0; i < names.length; ++i) {
            reset(win)
            verify(win.openScreen(names[i]), names[i])
            tryVerify(function() { return !win.currentStack().busy }, 3000)
            wait(50)
            var found = nameless(win.contentItem, []).concat(nameless(win.Overlay.overlay, []))
            for (var j = 0; j < found.length; ++j)
                problems.push(names[i] + ": " + found[j])
        }
        // The keyboard shortcut sheet, over the last screen.
        win.showShortcuts()
        tryVerify(function() { return findChild(win, "shortcutSheet").opened })
        var sheet = nameless(win.Overlay.overlay, [])
        for (var k = 0; k < sheet.length; ++k)
            problems.push("shortcut sheet: " + sheet[k])
        reset(win)
        win.destroy()
        AppDelegate.setFormFactorOverride("phone")
        // The walk reached the controls and the tappable rows of the screens.
        verify(seenInteractive > 200, seenInteractive + " interactive items")
        verify(seenPressable > 20, seenPressable + " rows with a tap handler")
        // Each item once, however many screens show it.
        problems = problems.filter(function(p, i) { return problems.indexOf(p) === i })
        compare(problems.length, 0, "\n" + problems.join("\n"))
    }

    function test_everyScreen_data() {
        return [{ tag: "phone", formFactor: "phone", width: 420, height: 780 },
                { tag: "wide", formFactor: "tablet", width: 1280, height: 800 }]
    }
    function test_everyScreen(data) {
        checkEveryScreen(data.formFactor, data.width, data.height)
    }
}
