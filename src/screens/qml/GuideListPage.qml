import QtQuick
import QtQuick.Controls
import QOR

Page {
    objectName: "GuideListPage"
    title: qsTr("Guides")
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        Label { anchors.centerIn: parent; text: qsTr("Guides"); color: "white"; font.bold: true }
    }
}
