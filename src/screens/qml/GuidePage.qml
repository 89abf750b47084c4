import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One response guide.
Page {
    id: page
    objectName: "guidePage"
    property string guideId
    property var material
    title: qsTr("Guide %1").arg(guideId)
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        RowLayout {
            anchors.fill: parent
            ToolButton {
                visible: page.StackView.index > 0
                text: "‹ " + qsTr("Back")
                implicitHeight: QorTheme.touchTarget
                onClicked: page.StackView.view.pop()
            }
            Label { Layout.fillWidth: true; text: page.title; color: "white"; font.bold: true }
        }
    }
}
