import QtQuick
import QtQuick.Controls
import QOR

Page {
    objectName: "ReferencePage"
    title: qsTr("Reference")
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        Label { anchors.centerIn: parent; text: qsTr("Reference"); color: "white"; font.bold: true }
    }
}
