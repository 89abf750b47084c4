// The floor for any screen of text: a window whose QML shows one line.
import QtQuick

Window {
    width: 420
    height: 780
    visible: true
    Text { text: "Reference" }
}
