import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Window
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
    onMaterialChanged: if (material && material.valid) { iso.material = material; zone.material = material }
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Isolation Distances")
    FocusRing { parent: table; anchors.fill: parent; shown: table.activeFocus }
    // The "U" key: feet and miles, or metres and kilometres.
    function toggleUnits() { iso.segmentAction(iso.units === 0 ? 1 : 0) }

    IsolationTableDelegate {
        id: iso
        onInfoPageRequested: function(page, title) { table.infoRequested(page, title) }
        // The figure follows the units switch.
        onTableChanged: zone.refresh()
    }
    property alias zoneController: zone
    ZoneFigureController {
        id: zone
        dark: Appearance.dark
    }

    // The zone drawn to scale, with its inputs, and the incident sheet.
    footer: Column {
        id: zoneSection
        objectName: "zoneSection"
        width: ListView.view.width
        spacing: 8
        topPadding: 8
        bottomPadding: 16
        Rectangle {
            width: parent.width
            height: 30
            color: table.green
            Label { x: 12; anchors.verticalCenter: parent.verticalCenter; text: qsTr("Protective action zone"); font.pixelSize: 15; font.bold: true; color: QorTheme.isolationText }
        }
        Flow {
            x: 12
            width: parent.width - 24
            spacing: 6
            Repeater {
                model: [qsTr("Small spill"), qsTr("Large spill")]
                Button {
                    required property int index
                    required property string modelData
                    objectName: "spill" + index
                    text: modelData
                    checkable: true
                    checked: zone.large === (index === 1)
                    implicitHeight: QorTheme.touchTarget
                    onClicked: zone.large = index === 1
                }
            }
            Repeater {
                model: [qsTr("Day"), qsTr("Night")]
                Button {
                    required property int index
                    required property string modelData
                    objectName: "time" + index
                    text: modelData
                    checkable: true
                    checked: zone.night === (index === 1)
                    implicitHeight: QorTheme.touchTarget
                    onClicked: zone.night = index === 1
                }
            }
            ComboBox {
                objectName: "conditionBox"
                visible: zone.conditions.length > 1
                model: zone.conditions
                currentIndex: zone.condition
                implicitHeight: QorTheme.touchTarget
                onActivated: function(i) { zone.condition = i }
            }
            ComboBox {
                objectName: "containerBox"
                visible: zone.usesContainers
                model: zone.containers
                currentIndex: zone.container
                implicitWidth: 260
                implicitHeight: QorTheme.touchTarget
                onActivated: function(i) { zone.container = i }
            }
            ComboBox {
                objectName: "windSpeedBox"
                visible: zone.usesContainers
                model: zone.windSpeeds
                currentIndex: zone.windSpeed
                implicitHeight: QorTheme.touchTarget
                onActivated: function(i) { zone.windSpeed = i }
            }
        }
        Row {
            x: 12
            spacing: 16
            // Drag the needle to where the wind comes from.
            Rectangle {
                id: compass
                objectName: "compass"
                width: 110; height: 110; radius: 55
                color: "transparent"
                border.color: QorTheme.pageText
                border.width: 2
                Accessible.name: qsTr("Wind direction compass")
                Label { text: "N"; color: QorTheme.pageText; font.bold: true; anchors.horizontalCenter: parent.horizontalCenter; y: 4 }
                Rectangle {
                    id: needle
                    width: 6; height: 46
                    radius: 3
                    color: QorTheme.tintText
                    x: compass.width / 2 - width / 2
                    y: compass.height / 2 - height
                    transform: Rotation { origin.x: needle.width / 2; origin.y: needle.height; angle: zone.windFrom }
                }
                MouseArea {
                    anchors.fill: parent
                    preventStealing: true
                    onPressed: function(m) { zone.dragNeedleTo(m.x - width / 2, m.y - height / 2) }
                    onPositionChanged: function(m) { zone.dragNeedleTo(m.x - width / 2, m.y - height / 2) }
                }
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter
                spacing: 4
                Label { text: qsTr("Wind from (degrees)"); color: QorTheme.pageText; font.bold: true }
                TextField {
                    objectName: "windField"
                    Accessible.name: qsTr("Wind from (degrees)")
                    text: Math.round(zone.windFrom)
                    validator: IntValidator { bottom: 0; top: 360 }
                    inputMethodHints: Qt.ImhDigitsOnly
                    implicitWidth: 90
                    implicitHeight: QorTheme.touchTarget
                    onEditingFinished: if (acceptableInput) zone.windFrom = parseInt(text)
                }
            }
        }
        Image {
            id: zoneImage
            objectName: "zoneImage"
            x: 12
            width: Math.min(parent.width - 24, 640)
            height: width
            source: zone.imageSource
            fillMode: Image.PreserveAspectFit
            Accessible.name: zone.summary
            onWidthChanged: zone.pixelSize = Math.round(width * Screen.devicePixelRatio)
        }
        Label {
            x: 12
            width: parent.width - 24
            text: zone.summary
            color: QorTheme.pageText
            wrapMode: Text.Wrap
        }
        Flow {
            x: 12
            width: parent.width - 24
            spacing: 8
            Button {
                objectName: "saveSheet"
                text: qsTr("Save incident sheet (PDF)")
                implicitHeight: QorTheme.touchTarget
                onClicked: zone.saveSheet()
            }
            Button {
                objectName: "openSheet"
                visible: zone.sheetPath.length > 0
                text: qsTr("Open to print")
                implicitHeight: QorTheme.touchTarget
                onClicked: Qt.openUrlExternally("file://" + zone.sheetPath)
            }
        }
        Label {
            x: 12
            width: parent.width - 24
            visible: text.length > 0
            text: zone.sheetStatus
            color: QorTheme.pageText
            wrapMode: Text.WrapAnywhere
        }
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
            Label { text: PackStatus.notice; visible: text.length > 0; color: QorTheme.isolationText; font.pixelSize: 12; font.bold: true }
            Label { objectName: "sourceLine"; text: iso.sourceLine; visible: !iso.empty; color: QorTheme.isolationText; font.pixelSize: 11; font.italic: true; wrapMode: Text.Wrap; width: parent.width }
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
