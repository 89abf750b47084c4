import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// Viewed materials: All, Recent or Most Viewed, with a Clear History button.
Page {
    id: page
    // Rows are made once the tab has been on screen: a hidden tab would
    // otherwise build its first screenful (and render its artwork) at launch.
    property bool shown: false
    objectName: "HistoryPage"
    property alias controller: history
    property alias listView: listView
    property alias clearButton: clearButton
    title: history.title
    background: Rectangle { color: QorTheme.pageBackground }

    MaterialHistoryListViewController {
        id: history
        onMaterialRequested: function(material) {
            page.StackView.view.push(Qt.resolvedUrl("MaterialDetailPage.qml").toString(), { material: material })
        }
    }

    // Every appearance shows current counts and orders.
    onVisibleChanged: if (visible) { shown = true; history.reload() }
    StackView.onActivating: history.reload()

    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        RowLayout {
            anchors.centerIn: parent
            spacing: 0
            Repeater {
                model: history.segmentTitles
                delegate: Button {
                    required property int index
                    required property string modelData
                    objectName: "segment" + index
                    text: modelData
                    checkable: true
                    checked: history.segment === index
                    implicitHeight: QorTheme.touchTarget
                    font.pixelSize: 13
                    palette.button: checked ? QorTheme.barText : QorTheme.barBackground
                    palette.buttonText: checked ? QorTheme.barBackground : QorTheme.barText
                    onClicked: history.segment = index
                }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Label {
            Layout.fillWidth: true
            text: PackStatus.notice
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            color: QorTheme.noticeText
            font.pixelSize: 11
            background: Rectangle { color: QorTheme.noticeBackground }
        }

        ListView {
            id: listView
            objectName: "historyList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: page.visible || shown ? history : null
            keyNavigationEnabled: true
            delegate: MaterialRow {
                id: row
                required property string verboseText
                width: ListView.view.width
                implicitHeight: history.rowHeight
                highlighted: ListView.isCurrentItem
                onClicked: history.selectRow(index)
                Keys.onReturnPressed: history.selectRow(index)
                Label {
                    objectName: "verboseLabel"
                    x: 250
                    y: 38
                    width: Math.max(60, row.width - 270)
                    text: row.verboseText
                    color: QorTheme.secondaryText
                    font.pixelSize: 12
                    horizontalAlignment: Text.AlignRight
                }
            }
            ScrollBar.vertical: ScrollBar {}
        }

        Button {
            id: clearButton
            objectName: "clearHistoryButton"
            Layout.alignment: Qt.AlignHCenter
            Layout.margins: 8
            text: qsTr("Clear History")
            font.bold: true
            font.pixelSize: 20
            // Hidden, not removed, so the list does not jump.
            opacity: history.clearButtonVisible ? 1 : 0
            enabled: history.clearButtonVisible
            onClicked: history.clearHistory()
        }
    }
}
