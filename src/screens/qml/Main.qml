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
    // The controls draw their keyboard focus and selection in the focus ring's colours.
    palette.highlight: QorTheme.focusRing
    palette.highlightedText: QorTheme.focusRingInner

    readonly property bool tablet: AppDelegate.tablet
    // The app sets this: the tab shown at launch is built first and the other
    // tabs once its first frame is on screen. Tests and the self-test build
    // every tab at once.
    property bool deferTabs: false
    readonly property var tabPageFiles: ["MaterialListPage.qml", "GuideListPage.qml", "HistoryPage.qml",
                                         "ReferencePage.qml", "AboutPage.qml", "SearchByIdPage.qml"]
    readonly property Item materialList: builtTabs, tabStacks.count > 0 ? materialsStack.get(0) : null
    readonly property Item historyPage: builtTabs, tabStacks.count > 2 ? historyStack.get(0) : null
    readonly property Item referencePage: builtTabs, tabStacks.count > 3 ? referenceStack.get(0) : null
    readonly property Item aboutPage: builtTabs, tabStacks.count > 4 ? aboutStack.get(0) : null
    property int builtTabs: 0
    // An info page shown in the tablet detail area instead of a material.
    property var detailInfo: null

    onWidthChanged: AppDelegate.updateForWindowSize(width, height)
    Component.onCompleted: {
        AppDelegate.updateForWindowSize(width, height)
        if (deferTabs)
            tabPage(AppDelegate.currentTab)
        else
            for (var i = 0; i < tabPageFiles.length; ++i)
                tabPage(i)
    }
    onFrameSwapped: buildDeferredTabs()
    property bool buildingTabs: false
    function buildDeferredTabs() {
        if (deferTabs && !buildingTabs) {
            buildingTabs = true
            Qt.callLater(buildNextTab)
        }
    }
    // Should no frame be swapped (a hidden window), the tabs come anyway.
    Timer { running: window.deferTabs; interval: 1000; onTriggered: window.buildDeferredTabs() }

    // The root page of tab INDEX, made when first needed.
    function tabPage(index) {
        var stack = tabStacks.children[index]
        if (!stack)
            return null
        if (stack.depth === 0) {
            stack.push(Qt.resolvedUrl(tabPageFiles[index]).toString(), {}, StackView.Immediate)
            builtTabs += 1
        }
        return stack.get(0)
    }

    // One tab per turn of the event loop, so input is never held up for long.
    function buildNextTab() {
        for (var i = 0; i < tabPageFiles.length; ++i) {
            if (tabStacks.children[i].depth === 0) {
                tabPage(i)
                Qt.callLater(buildNextTab)
                return
            }
        }
    }

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
        function onCurrentTabChanged() { window.tabPage(Math.min(AppDelegate.currentTab, tabStacks.count - 1)) }
        function onSearchRequested(text) { window.tabPage(0).startSearch(text) }
        // An index or table row of Reference shows the list itself, from its root.
        function onEndSearchRequested() {
            window.tabPage(0)
            materialsStack.pop(null, StackView.Immediate)
            materialsStack.get(0).endSearch()
        }
        function onScrollToMaterialRequested(material) { window.tabPage(0).scrollToMaterial(material) }
        function onDialogRequested(title, message, button) {
            messageDialogLoader.active = true
            var dialog = messageDialogLoader.item
            dialog.title = title
            dialog.message = message
            dialog.button = button
            dialog.open()
        }
    }

    // Pages ask for materials, guides and information pages here.
    Connections {
        target: Navigation
        function onMaterialRequested(material) { window.openMaterial(material) }
        function onGuideRequested(guideId, material) { AppDelegate.showGuideForMaterial(guideId, material) }
        function onInfoPageRequested(page, title, textSizeButton, inDetailArea) { window.openInfoPage(page, title, textSizeButton, inDetailArea) }
    }

    function openMaterial(material) {
        if (!material || !material.valid || AppDelegate.showInDetailArea(material))
            return
        AppDelegate.currentTab = AppDelegate.MaterialsTab
        tabPage(0)
        materialsStack.push(Qt.resolvedUrl("MaterialDetailPage.qml").toString(), { material: material })
    }

    function openGuide(guideId, material) {
        tabPage(1)
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
        tabPage(3)
        referenceStack.pop(null, StackView.Immediate)
        referenceStack.get(0).openPlacards()
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

    // The pages on screen: the current tab's top page and, in the wide
    // layout, the page in the detail area.
    function livePages() {
        var pages = []
        var stack = currentStack()
        if (stack && stack.currentItem)
            pages.push(stack.currentItem)
        var detail = window.tablet ? detailArea.item : null
        if (detail && detail.currentItem !== undefined)
            detail = detail.currentItem
        else if (detail && detail.item !== undefined)  // an info page, loaded from its file
            detail = detail.item
        if (detail && detail.objectName)
            pages.push(detail)
        return pages
    }
    // The first page on screen that has `property`, or null.
    function livePageWith(property) {
        var pages = livePages()
        for (var i = 0; i < pages.length; ++i)
            if (pages[i][property])
                return pages[i]
        return null
    }
    function showShortcuts() {
        shortcutSheetLoader.active = true
        var sheet = shortcutSheetLoader.item
        sheet.shortcuts = KeyboardShortcuts.shortcutsFor(livePages().map(function(p) { return p.objectName }),
                                                         window.tablet)
        sheet.open()
    }
    function changeTextSize(step) {
        var page = livePageWith("textSizeController")
        if (page)
            page.textSizeController.sliderChanged(page.textSizeController.textFontSize + step)
    }

    Shortcut {
        objectName: "shortcutsShortcut"
        sequences: ["F1", "?"]
        onActivated: window.showShortcuts()
    }
    Shortcut {
        sequences: [StandardKey.ZoomIn, "Ctrl+="]
        onActivated: window.changeTextSize(5)
    }
    Shortcut {
        sequence: StandardKey.ZoomOut
        onActivated: window.changeTextSize(-5)
    }
    Shortcut {
        sequence: StandardKey.Print
        onActivated: {
            var page = window.livePageWith("printController")
            if (page)
                page.printController.printWebPage()
        }
    }
    // Full screen for reading a guide; Esc brings the bars back.
    Shortcut {
        sequence: "F11"
        onActivated: if (window.livePageWith("printController")) AppDelegate.toggleFullscreen()
    }
    Repeater {
        model: 3
        Item {
            required property int index
            Shortcut {
                sequence: "Ctrl+" + (index + 1)
                onActivated: {
                    var page = window.livePageWith("showSection")
                    if (page)
                        page.showSection(index)
                }
            }
        }
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

                StackView { id: materialsStack }
                StackView { id: guidesStack }
                StackView { id: historyStack }
                StackView { id: referenceStack }
                StackView { id: aboutStack }
                StackView { id: searchStack }
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

    // Made on the first message: a dialog costs start-up time and most runs show none.
    Loader {
        id: messageDialogLoader
        active: false
        sourceComponent: Dialog {
            objectName: "messageDialog"
            property alias message: messageText.text
            property alias button: dismissButton.text
            parent: Overlay.overlay
            anchors.centerIn: parent
            modal: true
            width: Math.min(400, window.width - 40)
            Label { id: messageText; width: parent.width; wrapMode: Text.Wrap }
            footer: DialogButtonBox {
                Button { id: dismissButton; Accessible.name: text; DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole }
            }
        }
    }

    // The keys live on the screens shown, opened with F1 or "?"; made when
    // first asked for.
    Loader {
        id: shortcutSheetLoader
        active: false
        sourceComponent: Dialog {
        id: shortcutSheet
        objectName: "shortcutSheet"
        property var shortcuts: []
        parent: Overlay.overlay
        anchors.centerIn: parent
        modal: true
        title: KeyboardShortcuts.title()
        width: Math.min(560, window.width - 20)
        height: Math.min(implicitHeight, window.height - 40)
        contentItem: ListView {
            objectName: "shortcutList"
            implicitHeight: contentHeight
            clip: true
            model: shortcutSheet.shortcuts
            activeFocusOnTab: true
            focus: true
            Accessible.role: Accessible.List
            Accessible.name: shortcutSheet.title
            ScrollBar.vertical: ScrollBar {}
            delegate: RowLayout {
                required property var modelData
                width: ListView.view.width
                height: Math.max(32, actionLabel.implicitHeight + 8)
                spacing: 12
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.keys + ": " + modelData.action
                Label {
                    text: modelData.keys
                    font.bold: true
                    color: QorTheme.accentText
                    Layout.preferredWidth: 190
                    wrapMode: Text.Wrap
                }
                Label {
                    id: actionLabel
                    text: modelData.action
                    color: QorTheme.pageText
                    Layout.fillWidth: true
                    wrapMode: Text.Wrap
                }
            }
        }
        footer: DialogButtonBox {
            Button { text: qsTr("Done"); implicitHeight: QorTheme.touchTarget; DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole }
        }
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
        // Pages are made from their files, not declared here, so that their
        // types (and the web engine behind info pages) load only when shown.
        StackView {
            id: detailStack
            Component.onCompleted: push(Qt.resolvedUrl("MaterialDetailPage.qml").toString(),
                                        { material: AppDelegate.detailMaterial }, StackView.Immediate)
            Connections {
                target: AppDelegate
                function onDetailMaterialChanged() {
                    detailStack.pop(null, StackView.Immediate)
                    detailStack.get(0).material = AppDelegate.detailMaterial
                }
            }
        }
    }
    Component {
        id: infoDetailComponent
        Loader {
            Component.onCompleted: setSource(Qt.resolvedUrl("InfoPage.qml"), window.detailInfo)
            // Another info page chosen while one is shown replaces its contents.
            onLoaded: {
                item.page = Qt.binding(function() { return window.detailInfo ? window.detailInfo.page : "" })
                item.title = Qt.binding(function() { return window.detailInfo ? window.detailInfo.title : "" })
                item.textSizeButton = Qt.binding(function() { return window.detailInfo ? window.detailInfo.textSizeButton : false })
            }
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
        var m = tabPage(0).firstMaterial()
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
        var m = tabPage(0).firstMaterial()
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
