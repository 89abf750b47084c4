import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// Five fixed sections: material indexes, the green tables and the info pages.
Page {
    id: page
    objectName: "ReferencePage"
    property alias controller: reference
    property alias listView: listView
    property alias placardsButton: placardsButton
    title: reference.title
    background: Rectangle { color: QorTheme.pageBackground }

    function openPlacards() {
        page.StackView.view.push(Qt.resolvedUrl("PlacardsPage.qml").toString())
    }

    ReferenceViewController {
        id: reference
        onPageRequested: function(name, title, textSizeButton, inDetailArea) {
            Navigation.openInfoPage(name, title, textSizeButton, inDetailArea)
        }
    }

    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        RowLayout {
            anchors.fill: parent
            // The wide layout has no About tab; its About is reached from here.
            ToolButton {
                id: aboutButton
                objectName: "aboutButton"
                visible: AppDelegate.tablet
                text: qsTr("About")
                implicitHeight: QorTheme.touchTarget
                Layout.preferredWidth: Math.max(implicitWidth, placardsButton.implicitWidth)
                onClicked: AppDelegate.currentTab = AppDelegate.AboutTab
            }
            Item { visible: !AppDelegate.tablet; implicitWidth: placardsButton.implicitWidth }
            Label {
                Layout.fillWidth: true
                text: page.title
                color: QorTheme.barText
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
            }
            ToolButton {
                id: placardsButton
                objectName: "placardsButton"
                text: qsTr("Placards")
                implicitHeight: QorTheme.touchTarget
                onClicked: page.openPlacards()
            }
        }
    }

    ListView {
        id: listView
        objectName: "referenceList"
        anchors.fill: parent
        clip: true
        model: reference
        keyNavigationEnabled: true
        // The launch screen: rows below the fold are made when scrolled to, not before the first frame.
        cacheBuffer: 0
        header: Label {
            width: ListView.view.width
            text: PackStatus.notice
            visible: text.length > 0
            height: visible ? implicitHeight : 0
            horizontalAlignment: Text.AlignHCenter
            color: QorTheme.noticeText
            font.pixelSize: 11
            background: Rectangle { color: QorTheme.noticeBackground }
        }
        footer: SourceLine { width: ListView.view.width; text: reference.sourceLine }
        section.property: "section"
        section.delegate: Rectangle {
            required property string section
            width: ListView.view.width
            height: 30
            color: QorTheme.sectionBackground
            Label {
                x: 10
                anchors.verticalCenter: parent.verticalCenter
                text: parent.section
                color: QorTheme.sectionText
                font.bold: true
                font.pixelSize: 15
            }
        }
        delegate: ItemDelegate {
            id: row
            required property int index
            required property string title
            required property string subtitle
            required property color rowColor
            required property color darkRowColor
            required property int sectionNumber
            // Table rows are green: dark text reads on both greens.
            readonly property bool onGreen: sectionNumber === ReferenceViewController.TablesSection && !(down || highlighted)
            width: ListView.view.width
            height: subtitle === "" ? reference.rowHeight : reference.rowHeight + 14
            highlighted: ListView.isCurrentItem
            Accessible.name: title
            onClicked: reference.selectRow(index)
            Keys.onReturnPressed: reference.selectRow(index)
            contentItem: RowLayout {
                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 0
                    Label {
                        Layout.fillWidth: true
                        text: row.title
                        color: row.onGreen ? QorTheme.isolationText : QorTheme.pageText
                        font.pixelSize: 14
                        elide: Text.ElideRight
                    }
                    Label {
                        visible: row.subtitle !== ""
                        text: row.subtitle
                        color: row.onGreen ? QorTheme.isolationText : QorTheme.secondaryText
                        font.pixelSize: 11
                    }
                }
                Label { text: "›"; color: row.onGreen ? QorTheme.isolationText : QorTheme.secondaryText; font.pixelSize: 22 }
            }
            background: Rectangle {
                color: row.down || row.highlighted ? QorTheme.rowHighlight : (QorTheme.dark ? row.darkRowColor : row.rowColor)
                Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: QorTheme.separator }
            }
        }
        ScrollBar.vertical: ScrollBar {}
    }
}
