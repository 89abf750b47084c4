import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The placard table; a row opens a guide only when the pack names one for it.
Page {
    id: page
    objectName: "placardsPage"
    property alias controller: placards
    property alias listView: listView
    title: placards.title
    background: Rectangle { color: QorTheme.pageBackground }

    PlacardViewController {
        id: placards
        onGuideRequested: function(guideId) {
            page.StackView.view.push(Qt.resolvedUrl("GuidePage.qml").toString(), { guideId: guideId })
        }
    }

    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        RowLayout {
            anchors.fill: parent
            ToolButton {
                visible: page.StackView.index > 0
                text: "‹ " + qsTr("Back")
                implicitHeight: QorTheme.touchTarget
                onClicked: page.StackView.view.pop()
            }
            Label {
                Layout.fillWidth: true
                text: page.title
                color: QorTheme.barText
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }

    ListView {
        id: listView
        objectName: "placardList"
        anchors.fill: parent
        clip: true
        model: placards
        keyNavigationEnabled: true
        header: Column {
            width: ListView.view.width
            Label {
                width: parent.width
                text: PackStatus.notice
                visible: text.length > 0
                horizontalAlignment: Text.AlignHCenter
                color: QorTheme.noticeText
                font.pixelSize: 11
                background: Rectangle { color: QorTheme.noticeBackground }
            }
            Label {
                objectName: "placardSectionHeader"
                width: parent.width
                padding: 10
                text: placards.sectionHeader
                wrapMode: Text.Wrap
                color: QorTheme.sectionText
                font.bold: true
                font.pixelSize: 13
                background: Rectangle { color: QorTheme.sectionBackground }
            }
            Label {
                objectName: "placardChartNotice"
                width: parent.width
                padding: 10
                text: placards.chartNotice
                visible: text.length > 0
                wrapMode: Text.Wrap
                color: QorTheme.sectionText
                font.pixelSize: 13
                background: Rectangle { color: QorTheme.sectionBackground }
            }
        }
        footer: SourceLine { width: ListView.view.width; text: placards.sourceLine }
        delegate: ItemDelegate {
            id: row
            required property int index
            required property string imageUrl
            required property string name
            required property string guideId
            width: ListView.view.width
            height: placards.rowHeight
            Accessible.name: guideId.length > 0 ? qsTr("%1, guide %2").arg(name).arg(guideId) : name
            highlighted: ListView.isCurrentItem
            onClicked: placards.selectRow(index)
            Keys.onReturnPressed: placards.selectRow(index)

            // Inset 5 on each side and 2 to the right, at 225 by 75.
            Image {
                id: placardImage
                x: 7
                y: 5
                width: 225
                height: 75
                source: row.imageUrl
                sourceSize: Qt.size(450, 150)
                fillMode: Image.PreserveAspectFit
                asynchronous: true
            }
            BusyIndicator {
                anchors.centerIn: placardImage
                running: placardImage.status === Image.Loading
                visible: running
            }
            Label {
                objectName: "placardName"
                anchors.left: placardImage.right
                anchors.leftMargin: 8
                anchors.right: parent.right
                anchors.rightMargin: 28
                anchors.verticalCenter: parent.verticalCenter
                text: row.name
                wrapMode: Text.Wrap
                color: QorTheme.pageText
                font.pixelSize: 14
            }
            Label {
                visible: row.guideId.length > 0
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: "›"
                color: QorTheme.secondaryText
                font.pixelSize: 24
            }
            background: Rectangle { color: row.highlighted || row.down ? QorTheme.rowHighlight : "transparent" }
        }
        ScrollBar.vertical: ScrollBar {}
    }
}
