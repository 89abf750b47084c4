import QtQuick
import QtQuick.Controls
import QOR

Page {
    objectName: "HistoryPage"
    title: qsTr("History")
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        Label { anchors.centerIn: parent; text: qsTr("History"); color: "white"; font.bold: true }
    }
}
