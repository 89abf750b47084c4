pragma Singleton
import QtQuick

// Colours and sizes shared by every screen.
QtObject {
    readonly property color barBackground: "#2c3e50"      // RGB 44, 62, 80
    readonly property color tint: "#16a085"               // RGB 22, 160, 133
    readonly property color pageBackground: "#243040"     // 0.14, 0.18, 0.25
    readonly property color sectionBackground: "#34495e"
    readonly property color isolationGreen: "#9cbc9c"     // RGB 156, 188, 156
    readonly property color isolationGreenDark: "#698969" // RGB 105, 137, 105
    readonly property int touchTarget: 44

    function pdf(name, w, h) {
        return name ? "image://pdf/" + name + "?w=" + Math.round(w) + "&h=" + Math.round(h) : ""
    }
}
