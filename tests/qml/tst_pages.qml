import QtQuick
import QtQuick.Controls
import QtTest
import QOR

// Pages on their own, in a stack of the test's, without the app's shell:
// what they open goes through Navigation or onto their own stack.
TestCase {
    id: test
    name: "PagesAlone"
    when: windowShown
    width: 400
    height: 700

    StackView { id: stack; anchors.fill: parent }
    MaterialListController { id: materials }
    SignalSpy { id: materialRequests; target: Navigation; signalName: "materialRequested" }
    SignalSpy { id: guideRequests; target: Navigation; signalName: "guideRequested" }

    function cleanup() {
        stack.clear(StackView.Immediate)
        materialRequests.clear()
        guideRequests.clear()
    }

    function materialWithId(unId) {
        materials.searchText = unId
        materials.searchNow()
        tryVerify(function() { return materials.rowCount() > 0 && materials.materialAt(0).unId === unId }, 3000)
        var m = materials.materialAt(0)
        materials.doneSearch()
        return m
    }

    function indexOfKind(controller, kind) {
        for (var i = 0; i < controller.rowModel.count; ++i)
            if (controller.rowModel.get(i).kind === kind)
                return i
        return -1
    }

    function test_detailPageOpensItsRowsOnItsOwnStack() {
        var detail = stack.push(Qt.resolvedUrl("qrc:/QOR/MaterialDetailPage.qml").toString(), { material: materialWithId("1005") },
                                StackView.Immediate)
        detail.controller.selectedViewIndex = 0
        detail.controller.activate(indexOfKind(detail.controller, DetailRowModel.Iso))
        tryCompare(stack, "busy", false)
        compare(stack.depth, 2)
        compare(stack.currentItem.objectName, "isolationPage")
        stack.pop(StackView.Immediate)

        // The guide is the shell's to show: the page only asks for it.
        detail.controller.activate(indexOfKind(detail.controller, DetailRowModel.Guide))
        compare(guideRequests.count, 1)
        compare(guideRequests.signalArguments[0][0], "125")
        compare(stack.depth, 1)
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
