import QtQuick
import QtQuick.Controls
import QOR

ApplicationWindow {
    id: window
    width: 420
    height: 760
    visible: true
    title: qsTr("QOR")

    header: ToolBar {
        Label {
            anchors.centerIn: parent
            text: materials.title
            font.bold: true
        }
    }

    ListView {
        id: list
        anchors.fill: parent
        clip: true
        model: MaterialListModel { id: materials }
        section.property: "section"
        section.delegate: Rectangle {
            required property string section
            width: ListView.view.width
            height: 28
            color: "#2c3e50"
            Label { anchors.verticalCenter: parent.verticalCenter; x: 12; text: parent.section; color: "white"; font.bold: true }
        }
        delegate: ItemDelegate {
            required property string name
            required property string unId
            required property string guideId
            width: ListView.view.width
            text: name + "   UN" + unId + "   Guide " + guideId
        }
    }
}
