import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// "Filter Materials": materials with incidents only. Categories are switched
// by the material list's pull-down menu; a category list here would relabel
// the current filter instead of switching to another one.
Dialog {
    id: dialog
    objectName: "filterPage"
    title: qsTr("Filter Materials")
    modal: true
    width: Math.min(380, parent ? parent.width - 20 : 380)
    standardButtons: Dialog.Cancel
    property var material  // unused; lets the shell push any screen the same way

    FilterController { id: filter }

    onAboutToShow: filter.refresh()
    onRejected: filter.cancel()

    header: ToolBar {
        background: Rectangle { color: QorTheme.pageBackground }
        RowLayout {
            anchors.fill: parent
            Label {
                Layout.fillWidth: true
                Layout.leftMargin: 12
                text: dialog.title
                color: "white"
                font.bold: true
            }
            Button {
                objectName: "filterDone"
                text: qsTr("Done")
                implicitHeight: QorTheme.touchTarget
                onClicked: { filter.done(); dialog.close() }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        Switch {
            id: incidentsSwitch
            objectName: "incidentsSwitch"
            Layout.fillWidth: true
            implicitHeight: 45
            text: qsTr("Materials with Incidents")
            font.bold: true
            font.pixelSize: 14
            checked: filter.incidentsOnly
            Accessible.name: text
            onToggled: filter.incidentsOnly = checked
        }
    }
}
