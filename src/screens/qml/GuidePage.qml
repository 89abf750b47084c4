import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// One response guide in the shared page view, with the text size sheet, the
// rotate prompt, mail and print, and the isolation panel in landscape.
Page {
    id: page
    objectName: "guidePage"
    property string guideId
    property var material
    property alias controller: controller
    property alias host: host
    property alias textSheet: textSizeButton.sheet
    // For the shell's text size and print keys.
    readonly property var textSizeController: controller
    readonly property var printController: controller
    title: controller.title
    background: Rectangle { color: QorTheme.guideBackground }

    GuideViewController {
        id: controller
        guideId: page.guideId
        material: page.material ? page.material : null
        onPrintRequested: function(path) { host.web.printToPdf(path) }
    }
    footer: SourceLine { text: controller.sourceLine }
    Connections {
        target: host.web
        function onPdfPrintingFinished(filePath, success) { controller.printFinished(filePath, success) }
    }
    Component.onCompleted: controller.viewWillAppear(width, height)
    onWidthChanged: controller.prepareViewsForSize(width, height)
    onHeightChanged: controller.prepareViewsForSize(width, height)
    StackView.onActivating: controller.viewWillAppear(width, height)
    // Leaving the guide by any route leaves full screen, so the bars come back.
    StackView.onRemoved: AppDelegate.setFullscreen(false)

    header: BarHeader {
        page: page
        title: page.title
        visible: !AppDelegate.fullscreen
        TextSizeButton { id: textSizeButton; controller: controller }
        ToolButton {
            objectName: "fullscreenButton"
            text: "[ ]"
            font.pixelSize: 18
            width: QorTheme.touchTarget; height: QorTheme.touchTarget
            palette.buttonText: QorTheme.barText
            Accessible.name: qsTr("Full screen")
            onClicked: AppDelegate.toggleFullscreen()
        }
        ToolButton {
            objectName: "actionButton"
            text: "•••"
            font.pixelSize: 22
            width: QorTheme.touchTarget; height: QorTheme.touchTarget
            palette.buttonText: QorTheme.barText
            Accessible.name: qsTr("Share")
            onClicked: actionMenu.popup()
            Menu {
                id: actionMenu
                MenuItem { text: qsTr("Email"); height: QorTheme.touchTarget; onTriggered: controller.emailWebPage() }
                MenuItem { text: qsTr("Print"); height: QorTheme.touchTarget; onTriggered: controller.printWebPage() }
                MenuItem { text: qsTr("Cancel"); height: QorTheme.touchTarget }
            }
        }
    }

    PageHost {
        title: page.title
        id: host
        x: 0
        width: controller.webWidth > 0 ? controller.webWidth : parent.width
        height: parent.height
        pageView: controller.pageView
        zoom: controller.textFontSize / 100
    }

    IsolationTable {
        objectName: "isolationPanel"
        visible: controller.isolationVisible && x < page.width
        x: controller.panelX
        width: controller.panelWidth
        height: parent.height
        material: controller.isolationVisible ? page.material : null
    }

    // Leaving full screen: a tap target stays on the page while the bars are hidden.
    RoundButton {
        visible: AppDelegate.fullscreen
        anchors { right: parent.right; top: parent.top; margins: 8 }
        width: QorTheme.touchTarget; height: QorTheme.touchTarget
        text: "X"
        Accessible.name: qsTr("Leave full screen")
        onClicked: AppDelegate.toggleFullscreen()
    }

    Rectangle {
        objectName: "rotatePrompt"
        anchors.centerIn: parent
        width: Math.min(parent.width - 40, 320)
        height: promptText.implicitHeight + 40
        radius: 10
        color: QorTheme.overlayBackground
        opacity: controller.rotatePromptVisible ? 1 : 0
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: 500 } }
        Label {
            id: promptText
            anchors.centerIn: parent
            width: parent.width - 30
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: QorTheme.overlayText
            font.pixelSize: 16
            text: page.material ? qsTr("Widen the window to see the isolation distances beside the guide.")
                                : qsTr("Widen the window for a landscape view of the guide.")
        }
        TapHandler { onTapped: controller.hideRotatePrompt() }
    }
}
