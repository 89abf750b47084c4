import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One material: summary, shipping and protection tabs; in the wide layout the
// sections side by side, with the isolation distances shown at once.
Page {
    id: page
    objectName: "materialDetail"
    property var material
    property alias controller: controller
    property alias table: table
    // The wide layout: the tablet's detail area, wide enough for columns.
    readonly property bool wide: AppDelegate.tablet && width >= 600
    readonly property Item wideColumns: wideLoader.item
    // The isolation table the units key switches, when one is on screen.
    readonly property Item unitsTable: wide && wideLoader.item ? wideLoader.item.isolation : null
    title: material ? material.name : ""
    background: Rectangle { color: QorTheme.pageBackground }

    MaterialViewController { id: controller }
    PageRequests { page: page; origin: controller }
    onMaterialChanged: {
        if (material && material.valid) {
            controller.material = material
            if (AppDelegate.tablet)
                focusRows()
        }
    }
    StackView.onActivated: focusRows()
    Keys.onPressed: function(event) {
        if (event.key === Qt.Key_U && event.modifiers === Qt.NoModifier && unitsTable) {
            unitsTable.toggleUnits()
            event.accepted = true
        }
    }

    // The rows take the keyboard: the tab's table, or the first column.
    function focusRows() {
        if (wide && wideColumns)
            wideColumns.focusColumn(0)
        else
            table.forceActiveFocus()
    }
    // Ctrl+1..3: the tab on a phone, the column holding that section in the wide layout.
    function showSection(index) {
        if (index < 0 || index >= controller.segmentImages.length)
            return
        if (wide && wideColumns) {
            wideColumns.focusColumn(index)
        } else {
            controller.selectedViewIndex = index
            table.forceActiveFocus()
        }
    }
    function openIsolation() { controller.openIsolation() }
    function openInfo(name, title) {
        var stack = page.StackView.view
        return stack ? stack.push(Qt.resolvedUrl("InfoPage.qml").toString(), { page: name, title: title }) : null
    }

    header: BarHeader {
        page: page
        title: page.wide ? page.title : ""
        Row {
            id: segments
            objectName: "segments"
            visible: !page.wide
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
                    Accessible.role: Accessible.PageTab
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

    // Every table of this screen: its rows open, copy and explain alike.
    component MaterialRows: DetailRows {
        onCopyRequested: function(text) { controller.copyToClipboard(text) }
        onInfoClicked: function(name, title) { page.openInfo(name, title) }
        onRowActivated: function(index) { controller.activateIn(model, index) }
    }

    MaterialRows {
        id: table
        anchors.fill: parent
        visible: !page.wide
        model: page.wide ? null : controller.rowModel
        Accessible.name: [qsTr("Summary"), qsTr("Shipping"), qsTr("Protection")][controller.selectedViewIndex] || qsTr("Details")
    }

    Loader {
        id: wideLoader
        anchors.fill: parent
        active: page.wide
        sourceComponent: wideComponent
        // The columns take over the keys where the tab's rows had them.
        onLoaded: if (AppDelegate.tablet && AppDelegate.detailMaterial.valid) page.focusRows()
    }

    // Summary, isolation distances, and shipping with protection, as columns.
    Component {
        id: wideComponent
        RowLayout {
            objectName: "wideColumns"
            spacing: 0
            property alias isolation: isolation
            readonly property var columns: [summaryColumn, shippingColumn, shippingColumn]
            function focusColumn(index) {
                var column = columns[index]
                column.forceActiveFocus()
                // Protection follows shipping in the same column.
                if (index === 2 && controller.protectionRowStart < column.count)
                    column.currentIndex = controller.protectionRowStart
                else if (index === 1)
                    column.currentIndex = 0
                column.positionViewAtIndex(Math.max(0, column.currentIndex), ListView.Beginning)
            }
            MaterialRows {
                id: summaryColumn
                objectName: "summaryColumn"
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                model: controller.summaryRowModel
                Accessible.name: qsTr("Summary")
            }
            Rectangle { Layout.fillHeight: true; Layout.preferredWidth: 1; color: QorTheme.divider }
            IsolationTable {
                id: isolation
                objectName: "isolationColumn"
                visible: !delegateController.empty
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                material: page.material
                onInfoRequested: function(name, title) { page.openInfo(name, title) }
            }
            Rectangle { visible: isolation.visible; Layout.fillHeight: true; Layout.preferredWidth: 1; color: QorTheme.divider }
            MaterialRows {
                id: shippingColumn
                objectName: "shippingColumn"
                Layout.fillHeight: true
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                model: controller.sideRowModel
                Accessible.name: qsTr("Shipping") + ", " + qsTr("Protection")
            }
        }
    }
}
