import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// Pages on their own, in a stack of the test's, without the app's shell:
// what they open goes through Navigation.
TestCase {
    id: test
    name: "PagesAlone"
    when: windowShown
    width: 400
    height: 700

    StackView { id: stack; anchors.fill: parent }
    SignalSpy { id: materialRequests; target: Navigation; signalName: "materialRequested" }

    function cleanup() {
        stack.clear(StackView.Immediate)
        materialRequests.clear()
    }

    function test_listPageAsksForTheMaterial() {
        var list = stack.push(Qt.resolvedUrl("qrc:/QOR/MaterialListPage.qml").toString(), {}, StackView.Immediate)
        tryVerify(function() { return list.controller.rowCount() > 0 }, 3000)
        list.openRow(0)
        compare(materialRequests.count, 1)
        compare(materialRequests.signalArguments[0][0].name, list.controller.materialAt(0).name)
        compare(stack.depth, 1, "the shell, not the page, opens the material")
    }
}
