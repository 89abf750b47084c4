import QtQuick
import QOR

// The keyboard focus ring, in both appearances: an outer ring and a thin
// inner edge, so one of them stands out on any background. Anchored by its
// user, or sized by a list as its highlight.
Rectangle {
    property bool shown: false
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
