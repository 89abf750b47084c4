import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The isolation distance sections of one material; large bold figures that
// read at arm's length.
ListView {
    id: table
    property var material
    property alias delegateController: iso
    readonly property color green: QorTheme.isolationGreen
    signal infoRequested(string page, string title)
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    ScrollBar.vertical: ScrollBar {}
    model: iso.sections
    onMaterialChanged: if (material && material.valid) iso.material = material

    IsolationTableDelegate {
        id: iso
        onInfoPageRequested: function(page, title) { table.infoRequested(page, title) }
    }

    header: Rectangle {
        width: ListView.view.width
        height: headerCol.implicitHeight + 20
        color: table.green
        Column {
            id: headerCol
            x: 12; y: 10
            width: parent.width - 24
            spacing: 8
            Label { text: iso.headerLabel; font.pixelSize: 22; font.bold: true; color: QorTheme.isolationText; wrapMode: Text.Wrap; width: parent.width }
            Row {
                objectName: "unitsSwitch"
                spacing: 0
                Repeater {
                    model: [qsTr("ft/miles"), qsTr("m/kms")]
                    Button {
                        required property int index
                        required property string modelData
                        objectName: "units" + index
                        text: modelData
                        checkable: true
                        checked: iso.units === index
                        implicitHeight: QorTheme.touchTarget
                        implicitWidth: 110
                        font.bold: true
                        onClicked: iso.segmentAction(index)
                    }
                }
            }
            Label { text: QorTheme.sampleNotice; color: QorTheme.isolationText; font.pixelSize: 12; font.bold: true }
        }
    }

    delegate: Column {
        id: section
        required property var modelData
        width: ListView.view.width
        Rectangle {
            width: parent.width
            height: 30
            color: table.green
            Label {
                x: 12
                width: parent.width - 24
                anchors.verticalCenter: parent.verticalCenter
                text: section.modelData.title
                font.pixelSize: 15
                font.bold: true
                color: QorTheme.isolationText
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 10
            }
        }
        Rectangle {
            width: parent.width
            height: body.implicitHeight + 16
            color: QorTheme.pageBackground
            Column {
                id: body
                x: 12; y: 8
                width: parent.width - 24
                spacing: 4
                Loader {
                    width: parent.width
                    sourceComponent: section.modelData.kind === "container" ? containerCell : conditionCell
                    property var cell: section.modelData
                }
            }
        }
        Rectangle { width: parent.width; height: 8; color: table.green }
    }

    component Figure: RowLayout {
        property string caption
        property string value
        property url icon
        width: parent ? parent.width : 0
        Image { visible: icon.toString().length > 0; source: icon; Layout.preferredWidth: 28; Layout.preferredHeight: 28 }
        Label { text: caption; color: QorTheme.pageText; font.pixelSize: 15; font.bold: true; Layout.fillWidth: true; wrapMode: Text.Wrap }
        Label { text: value; color: QorTheme.valueText; font.pixelSize: 26; font.bold: true; horizontalAlignment: Text.AlignRight }
    }

    Component {
        id: conditionCell
        Column {
            readonly property var cell: parent ? parent.cell : ({})
            spacing: 4
            Repeater {
                model: cell.hideLargeSpill ? ["small"] : ["small", "large"]
                Column {
                    required property string modelData
                    width: parent.width
                    spacing: 2
                    Label { text: modelData === "small" ? qsTr("Small Spill") : qsTr("Large Spill"); color: QorTheme.pageText; font.pixelSize: 17; font.bold: true }
                    Figure { caption: qsTr("First ISOLATE in all Directions for :"); value: cell[modelData + "Isolate"] }
                    Label { text: qsTr("Then protect persons Downwind"); color: QorTheme.pageText; font.pixelSize: 15; font.bold: true }
                    Figure { caption: qsTr("(Day) :"); icon: iso.dayIcon; value: cell[modelData + "Day"] }
                    Figure { caption: qsTr("(Night) :"); icon: iso.nightIcon; value: cell[modelData + "Night"] }
                }
            }
        }
    }
    Component {
        id: containerCell
        Column {
            readonly property var cell: parent ? parent.cell : ({})
            spacing: 2
            Label { text: qsTr("Large Spill"); color: QorTheme.pageText; font.pixelSize: 17; font.bold: true }
            Figure { caption: qsTr("First ISOLATE in all Directions for :"); value: cell.isolate }
            Label { text: qsTr("Then protect persons Downwind"); color: QorTheme.pageText; font.pixelSize: 15; font.bold: true }
            Figure { caption: qsTr("(Day)"); icon: iso.dayIcon }
            Repeater { model: 3; Figure { required property int index; caption: cell.windCaptions[index]; value: cell.day[index] } }
            Figure { caption: qsTr("(Night)"); icon: iso.nightIcon }
            Repeater { model: 3; Figure { required property int index; caption: cell.windCaptions[index]; value: cell.night[index] } }
        }
    }
}
