import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One material in a list: placard, name, UN number, and the incident count in that sort.
ItemDelegate {
    id: row
    required property int index
    required property string name
    required property string unId
    required property string placardImage
    required property string incidentsText
    required property bool rowEnabled
    implicitHeight: 52
    Accessible.name: name + ", UN " + unId

    contentItem: RowLayout {
        spacing: 10
        Image {
            Layout.preferredWidth: 40
            Layout.preferredHeight: 40
            sourceSize: Qt.size(40, 40)
            source: QorTheme.pdf(row.placardImage, 40, 40)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0
            Label {
                Layout.fillWidth: true
                text: row.name
                enabled: row.rowEnabled
                color: row.rowEnabled ? QorTheme.pageText : QorTheme.disabledText
                font.pixelSize: 15
                elide: Text.ElideRight
            }
            Label {
                // Explosives rows of the guidebook's index have no number.
                text: row.unId.length > 0 ? "UN" + row.unId : "—"
                color: QorTheme.accentText
                font.bold: true
                font.pixelSize: 13
            }
        }
        Label {
            visible: row.incidentsText !== ""
            text: row.incidentsText
            color: QorTheme.secondaryText
        }
    }
    FocusRing { anchors.fill: parent; shown: row.ListView.isCurrentItem && row.ListView.view !== null && row.ListView.view.activeFocus }
    background: Rectangle {
        color: row.highlighted ? QorTheme.rowHighlight : (row.visualFocus ? QorTheme.rowFocus : "transparent")
        border.color: row.visualFocus ? QorTheme.tint : "transparent"
        border.width: 2
    }
}
