import QtQuick
import QtQuick.Controls
import QOR

// The line under reference values that names where they come from.
Label {
    objectName: "sourceLine"
    visible: text.length > 0
    padding: 6
    leftPadding: 12
    color: QorTheme.secondaryText
    font.pixelSize: 11
    font.italic: true
    wrapMode: Text.Wrap
    background: Rectangle { color: QorTheme.pageBackground }
}
