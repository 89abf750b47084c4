import QtQuick
import QtQuick.Controls
import QtWebEngine
import QOR

// A part 173 section as HTML built from the regulations database.
Page {
    id: page
    objectName: "regulationPage"
    property string html
    property string source
    footer: SourceLine { text: page.source }
    property string backText: qsTr("Back")
    property alias web: web
    background: Rectangle { color: QorTheme.cardBackground }
    header: BarHeader { page: page; title: page.title; backText: page.backText }
    WebEngineView {
        id: web
        anchors.fill: parent
        Accessible.role: Accessible.Document
        Accessible.name: page.title.length > 0 ? page.title : qsTr("Page text")
        Component.onCompleted: loadHtml(page.html, "file:///")
    }
}
