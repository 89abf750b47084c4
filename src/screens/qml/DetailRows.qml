import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// A sectioned table of a controller's DetailRowModel; presents only. A
// chosen row goes back to the controller, which knows what it opens.
ListView {
    id: table
    property bool dark: Appearance.dark
    signal rowActivated(int index)
    signal infoClicked(string page, string title)
    signal copyRequested(string text)
    clip: true
    spacing: 1
    boundsBehavior: Flickable.StopAtBounds
    ScrollBar.vertical: ScrollBar {}
    // Keyboard: the rows take focus in order, Enter or Space opens the focused one.
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    // Above the rows, whose backgrounds would hide it.
    highlight: FocusRing { shown: table.activeFocus }
    currentIndex: -1
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Details")
    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0

    // Taps and keys open a row through here alike.
    function activate(index) {
        if (index >= 0 && index < count)
            table.rowActivated(index)
    }
    // A row's name for screen readers: its visible texts in reading order.
    function rowName(row, kind) {
        var parts = [row.header && row.sectionStart ? row.header : "", row.caption, row.name, row.unId, row.title, row.subtitle,
                     row.text, row.detail, row.note]
        if (kind === DetailRowModel.Ghs)
            parts.push(row.expanded ? qsTr("Show less") : qsTr("Show all %1 statements").arg(row.statements.length))
        return parts.filter(function(p) { return p !== undefined && p !== null && String(p).length > 0 }).join(", ")
    }
    // The row buttons' own keys: Ctrl+C copies the focused row's name and
    // number, Ctrl+I opens the page about the focused row's section.
    Keys.onPressed: function(event) {
        if (event.modifiers !== Qt.ControlModifier || currentIndex < 0 || currentIndex >= count)
            return
        var row = model.get(currentIndex)
        if (event.key === Qt.Key_C && row.copyText) {
            table.copyRequested(row.copyText)
            event.accepted = true
        } else if (event.key === Qt.Key_I) {
            var start = currentIndex
            while (start > 0 && !model.get(start).sectionStart)
                --start
            var first = model.get(start)
            if (first.infoPage) {
                table.infoClicked(first.infoPage, first.header)
                event.accepted = true
            }
        }
    }
    Keys.onReturnPressed: activate(currentIndex)
    Keys.onEnterPressed: activate(currentIndex)
    Keys.onSpacePressed: activate(currentIndex)
    // Tab walks the rows before it leaves the table.
    Keys.onTabPressed: function(event) {
        if (currentIndex < count - 1) {
            currentIndex = currentIndex + 1
            positionViewAtIndex(currentIndex, ListView.Contain)
        } else {
            event.accepted = false
        }
    }
    Keys.onBacktabPressed: function(event) {
        if (currentIndex > 0) {
            currentIndex = currentIndex - 1
            positionViewAtIndex(currentIndex, ListView.Contain)
        } else {
            event.accepted = false
        }
    }

    delegate: Column {
        id: cell
        required property int kind
        required property var row
        required property int index
        width: ListView.view.width
        Accessible.role: Accessible.ListItem
        Accessible.name: table.rowName(cell.row, cell.kind)
        Rectangle {
            visible: cell.row.sectionStart && cell.row.header.length > 0
            width: parent.width
            height: visible ? QorTheme.touchTarget : 0
            color: QorTheme.sectionBackground
            Label {
                anchors.verticalCenter: parent.verticalCenter
                x: 12
                width: parent.width - 70
                text: cell.row.header
                color: QorTheme.sectionText
                font.bold: true
                font.pixelSize: 15
                elide: Text.ElideRight
            }
            ToolButton {
                visible: cell.row.infoPage.length > 0
                anchors.right: parent.right
                width: QorTheme.touchTarget
                height: QorTheme.touchTarget
                text: "i"
                font.pixelSize: 18
                font.bold: true
                font.italic: true
                Accessible.name: qsTr("About %1").arg(cell.row.header)
                onClicked: table.infoClicked(cell.row.infoPage, cell.row.header)
            }
        }
        Loader {
            property var row: cell.row
            property int kind: cell.kind
            width: parent.width
            // Every kind has its cell; there is no fallback.
            sourceComponent: {
                switch (cell.kind) {
                case DetailRowModel.Top: return topCell
                case DetailRowModel.Nfpa: return nfpaCell
                case DetailRowModel.Npg: return npgCell
                case DetailRowModel.Ghs: return ghsCell
                case DetailRowModel.Iso: return isoCell
                case DetailRowModel.Incident: return incidentCell
                case DetailRowModel.Source: return sourceCell
                case DetailRowModel.Guide:
                case DetailRowModel.Text:
                case DetailRowModel.Entry:
                case DetailRowModel.Shipping:
                case DetailRowModel.Provision: return textCell
                }
                return null
            }
        }
        TapHandler { onTapped: { table.currentIndex = cell.index; table.activate(cell.index) } }
    }

    Component {
        id: topCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: Math.max(110, info.implicitHeight + 20)
            color: QorTheme.pageBackground
            Image {
                id: placard
                x: 12; y: 10
                width: 90; height: 90
                source: QorTheme.pdf(row.placardImage, 90, 90)
            }
            ColumnLayout {
                id: info
                anchors { left: placard.right; leftMargin: 12; right: copy.left; top: parent.top; topMargin: 10 }
                Label { text: row.name; color: QorTheme.pageText; font.pixelSize: 20; font.bold: true; wrapMode: Text.Wrap; Layout.fillWidth: true }
                Label { text: row.unId; color: QorTheme.accentText; font.pixelSize: 22; font.bold: true }
                Label { text: qsTr("Hazard Class") + " " + row.hazardClass; color: QorTheme.secondaryText; font.pixelSize: 14; visible: row.hazardClass.length > 0 }
                Label { text: PackStatus.notice; visible: text.length > 0; color: QorTheme.accentText; font.pixelSize: 11 }
            }
            ToolButton {
                id: copy
                anchors { right: parent.right; top: parent.top }
                width: 64; height: QorTheme.touchTarget
                text: qsTr("Copy")
                Accessible.name: qsTr("Copy")
                onClicked: table.copyRequested(row.copyText)
            }
        }
    }
    Component {
        id: nfpaCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: 190
            color: QorTheme.cardBackground
            NfpaDiamond {
                objectName: "nfpaDiamond"
                anchors.centerIn: parent
                side: 125
                health: row.health; fire: row.fire; risk: row.risk; other: row.other
            }
        }
    }
    Component {
        id: npgCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: Math.max(100, npgInfo.implicitHeight + 20)
            color: QorTheme.pageBackground
            ColumnLayout {
                id: npgInfo
                anchors { left: parent.left; leftMargin: 12; right: npgCopy.left; top: parent.top; topMargin: 10 }
                Label { text: row.name; color: QorTheme.pageText; font.pixelSize: 18; font.bold: true; wrapMode: Text.Wrap; Layout.fillWidth: true }
                Label { text: row.formula; color: QorTheme.secondaryText; font.pixelSize: 16; visible: text.length > 0 }
                Label { text: row.cas; color: QorTheme.secondaryText; font.pixelSize: 14; visible: text.length > 0 }
                Label { text: row.rtecs; color: QorTheme.secondaryText; font.pixelSize: 14; visible: text.length > 0 }
            }
            ToolButton {
                id: npgCopy
                anchors { right: parent.right; top: parent.top }
                width: 64; height: QorTheme.touchTarget
                text: qsTr("Copy")
                Accessible.name: qsTr("Copy")
                onClicked: table.copyRequested(row.copyText)
            }
        }
    }
    Component {
        id: ghsCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: ghsCol.implicitHeight + 20
            color: QorTheme.cardBackground
            Column {
                id: ghsCol
                x: 10; y: 10
                width: parent.width - 20
                spacing: 6
                Row {
                    Repeater {
                        model: row.pictograms
                        Image { required property string modelData; width: 40; height: 40; source: QorTheme.pdf(modelData, 40, 40) }
                    }
                }
                Repeater {
                    model: row.expanded ? row.statements : row.statements.slice(0, 2)
                    Label { required property string modelData; text: modelData; color: QorTheme.cardText; wrapMode: Text.Wrap; width: ghsCol.width }
                }
                Label {
                    visible: row.statements.length > 2
                    text: row.expanded ? qsTr("Show less") : qsTr("Show all %1 statements").arg(row.statements.length)
                    color: QorTheme.linkText
                    font.bold: true
                    height: QorTheme.touchTarget
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
    Component {
        id: isoCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: Math.max(64, isoCol.implicitHeight + 20)
            color: QorTheme.isolationGreen
            Column {
                id: isoCol
                anchors { left: parent.left; leftMargin: 12; right: parent.right; rightMargin: 36; verticalCenter: parent.verticalCenter }
                Label { text: row.title; color: QorTheme.isolationText; font.pixelSize: 16; font.bold: true; wrapMode: Text.Wrap; width: parent.width }
                Label { text: row.subtitle; color: QorTheme.isolationText; font.pixelSize: 13; font.bold: true; visible: text.length > 0; wrapMode: Text.Wrap; width: parent.width }
            }
            Label { anchors.right: parent.right; anchors.rightMargin: 12; anchors.verticalCenter: parent.verticalCenter; text: "›"; font.pixelSize: 28; color: QorTheme.isolationText }
        }
    }
    Component {
        id: incidentCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: incidentText.implicitHeight + 20
            color: QorTheme.pageBackground
            Label {
                id: incidentText
                x: 12; y: 10
                width: parent.width - 24
                text: row.text
                color: QorTheme.pageText
                font.pixelSize: 14
                maximumLineCount: 5
                wrapMode: Text.Wrap
                elide: Text.ElideRight
            }
        }
    }
    Component {
        id: sourceCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            height: sourceCol.implicitHeight + 12
            color: QorTheme.pageBackground
            Column {
                id: sourceCol
                x: 12; y: 6
                width: parent.width - 24
                Label { objectName: "sourceNote"; text: row.note || ""; visible: text.length > 0; color: QorTheme.accentText; font.pixelSize: 12; width: parent.width; wrapMode: Text.Wrap }
                Label { objectName: "sourceLine"; text: row.text || ""; color: QorTheme.secondaryText; font.pixelSize: 11; font.italic: true; width: parent.width; wrapMode: Text.Wrap }
            }
        }
    }
    Component {
        id: textCell
        Rectangle {
            readonly property var row: parent ? parent.row : ({})
            readonly property int kind: parent ? parent.kind : DetailRowModel.Text
            readonly property bool opens: row.opens || false
            height: Math.max(QorTheme.touchTarget + 6, textCol.implicitHeight + 16)
            color: QorTheme.pageBackground
            Column {
                id: textCol
                anchors { left: parent.left; leftMargin: 12; right: parent.right; rightMargin: 36; verticalCenter: parent.verticalCenter }
                spacing: 2
                Label { text: row.caption || ""; visible: text.length > 0; color: QorTheme.accentText; font.pixelSize: 14; font.bold: true; width: parent.width; wrapMode: Text.Wrap }
                Label {
                    text: row.text || ""
                    color: QorTheme.pageText
                    font.pixelSize: kind === DetailRowModel.Guide ? 20 : 15
                    font.bold: kind === DetailRowModel.Guide || kind === DetailRowModel.Entry || kind === DetailRowModel.Provision
                    wrapMode: Text.Wrap
                    width: parent.width
                }
                Label { text: row.detail || ""; visible: text.length > 0; color: QorTheme.secondaryText; font.pixelSize: 13; width: parent.width; wrapMode: Text.Wrap }
            }
            Label { visible: opens; anchors.right: parent.right; anchors.rightMargin: 12; anchors.verticalCenter: parent.verticalCenter; text: "›"; font.pixelSize: 28; color: QorTheme.secondaryText }
        }
    }
}
