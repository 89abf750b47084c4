// The floor for a screen made with the controls: the style's window and one label.
import QtQuick
import QtQuick.Controls

ApplicationWindow {
    width: 420
    height: 780
    visible: true
    Label { text: "Reference" }
}
