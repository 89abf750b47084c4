import QtQuick
import QtQuick.Controls
import QOR

// One provision group's page, opened at the chosen code when it has loaded.
Page {
    id: page
    objectName: "provisionPage"
    property alias category: controller.category
    property alias provision: controller.provision
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader { page: page; title: page.title }
    SpecialProvisionsViewController { id: controller }
    GuideViewController { id: textSize }
    footer: SourceLine { text: controller.sourceLine }
    PageHost {
        title: page.title
        anchors.fill: parent
        pageView: controller.pageView
        zoom: textSize.textFontSize / 100
    }
}
