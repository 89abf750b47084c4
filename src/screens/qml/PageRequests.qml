import QtQuick
import QtQuick.Controls
import QOR

// Pushes the screens a page's controller asked Navigation for onto the
// page's own stack, so the page works in any stack, or on its own.
Connections {
    property Item page
    property QtObject origin
    target: Navigation
    function onPageRequested(from, file, properties) {
        if (from !== origin || !page || !page.StackView.view)
            return
        page.StackView.view.push(Qt.resolvedUrl(file).toString(), properties)
    }
}
