import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// Look a material up by its four-digit UN number.
Page {
    id: page
    objectName: "searchById"
    title: qsTr("Search by UN Id")
    background: Rectangle { color: QorTheme.pageBackground }

    SearchByIdController { id: search }

    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        Label { anchors.centerIn: parent; text: qsTr("Search"); color: QorTheme.barText; font.bold: true }
    }

    function open() {
        if (search.material.valid)
            Navigation.openMaterial(search.material)
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 10
        spacing: 10

        TextField {
            id: field
            objectName: "unIdField"
            Layout.fillWidth: true
            implicitHeight: 56
            font.pixelSize: 28
            horizontalAlignment: Text.AlignHCenter
            placeholderText: qsTr("UN number")
            inputMethodHints: Qt.ImhDigitsOnly
            validator: RegularExpressionValidator { regularExpression: /[0-9]{0,4}/ }
            Accessible.name: qsTr("UN number")
            focus: true
            onTextEdited: { search.text = text; if (text !== search.text) text = search.text }
            Keys.onReturnPressed: page.open()
            Keys.onEnterPressed: page.open()
        }

        // The entry card.
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 270
            radius: 6
            color: QorTheme.noticeBackground
            ColumnLayout {
                anchors.centerIn: parent
                spacing: 6
                Image {
                    Layout.alignment: Qt.AlignHCenter
                    Layout.preferredWidth: 120
                    Layout.preferredHeight: 120
                    sourceSize: Qt.size(120, 120)
                    source: QorTheme.pdf(search.placardImage, 120, 120)
                    visible: search.placardImage !== ""
                }
                Label { Layout.alignment: Qt.AlignHCenter; text: search.name; color: QorTheme.pageText; font.pixelSize: 20; font.bold: true }
                Label { Layout.alignment: Qt.AlignHCenter; text: search.hazardClass === "" ? "" : qsTr("Hazard Class") + " " + search.hazardClass; color: QorTheme.secondaryText }
                Label { Layout.alignment: Qt.AlignHCenter; text: search.classDescription; color: QorTheme.secondaryText }
                Label { Layout.alignment: Qt.AlignHCenter; text: search.unIdText; color: QorTheme.accentText; font.pixelSize: 24; font.bold: true }
            }
        }

        Label {
            objectName: "searchByIdNote"
            Layout.fillWidth: true
            visible: text !== ""
            text: search.note
            wrapMode: Text.WordWrap
            color: QorTheme.secondaryText
        }

        ItemDelegate {
            objectName: "searchByIdRow"
            Layout.fillWidth: true
            implicitHeight: 50
            visible: search.material.valid
            text: search.rowText + (search.material.valid ? "  ›" : "")
            Accessible.name: qsTr("Open %1").arg(search.material.name)
            onClicked: page.open()
        }
        Item { Layout.fillHeight: true }
    }
}
