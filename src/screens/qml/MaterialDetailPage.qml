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
    property alias shippingTable: shippingTable
    title: material ? material.name : ""
    background: Rectangle { color: QorTheme.pageBackground }

    MaterialViewController { id: controller }
    onMaterialChanged: if (material && material.valid) controller.material = material

    function push(file, props) {
        var stack = page.StackView.view
        if (stack)
            return stack.push(Qt.resolvedUrl(file).toString(), props)
        return null
    }
    function openInfo(name, title) { return push("InfoPage.qml", { page: name, title: title }) }
    function openIsolation() { return push("IsolationPage.qml", { material: page.material, backText: controller.backTitle }) }
    function openAction(action) {
        if (action.kind === "cfr")
            return push("RegulationPage.qml", { title: action.title, html: action.html, source: action.source, backText: controller.backTitle })
        if (action.kind === "provisions")
            return push("ProvisionsPage.qml", { title: action.title, provisions: action.provisions, headerTitle: action.headerTitle })
        return null
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
                    icon.source: QorTheme.pdf(modelData, index === 1 ? 44 : 26, index === 1 ? 22 : 26)
                    icon.color: "transparent"
                    text: [qsTr("Summary"), qsTr("Shipping"), qsTr("Protection")][index]
                    display: AbstractButton.TextBesideIcon
                    font.pixelSize: 12
                    Accessible.name: text
                    onClicked: controller.selectedViewIndex = index
                }
            }
        }
    }

    DetailRows {
        id: table
        anchors.fill: parent
        model: controller.rows
        onCopyRequested: function(text) { controller.copyToClipboard(text) }
        onInfoClicked: function(name, title) { page.openInfo(name, title) }
        onRowClicked: function(row, index) {
            if (row.kind === "guide")
                AppDelegate.showGuideForMaterial(row.guideId, page.material)
            else if (row.kind === "iso")
                page.openIsolation()
            else if (row.kind === "entry")
                page.push("ShippingEntryPage.qml", { attributes: controller.shipping.entryAt(row.index), backText: controller.backTitle })
            else if (row.kind === "shipping")
                page.openAction(shippingTable.actionForKey(row.key))
            else if (row.kind === "ghs")
                controller.protection.toggleGhsDetails()
        }
        // Shipping rows shown inline belong to the material's one entry.
        ShippingTableDelegate { id: shippingTable; attributes: controller.shipping.firstEntry }
    }
}
