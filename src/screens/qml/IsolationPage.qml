import QtQuick
import QtQuick.Controls
import QOR

// The isolation distance tables, pushed from the material detail screen.
Page {
    id: page
    objectName: "isolationPage"
    property var material
    property string backText: qsTr("Back")
    property alias table: table
    readonly property Item unitsTable: table
    StackView.onActivated: table.forceActiveFocus()
    Keys.onPressed: function(event) {
        if (event.key === Qt.Key_U && event.modifiers === Qt.NoModifier) {
            table.toggleUnits()
            event.accepted = true
        }
    }
    title: qsTr("Isolation Distances")
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader {
        page: page
        title: page.title
        backText: page.backText
        ToolButton {
            visible: !AppDelegate.tablet
            opacity: 0.5
            text: "i"
            font.pixelSize: 18
            font.bold: true
            font.italic: true
            width: QorTheme.touchTarget; height: QorTheme.touchTarget
            palette.buttonText: QorTheme.barText
            Accessible.name: qsTr("About isolation distances")
            onClicked: table.delegateController.infoButtonClicked()
        }
    }
    IsolationTable {
        id: table
        anchors.fill: parent
        material: page.material
        onInfoRequested: function(name, title) {
            if (page.StackView.view)
                page.StackView.view.push(Qt.resolvedUrl("InfoPage.qml").toString(), { page: name, title: title })
        }
    }
}
