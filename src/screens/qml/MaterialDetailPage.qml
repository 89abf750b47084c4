import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One material: summary, shipping and protection tabs.
Page {
    id: page
    objectName: "materialDetail"
    property var material
    property alias controller: controller
    property alias table: table
    title: material ? material.name : ""
    background: Rectangle { color: QorTheme.pageBackground }

    MaterialViewController { id: controller }
    onMaterialChanged: if (material && material.valid) controller.material = material
    PageRequests { page: page; origin: controller }

    function openIsolation() { controller.openIsolation() }
    function openInfo(name, title) {
        var stack = page.StackView.view
        return stack ? stack.push(Qt.resolvedUrl("InfoPage.qml").toString(), { page: name, title: title }) : null
    }

    header: BarHeader {
        page: page
        title: ""
        Row {
            id: segments
            objectName: "segments"
            spacing: 2
            Repeater {
                model: controller.segmentImages
                Button {
                    required property int index
                    required property string modelData
                    objectName: "segment" + index
                    width: Math.min(controller.segmentWidth, page.width - 90) / controller.segmentImages.length
                    height: QorTheme.touchTarget
                    checkable: true
                    checked: controller.selectedViewIndex === index
                    // Drawn at the size shown, so the artwork stays crisp at any scale.
                    readonly property size iconSize: [Qt.size(21, 21), Qt.size(44, 22), Qt.size(30, 30)][index]
                    icon.source: QorTheme.pdf(modelData, iconSize.width, iconSize.height)
                    icon.width: iconSize.width
                    icon.height: iconSize.height
                    icon.color: "transparent"
                    text: [qsTr("Summary"), qsTr("Shipping"), qsTr("Protection")][index]
                    // A narrow segment shows its picture alone rather than a cut-off word.
                    display: width >= 130 ? AbstractButton.TextBesideIcon : AbstractButton.IconOnly
                    palette.buttonText: checked ? QorTheme.barSelectedText : QorTheme.barText
                    font.pixelSize: 12
                    font.bold: checked
                    Accessible.name: text
                    onClicked: controller.selectedViewIndex = index
                    Rectangle {
                        visible: parent.checked
                        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                        height: 3
                        color: QorTheme.barSelectedText
                    }
                }
            }
        }
    }

    DetailRows {
        id: table
        anchors.fill: parent
        model: controller.rowModel
        onCopyRequested: function(text) { controller.copyToClipboard(text) }
        onInfoClicked: function(name, title) { page.openInfo(name, title) }
        onRowActivated: function(index) { controller.activate(index) }
    }
}
