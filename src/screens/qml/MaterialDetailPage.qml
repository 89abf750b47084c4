import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One material: its name, UN number and guide.
Page {
    id: page
    objectName: "materialDetail"
    property var material
    title: material ? material.name : ""
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        RowLayout {
            anchors.fill: parent
            ToolButton {
                visible: page.StackView.view !== null && page.StackView.index > 0
                text: "‹ " + qsTr("Back")
                implicitHeight: QorTheme.touchTarget
                Accessible.name: qsTr("Back")
                onClicked: page.StackView.view.pop()
            }
            Label { Layout.fillWidth: true; text: page.title; color: "white"; font.bold: true; elide: Text.ElideRight }
        }
    }
    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        Label { text: page.material ? page.material.name : ""; color: "white"; font.pixelSize: 22; font.bold: true; wrapMode: Text.Wrap; Layout.fillWidth: true }
        Label { text: page.material ? "UN" + page.material.unId : ""; color: "#ffb045"; font.pixelSize: 20; font.bold: true }
        Button {
            objectName: "guideButton"
            text: page.material ? qsTr("Guide %1").arg(page.material.guideId) : ""
            implicitHeight: QorTheme.touchTarget
            onClicked: AppDelegate.showGuideForMaterial(page.material.guideId, page.material)
        }
        Label { text: QorTheme.sampleNotice; color: "#ffb045"; font.pixelSize: 11 }
        Item { Layout.fillHeight: true }
    }
}
