import QtQuick
import QtQuick.Controls
import QOR

// Every response guide, by number; the visible pages are loaded ahead.
Page {
    id: page
    // Rows are made once the tab has been on screen: a hidden tab would
    // otherwise build its first screenful (and render its artwork) at launch.
    property bool shown: false
    onVisibleChanged: if (visible) shown = true
    objectName: "GuideListPage"
    property alias controller: controller
    property alias listView: list
    title: qsTr("Guides")
    background: Rectangle { color: QorTheme.pageBackground }
    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        Label { anchors.centerIn: parent; text: qsTr("Guides"); color: QorTheme.barText; font.bold: true }
    }

    GuideListViewController { id: controller }

    function visibleRows() {
        var first = list.indexAt(0, list.contentY)
        var last = list.indexAt(0, list.contentY + list.height - 1)
        return [first < 0 ? 0 : first, last < 0 ? list.count - 1 : last]
    }
    function startLoadGuidesTimer() {
        var rows = visibleRows()
        controller.startLoadGuidesTimer(false, list.dragging, list.flicking, rows[0], rows[1])
    }
    function openRow(row) {
        var id = controller.selectGuide(row)
        if (id.length > 0)
            AppDelegate.showGuide(id)
    }

    ListView {
        id: list
        anchors.fill: parent
        clip: true
        model: page.visible || shown ? controller : null
        ScrollBar.vertical: ScrollBar {}
        onMovementStarted: page.startLoadGuidesTimer()
        onMovementEnded: page.startLoadGuidesTimer()
        delegate: ItemDelegate {
            required property int index
            required property string guideId
            required property string name
            required property string badge
            width: ListView.view.width
            height: 60
            Accessible.name: qsTr("Guide") + " " + guideId + ", " + name
            onClicked: page.openRow(index)
            background: Rectangle { color: pressed ? QorTheme.sectionBackground : QorTheme.pageBackground }
            contentItem: Item {
                Image {
                    id: circle
                    anchors.verticalCenter: parent.verticalCenter
                    width: 48; height: 48
                    source: QorTheme.pdf(badge, 48, 48)
                    Rectangle { anchors.fill: parent; radius: 24; color: QorTheme.guideBackground; visible: parent.status !== Image.Ready }
                    Label { anchors.centerIn: parent; text: guideId; color: QorTheme.guideText; font.bold: true; font.pixelSize: 17 }
                }
                Label {
                    anchors { left: circle.right; leftMargin: 12; right: parent.right; verticalCenter: parent.verticalCenter }
                    text: name
                    color: QorTheme.pageText
                    font.pixelSize: 16
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                }
            }
        }
    }
}
