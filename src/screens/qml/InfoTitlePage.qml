import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// Stands in for the information page screen: shows which page was asked for.
Page {
    id: page
    objectName: "infoTitlePage"
    property string page
    property bool textSizeButton: true
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        RowLayout {
            anchors.fill: parent
            ToolButton {
                visible: page.StackView.index > 0
                text: "‹ " + qsTr("Back")
                implicitHeight: QorTheme.touchTarget
                onClicked: page.StackView.view.pop()
            }
            Label {
                Layout.fillWidth: true
                text: page.title
                color: "white"
                font.bold: true
                elide: Text.ElideRight
            }
            ToolButton {
                objectName: "textSizeButton"
                visible: page.textSizeButton
                text: "A"
                font.bold: true
                implicitWidth: QorTheme.touchTarget
                implicitHeight: QorTheme.touchTarget
                Accessible.name: qsTr("Text size")
            }
        }
    }
    Label {
        anchors.centerIn: parent
        width: parent.width - 40
        text: page.title
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: "white"
        font.pixelSize: 18
    }
}
