import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The navigation bar of the detail screens: back, title, and the screen's own buttons.
ToolBar {
    id: bar
    property Item page
    property string title
    property string backText: qsTr("Back")
    default property alias tools: toolRow.data
    background: Rectangle { color: QorTheme.barBackground }
    palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
    RowLayout {
        anchors.fill: parent
        spacing: 0
        ToolButton {
            objectName: "backButton"
            visible: bar.page && bar.page.StackView.view !== null && bar.page.StackView.index > 0
            text: "‹ " + bar.backText
            implicitHeight: QorTheme.touchTarget
            implicitWidth: Math.max(QorTheme.touchTarget, implicitContentWidth + 16)
            palette.buttonText: QorTheme.barText
            Accessible.name: bar.backText
            onClicked: bar.page.StackView.view.pop()
        }
        Label {
            Layout.fillWidth: true
            Layout.leftMargin: 8
            Layout.preferredHeight: QorTheme.touchTarget
            verticalAlignment: Text.AlignVCenter
            text: bar.title
            color: QorTheme.barText
            font.bold: true
            font.pixelSize: 16
            elide: Text.ElideRight
        }
        Row { id: toolRow }
    }
}
