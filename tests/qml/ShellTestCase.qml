import QtQuick
import QtTest
import QOR
import QorTest

// A test case on the real shell: one window for all its tests, and Qt's
// item-model tester on every list model the screens make.
TestCase {
    when: windowShown
    property var win
    property var windowProperties: ({})

    Component { id: mainComponent; Main {} }

    // Hooks for the cases: before the window is made, and after each test.
    function setUpWindow() {}
    function reset() {}

    // The rows of a row model or of a detail page, and the index of the first of `kind` (and `key`).
    function rowsIn(model) {
        var rows = []
        for (var i = 0; i < model.count; ++i)
            rows.push(model.get(i))
        return rows
    }
    function rowsOf(page) { return rowsIn(page.controller.rowModel) }
    function indexOfKind(page, kind, key) {
        return rowsOf(page).findIndex(function(r) { return r.kind === kind && (key === undefined || r.key === key) })
    }
    // Types unId into the materials search and waits until it heads the results.
    function searchFor(unId) {
        var list = win.materialList
        list.searchField.text = unId
        list.searchField.textEdited()
        tryVerify(function() { return list.controller.rowCount() > 0 && list.controller.materialAt(0).unId === unId }, 3000)
        return list.controller.materialAt(0)
    }

    function initTestCase() {
        setUpWindow()
        win = mainComponent.createObject(null, windowProperties)
        verify(win)
        win.requestActivate()
        tryVerify(function() { return win.active })
        verify(ModelChecks.attachAll(win) >= 4, "the shell's list models are watched")
    }
    function cleanupTestCase() { win.destroy() }
    function init() { ModelChecks.attachAll(win) }
    function cleanup() {
        ModelChecks.attachAll(win)
        reset()
        compare(ModelChecks.takeFailures(), "", "item model faults")
    }
}
