import QtQuick
import QtQuick.Controls
import QOR

// An information page; its guide links open guides, web links open outside.
Page {
    id: page
    objectName: "infoPage"
    property alias page: controller.page
    property string backText: qsTr("Back")
    // Reference pages offer the text size; "HOW TO USE THE GUIDEBOOK" does not.
    property bool textSizeButton: false
    property alias controller: controller
    // For the shell's text size keys, where the page offers the text size.
    readonly property var textSizeController: textSizeButton ? textSize : null
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader {
        page: page
        title: page.title
        backText: page.backText
        TextSizeButton { visible: page.textSizeButton; controller: textSize }
    }
    InfoViewController {
        id: controller
        onExternalUrlRequested: function(url) { Qt.openUrlExternally(url) }
        onGuideRequested: function(guideId, title) {
            if (AppDelegate.tablet || !page.StackView.view)
                AppDelegate.showGuide(guideId)
            else
                page.StackView.view.push(Qt.resolvedUrl("GuidePage.qml").toString(), { guideId: guideId })
        }
    }
    GuideViewController { id: textSize }
    footer: SourceLine { text: controller.sourceLine }
    PageHost {
        title: page.title
        anchors.fill: parent
        pageView: controller.pageView
        zoom: textSize.textFontSize / 100
        onLinkClicked: function(url) { controller.decidePolicyForNavigation(url.toString()) }
    }
}
