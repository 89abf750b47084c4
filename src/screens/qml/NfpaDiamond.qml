import QtQuick
import QOR

// The NFPA 704 diamond: health (blue, left), fire (red, top), reactivity
// (yellow, right) and special hazards (white, bottom).
Item {
    id: diamond
    property string health
    property string fire
    property string risk
    property string other
    property real side: 120
    width: side * 1.42
    height: side * 1.42

    Item {
        anchors.centerIn: parent
        width: diamond.side
        height: diamond.side
        rotation: 45
        Grid {
            columns: 2
            Repeater {
                model: [
                    { c: QorTheme.nfpaFire, v: diamond.fire, n: "fire" },
                    { c: QorTheme.nfpaReactivity, v: diamond.risk, n: "risk" },
                    { c: QorTheme.nfpaHealth, v: diamond.health, n: "health" },
                    { c: QorTheme.nfpaSpecial, v: diamond.other, n: "other" }
                ]
                Rectangle {
                    required property var modelData
                    width: diamond.side / 2
                    height: diamond.side / 2
                    color: modelData.c
                    border.color: QorTheme.nfpaText
                    border.width: 2
                    Text {
                        objectName: "nfpa_" + modelData.n
                        anchors.centerIn: parent
                        rotation: -45
                        text: modelData.v
                        font.pixelSize: diamond.side / 4.5
                        font.bold: true
                        color: modelData.n === "health" ? QorTheme.nfpaHealthText : QorTheme.nfpaText
                    }
                }
            }
        }
    }
}
