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
            window.openInfoPage(name, title, textSizeButton, inDetailArea)
        }
    }

    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
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
                color: "white"
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
        header: Label {
            width: ListView.view.width
            text: PackStatus.notice
            visible: text.length > 0
            height: visible ? implicitHeight : 0
            horizontalAlignment: Text.AlignHCenter
            color: "#ffb045"
            font.pixelSize: 11
            background: Rectangle { color: "#1c2630" }
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
                color: "white"
                font.bold: true
                font.pixelSize: 15
            }
        }
        delegate: ItemDelegate {
            id: row
            required property int index
            required property string title
            required property string subtitle
            required property color darkRowColor
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
                        color: "white"
                        font.pixelSize: 14
                        elide: Text.ElideRight
                    }
                    Label {
                        visible: row.subtitle !== ""
                        text: row.subtitle
                        color: "#e0e0e0"
                        font.pixelSize: 11
                    }
                }
                Label { text: "›"; color: "#cccccc"; font.pixelSize: 22 }
            }
            // The app is dark, so rows take the dark-appearance colours.
            background: Rectangle {
                color: row.down || row.highlighted ? "#3d566e" : row.darkRowColor
                Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: "#1c2630" }
            }
        }
        ScrollBar.vertical: ScrollBar {}
    }
}
