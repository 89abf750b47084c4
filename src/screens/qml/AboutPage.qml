import QtQuick
import QtQuick.Controls
import QOR

Page {
    objectName: "AboutPage"
    title: qsTr("About")
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        Label { anchors.centerIn: parent; text: qsTr("About"); color: "white"; font.bold: true }
    }
}
