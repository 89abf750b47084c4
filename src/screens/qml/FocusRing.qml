import QtQuick
import QOR

// The keyboard focus ring over its parent, in both appearances: an outer
// ring and a thin inner edge, so one of them stands out on any background.
Rectangle {
    property bool shown: false
    anchors.fill: parent
    visible: shown
    color: "transparent"
    border.width: 3
    border.color: QorTheme.focusRing
    z: 10
    Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        color: "transparent"
        border.width: 1
        border.color: QorTheme.focusRingInner
    }
}
