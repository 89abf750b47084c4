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

    function initTestCase() {
        setUpWindow()
        win = mainComponent.createObject(null, windowProperties)
        verify(win)
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
