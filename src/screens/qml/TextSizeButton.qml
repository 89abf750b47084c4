import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The "Aa" button of the reading screens and the sheet with its text-size slider.
ToolButton {
    id: button
    objectName: "textSizeButton"
    required property GuideViewController controller
    property alias sheet: sheet
    text: "Aa"
    font.pixelSize: 18
    width: QorTheme.touchTarget; height: QorTheme.touchTarget
    palette.buttonText: QorTheme.barText
    Accessible.name: qsTr("Text size")
    onClicked: sheet.open()

    Dialog {
        id: sheet
        objectName: "textSheet"
        parent: Overlay.overlay
        anchors.centerIn: Overlay.overlay
        modal: true
        width: Math.min(360, (Overlay.overlay ? Overlay.overlay.width : 380) - 20)
        footer: DialogButtonBox {
            Button { text: qsTr("Done"); implicitHeight: QorTheme.touchTarget; DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole }
        }
        property alias slider: slider
        RowLayout {
            anchors.fill: parent
            Label { text: "A"; font.pixelSize: 15 }
            Slider {
                id: slider
                objectName: "textSizeSlider"
                Accessible.name: qsTr("Text size")
                Layout.fillWidth: true
                implicitHeight: QorTheme.touchTarget
                from: 65
                to: 130
                value: button.controller.textFontSize
                onMoved: button.controller.sliderChanged(value)
            }
            Label { text: "A"; font.pixelSize: 22; font.bold: true }
        }
    }
}
