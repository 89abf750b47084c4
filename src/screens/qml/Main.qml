import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

ApplicationWindow {
    id: window
    width: 420
    height: 780
    visible: true
    title: qsTr("QOR")
    color: QorTheme.pageBackground
    // Controls without colours of their own follow the theme, not the desktop.
    palette.window: QorTheme.pageBackground
    palette.windowText: QorTheme.pageText
    palette.base: QorTheme.fieldBackground
    palette.text: QorTheme.pageText
    palette.placeholderText: QorTheme.secondaryText
    palette.button: QorTheme.sectionBackground
    palette.buttonText: QorTheme.pageText
    palette.highlight: QorTheme.rowHighlight
    palette.highlightedText: QorTheme.pageText

    readonly property bool tablet: AppDelegate.tablet
    property alias materialList: materialListPage
    property alias historyPage: historyPage
    property alias referencePage: referencePage
    property alias aboutPage: aboutPage
    // An info page shown in the tablet detail area instead of a material.
    property var detailInfo: null

    onWidthChanged: AppDelegate.updateForWindowSize(width, height)
    Component.onCompleted: AppDelegate.updateForWindowSize(width, height)

    // Switching layout keeps the material on screen: the tablet shows it in
    // the detail area, the phone on top of the materials stack.
    Connections {
        target: AppDelegate
        function onTabletChanged() {
            if (AppDelegate.tablet) {
                var top = materialsStack.currentItem
                if (top && top.objectName === "materialDetail") {
                    var m = top.material
                    materialsStack.pop(null)
                    AppDelegate.showDetailForMaterial(m)
                }
            } else if (AppDelegate.detailMaterial.valid) {
                window.openMaterial(AppDelegate.detailMaterial)
            }
        }
        function onMaterialRequested(material) { window.openMaterial(material) }
        function onDetailMaterialChanged() { window.detailInfo = null }
        function onGuideRequested(guideId, material) { window.openGuide(guideId, material) }
        function onSearchRequested(text) { materialListPage.startSearch(text) }
        // An index or table row of Reference shows the list itself, from its root.
        function onEndSearchRequested() {
            materialsStack.pop(null, StackView.Immediate)
            materialListPage.endSearch()
        }
        function onScrollToMaterialRequested(material) { materialListPage.scrollToMaterial(material) }
        function onDialogRequested(title, message, button) {
            messageDialog.title = title
            messageText.text = message
            dismissButton.text = button
            messageDialog.open()
        }
    }

    function openMaterial(material) {
        if (!material || !material.valid || AppDelegate.showInDetailArea(material))
            return
        AppDelegate.currentTab = AppDelegate.MaterialsTab
        materialsStack.push(Qt.resolvedUrl("MaterialDetailPage.qml").toString(), { material: material })
    }

    function openGuide(guideId, material) {
        guidesStack.pop(null)
        guidesStack.push(Qt.resolvedUrl("GuidePage.qml").toString(), { guideId: guideId, material: material })
    }

    // Every info page opens through here, so the info screen is one switch away.
    function openInfoPage(page, title, textSizeButton, inDetailArea) {
        var props = { page: page, title: title, textSizeButton: textSizeButton }
        if (inDetailArea && AppDelegate.tablet) {
            detailInfo = props
            return
        }
        currentStack().push(Qt.resolvedUrl("InfoPage.qml").toString(), props)
    }

    function openPlacards() {
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        referenceStack.pop(null, StackView.Immediate)
        referencePage.openPlacards()
    }

    function currentStack() {
        return tabStacks.itemAt(tabStacks.currentIndex)
    }

    // Night mode on a bright desktop, or the other way round.
    Shortcut {
        objectName: "appearanceShortcut"
        sequence: "Ctrl+Shift+D"
        onActivated: QorTheme.toggle()
    }

    // Esc goes back one screen wherever focus is.
    Shortcut {
        sequences: [StandardKey.Back, "Esc"]
        onActivated: {
            // In full screen the first Escape only brings the bars back.
            if (AppDelegate.fullscreen) {
                AppDelegate.setFullscreen(false)
                return
            }
            var stack = window.currentStack()
            if (stack && stack.depth > 1)
                stack.pop()
            else if (AppDelegate.tablet && AppDelegate.detailMaterial.valid)
                AppDelegate.clearDetail()
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ColumnLayout {
            id: master
            spacing: 0
            Layout.fillHeight: true
            Layout.preferredWidth: window.tablet ? 330 : window.width
            Layout.maximumWidth: window.tablet ? 330 : window.width

            StackLayout {
                id: tabStacks
                Layout.fillWidth: true
                Layout.fillHeight: true
                currentIndex: Math.min(AppDelegate.currentTab, count - 1)

                StackView { id: materialsStack; initialItem: MaterialListPage { id: materialListPage } }
                StackView { id: guidesStack; initialItem: GuideListPage {} }
                StackView { id: historyStack; initialItem: HistoryPage { id: historyPage } }
                StackView { id: referenceStack; initialItem: ReferencePage { id: referencePage } }
                StackView { id: aboutStack; initialItem: AboutPage { id: aboutPage } }
                StackView { id: searchStack; initialItem: SearchByIdPage {} }
            }

            // The tab bar; About is reached elsewhere on a tablet.
            Rectangle {
                id: tabBar
                objectName: "tabBar"
                Layout.fillWidth: true
                Layout.preferredHeight: QorTheme.touchTarget + 4
                visible: !AppDelegate.fullscreen
                color: QorTheme.barBackground
                Accessible.role: Accessible.PageTabList

                RowLayout {
                    anchors.fill: parent
                    spacing: 0
                    Repeater {
                        model: [
                            { tab: AppDelegate.MaterialsTab, text: qsTr("Materials") },
                            { tab: AppDelegate.GuidesTab, text: qsTr("Guides") },
                            { tab: AppDelegate.HistoryTab, text: qsTr("History") },
                            { tab: AppDelegate.ReferenceTab, text: qsTr("Reference") },
                            { tab: AppDelegate.AboutTab, text: qsTr("About") },
                            { tab: 5, text: qsTr("Search") }
                        ]
                        delegate: ToolButton {
                            required property var modelData
                            objectName: "tab" + modelData.tab
                            visible: !(window.tablet && modelData.tab === AppDelegate.AboutTab)
                            Layout.fillWidth: true
                            Layout.fillHeight: true
                            text: modelData.text
                            font.pixelSize: 12
                            checkable: true
                            checked: AppDelegate.currentTab === modelData.tab
                            palette.buttonText: checked ? QorTheme.barSelectedText : QorTheme.barText
                            palette { button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
                            Accessible.role: Accessible.PageTab
                            Accessible.name: modelData.text
                            onClicked: AppDelegate.currentTab = modelData.tab
                        }
                    }
                }
            }
        }

        Rectangle {
            visible: window.tablet
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            color: QorTheme.divider
        }

        // Tablet detail area: the material chosen in any list.
        Loader {
            id: detailArea
            visible: window.tablet
            Layout.fillWidth: true
            Layout.fillHeight: true
            active: window.tablet
            sourceComponent: window.detailInfo ? infoDetailComponent
                           : AppDelegate.detailMaterial.valid ? detailComponent : emptyDetail
        }
    }

    Dialog {
        id: messageDialog
        objectName: "messageDialog"
        anchors.centerIn: Overlay.overlay
        modal: true
        width: Math.min(400, window.width - 40)
        Label { id: messageText; width: parent.width; wrapMode: Text.Wrap }
        footer: DialogButtonBox {
            Button { id: dismissButton; DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole }
        }
    }

    Component {
        id: detailComponent
        // A stack of its own, so the detail screen can push its sub-screens.
        // The stack makes (and so owns) the page: a page declared inline would
        // be handed back and resized while the window is torn down, reloading
        // its icons through QML contexts that are already gone.
        // A newly chosen material starts from its own detail, never under a
        // sub-screen (isolation table, regulation page) of the previous one.
        StackView {
            id: detailStack
            initialItem: detailPageComponent
            Connections {
                target: AppDelegate
                function onDetailMaterialChanged() { detailStack.pop(null, StackView.Immediate) }
            }
        }
    }
    Component {
        id: detailPageComponent
        MaterialDetailPage { material: AppDelegate.detailMaterial }
    }
    Component {
        id: infoDetailComponent
        InfoPage {
            page: window.detailInfo ? window.detailInfo.page : ""
            title: window.detailInfo ? window.detailInfo.title : ""
            textSizeButton: window.detailInfo ? window.detailInfo.textSizeButton : false
        }
    }
    Component {
        id: emptyDetail
        Rectangle {
            color: QorTheme.pageBackground
            Label {
                anchors.centerIn: parent
                text: qsTr("Choose a material")
                color: QorTheme.secondaryText
                font.pixelSize: 20
            }
        }
    }

    // Every screen a user can quit from; the self-test quits from each one.
    readonly property var tabScreens: ["materials", "guides", "history", "reference", "about", "search"]
    readonly property var detailScreens: ["detail-summary", "detail-shipping", "detail-protection"]
    readonly property var pageScreens: ({ "isolation": "IsolationPage.qml", "info": "InfoPage.qml", "regulation": "RegulationPage.qml",
                                          "provisions": "ProvisionsPage.qml", "provision": "ProvisionPage.qml",
                                          "shipping-entry": "ShippingEntryPage.qml", "filter": "FilterPage.qml" })
    function screenNames() {
        return tabScreens.concat(detailScreens, Object.keys(pageScreens), ["guide", "placards"])
    }

    // Opens one of screenNames() the way a user reaches it; false when it cannot.
    function openScreen(name) {
        var t = tabScreens.indexOf(name)
        if (t >= 0) {
            AppDelegate.currentTab = t
            return true
        }
        var m = materialListPage.firstMaterial()
        if (!m || !m.valid)
            return false
        if (name === "guide") {
            AppDelegate.showGuideForMaterial(m.guideId, m)
            return true
        }
        if (name === "placards") {
            openPlacards()
            return true
        }
        openMaterial(m)
        var stack = AppDelegate.tablet ? detailArea.item : materialsStack
        var detail = stack ? stack.currentItem : null
        if (!detail || detail.objectName !== "materialDetail")
            return false
        var d = detailScreens.indexOf(name)
        if (d >= 0) {
            detail.controller.selectedViewIndex = d
            return true
        }
        var file = pageScreens[name]
        if (!file)
            return false
        var props = { "isolation": { material: m }, "info": { page: "Isolation_Distances", title: "" }, "regulation": { html: "" },
                      "provisions": { provisions: ["A1"] }, "provision": { category: "A", provision: "A1" },
                      "shipping-entry": { attributes: detail.controller.shipping.firstEntry }, "filter": {} }[name]
        return !!stack.push(Qt.resolvedUrl(file).toString(), props, StackView.Immediate)
    }

    // Visits every screen once; the app's --self-test checks that each loads.
    function selfTest() {
        for (var t = 0; t < tabStacks.count; ++t)
            AppDelegate.currentTab = t
        var m = materialListPage.firstMaterial()
        var pages = [["MaterialDetailPage.qml", { material: m }], ["GuidePage.qml", { guideId: m.guideId, material: m }],
                     ["FilterPage.qml", {}], ["PlacardsPage.qml", {}], ["IsolationPage.qml", { material: m }],
                     ["InfoPage.qml", { page: "Isolation_Distances", title: "" }], ["RegulationPage.qml", { html: "" }],
                     ["ProvisionsPage.qml", { provisions: ["A1"] }], ["ProvisionPage.qml", { category: "A", provision: "A1" }],
                     ["ShippingEntryPage.qml", { attributes: {} }]]
        for (var i = 0; i < pages.length; ++i) {
            var item = materialsStack.push(Qt.resolvedUrl(pages[i][0]).toString(), pages[i][1], StackView.Immediate)
            if (!item)
                return false
            materialsStack.pop(StackView.Immediate)
        }
        AppDelegate.currentTab = AppDelegate.ReferenceTab
        return true
    }
}
