import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The About page, the data pack in use, and a way to send feedback.
Page {
    id: page
    objectName: "AboutPage"
    property alias controller: about
    title: about.title
    background: Rectangle { color: QorTheme.pageBackground }

    AboutController { id: about }

    // Hashing the pack waits until someone looks at the panel.
    onVisibleChanged: if (visible) Qt.callLater(about.verifyChecksums)

    header: ToolBar {
        implicitHeight: QorTheme.touchTarget
        background: Rectangle { color: QorTheme.barBackground }
        Label { anchors.centerIn: parent; text: page.title; color: "white"; font.bold: true }
    }

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight + 24
        clip: true
        ScrollBar.vertical: ScrollBar {}

        ColumnLayout {
            id: column
            x: 12
            y: 12
            width: parent.width - 24
            spacing: 12

            Label {
                Layout.fillWidth: true
                text: about.aboutHtml
                textFormat: Text.RichText
                wrapMode: Text.Wrap
                color: "white"
                linkColor: QorTheme.tint
                onLinkActivated: function(link) {
                    var name = link.replace(/\.html$/, "")
                    window.openInfoPage(name, name === "howto" ? qsTr("HOW TO USE THE GUIDEBOOK") : name, name !== "howto", AppDelegate.tablet)
                }
            }

            Rectangle {
                objectName: "packPanel"
                Layout.fillWidth: true
                implicitHeight: packGrid.implicitHeight + 20
                color: QorTheme.sectionBackground
                radius: 6
                GridLayout {
                    id: packGrid
                    anchors.fill: parent
                    anchors.margins: 10
                    columns: 2
                    columnSpacing: 10
                    Label { text: qsTr("Data pack"); color: "white"; font.bold: true; Layout.columnSpan: 2 }
                    Label { text: qsTr("Edition"); color: "#cccccc" }
                    Label { objectName: "packEdition"; text: about.packFound ? about.edition : qsTr("none found"); color: "white"; Layout.fillWidth: true; wrapMode: Text.Wrap }
                    Label { text: qsTr("Date"); color: "#cccccc" }
                    Label { text: about.buildDate; color: "white" }
                    Label { text: qsTr("Data"); color: "#cccccc" }
                    Label { text: about.sampleText; color: PackStatus.notice.length > 0 ? "#ffb045" : "white"; Layout.fillWidth: true; wrapMode: Text.Wrap }
                    Label { text: qsTr("Files"); color: "#cccccc" }
                    Label {
                        objectName: "packChecksums"
                        text: about.checksumText
                        color: about.checksumState === AboutController.Verified ? QorTheme.tint
                             : about.checksumState === AboutController.NotChecked ? "white" : "#ff6b6b"
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                    }
                }
            }

            Rectangle {
                objectName: "sourcesPanel"
                Layout.fillWidth: true
                implicitHeight: sourcesColumn.implicitHeight + 20
                color: QorTheme.sectionBackground
                radius: 6
                ColumnLayout {
                    id: sourcesColumn
                    anchors.fill: parent
                    anchors.margins: 10
                    spacing: 8
                    Label { text: qsTr("Sources"); color: "white"; font.bold: true }
                    Label {
                        objectName: "packProblem"
                        text: PackStatus.verified ? "" : PackStatus.notice + "\n" + PackStatus.problem
                        visible: text.length > 0
                        color: "#ff6b6b"
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                    }
                    Repeater {
                        model: PackStatus.sources
                        delegate: ColumnLayout {
                            required property var modelData
                            Layout.fillWidth: true
                            spacing: 2
                            Label { text: modelData.title; color: modelData.sample ? "#ffb045" : "white"; font.bold: true; Layout.fillWidth: true; wrapMode: Text.Wrap }
                            Label { text: modelData.edition; visible: text.length > 0; color: "#cccccc"; Layout.fillWidth: true; wrapMode: Text.Wrap }
                            Label {
                                text: modelData.tables.length > 0 ? qsTr("Used for: %1").arg(modelData.tables.join(", ")) : qsTr("Not used by this pack's content")
                                color: "#cccccc"; font.pixelSize: 12; Layout.fillWidth: true; wrapMode: Text.Wrap
                            }
                            Label {
                                text: modelData.files.join("\n")
                                visible: text.length > 0
                                color: "#9aa7b4"; font.pixelSize: 10; font.family: "monospace"
                                Layout.fillWidth: true; wrapMode: Text.WrapAnywhere
                            }
                        }
                    }
                }
            }

            Button {
                objectName: "feedbackButton"
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Send Feedback")
                implicitHeight: QorTheme.touchTarget
                onClicked: about.sendFeedback()
            }
        }
    }
}
