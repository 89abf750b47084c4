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
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        Label { anchors.centerIn: parent; text: page.title; color: QorTheme.barText; font.bold: true }
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
                color: QorTheme.pageText
                linkColor: QorTheme.tintText
                onLinkActivated: function(link) {
                    var name = link.replace(/\.html$/, "")
                    Navigation.openInfoPage(name, name === "howto" ? qsTr("HOW TO USE THE GUIDEBOOK") : name, name !== "howto", AppDelegate.tablet)
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
                    Label { text: qsTr("Data pack"); color: QorTheme.sectionText; font.bold: true; Layout.columnSpan: 2 }
                    Label { text: qsTr("Edition"); color: QorTheme.secondaryText }
                    Label { objectName: "packEdition"; text: about.packFound ? about.edition : qsTr("none found"); color: QorTheme.sectionText; Layout.fillWidth: true; wrapMode: Text.Wrap }
                    Label { text: qsTr("Date"); color: QorTheme.secondaryText }
                    Label { text: about.buildDate; color: QorTheme.sectionText }
                    Label { text: qsTr("Data"); color: QorTheme.secondaryText }
                    Label { text: about.sampleText; color: PackStatus.notice.length > 0 ? QorTheme.accentText : QorTheme.sectionText; Layout.fillWidth: true; wrapMode: Text.Wrap }
                    Label { text: qsTr("Files"); color: QorTheme.secondaryText }
                    Label {
                        objectName: "packChecksums"
                        text: about.checksumText
                        color: about.checksumState === AboutController.Verified ? QorTheme.tintText
                             : about.checksumState === AboutController.NotChecked ? QorTheme.sectionText : QorTheme.errorText
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
                    Label { text: qsTr("Sources"); color: QorTheme.sectionText; font.bold: true }
                    Label {
                        objectName: "packProblem"
                        text: PackStatus.verified ? "" : PackStatus.notice + "\n" + PackStatus.problem
                        visible: text.length > 0
                        color: QorTheme.errorText
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                    }
                    Repeater {
                        model: PackStatus.sources
                        delegate: ColumnLayout {
                            required property var modelData
                            Layout.fillWidth: true
                            spacing: 2
                            Label { text: modelData.title; color: modelData.sample ? QorTheme.accentText : QorTheme.sectionText; font.bold: true; Layout.fillWidth: true; wrapMode: Text.Wrap }
                            Label { text: modelData.edition; visible: text.length > 0; color: QorTheme.secondaryText; Layout.fillWidth: true; wrapMode: Text.Wrap }
                            Label {
                                text: modelData.tables.length > 0 ? qsTr("Used for: %1").arg(modelData.tables.join(", ")) : qsTr("Not used by this pack's content")
                                color: QorTheme.secondaryText; font.pixelSize: 12; Layout.fillWidth: true; wrapMode: Text.Wrap
                            }
                            Label {
                                text: modelData.files.join("\n")
                                visible: text.length > 0
                                color: QorTheme.secondaryText; font.pixelSize: 10; font.family: "monospace"
                                Layout.fillWidth: true; wrapMode: Text.WrapAnywhere
                            }
                        }
                    }
                }
            }

            // The system's appearance unless the user picks one (also Ctrl+Shift+D).
            RowLayout {
                objectName: "appearanceChoice"
                Layout.alignment: Qt.AlignHCenter
                Label { text: qsTr("Appearance"); color: QorTheme.pageText }
                Repeater {
                    model: [{ value: "system", text: qsTr("System") }, { value: "light", text: qsTr("Light") }, { value: "dark", text: qsTr("Dark") }]
                    delegate: RadioButton {
                        required property var modelData
                        objectName: "appearance_" + modelData.value
                        text: modelData.text
                        implicitHeight: QorTheme.touchTarget
                        checked: QorTheme.choice === modelData.value
                        Accessible.name: qsTr("Appearance") + " " + text
                        onClicked: QorTheme.choice = modelData.value
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
