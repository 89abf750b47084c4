import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QOR

// The materials of the current category by section, with search as you type.
Page {
    id: page
    // Rows are made once the tab has been on screen: a hidden tab would
    // otherwise build its first screenful (and render its artwork) at launch.
    property bool shown: false
    // Shown, the list takes the keys, so typing goes to the search.
    onVisibleChanged: {
        if (!visible)
            return
        shown = true
        if (!searchField.activeFocus)
            listView.forceActiveFocus()
    }
    objectName: "materialList"
    property alias controller: list
    property alias searchField: searchField
    property alias titleLabel: titleLabel
    property alias listView: listView
    property alias sortButton: sortButton

    background: Rectangle { color: QorTheme.pageBackground }

    function startSearch(text) {
        searchField.forceActiveFocus()
        searchField.text = text
        list.searchText = text
        list.searchNow()
        searchField.focus = false
    }
    function endSearch() {
        searchField.text = ""
        list.doneSearch()
    }
    function scrollToMaterial(material) {
        var row = list.rowForMaterial(material)
        if (row >= 0)
            listView.positionViewAtIndex(row, ListView.Beginning)
    }
    function firstMaterial() { return list.materialAt(0) }
    function openRow(row) {
        // With nothing found, Enter opens the best suggestion instead.
        var m = list.rowCount() === 0 ? list.suggestionAt(row) : list.materialAt(row)
        if (!m.valid)
            return
        if (AppDelegate.tablet)
            list.selectedRow = row
        Qt.inputMethod.hide()
        Navigation.openMaterial(m)
    }

    MaterialListController {
        id: list
        onScrollToTop: listView.positionViewAtBeginning()
    }

    // Typing anywhere on the list goes into the search field.
    Keys.onPressed: function(event) {
        if (event.text.length === 1 && /[0-9A-Za-z ]/.test(event.text) && !searchField.activeFocus) {
            searchField.forceActiveFocus()
            searchField.text += event.text
            event.accepted = true
        }
    }
    // Ctrl+F or "/" from any screen: back to this list, in the search field.
    Shortcut {
        sequences: [StandardKey.Find, "/"]
        onActivated: {
            AppDelegate.currentTab = AppDelegate.MaterialsTab
            if (page.StackView.view)
                page.StackView.view.pop(null, StackView.Immediate)
            searchField.forceActiveFocus()
            searchField.selectAll()
        }
    }

    header: ToolBar {
        background: Rectangle { color: QorTheme.barBackground }
        palette { buttonText: QorTheme.barText; button: QorTheme.barPressed; highlight: QorTheme.barSelectedText; mid: QorTheme.barPressed }
        RowLayout {
            anchors.fill: parent
            spacing: 4
            ToolButton {
                id: categoryButton
                text: "▾"
                font.pixelSize: 20
                implicitWidth: QorTheme.touchTarget
                implicitHeight: QorTheme.touchTarget
                Accessible.name: qsTr("Choose category")
                onClicked: categoryMenu.open()
                Menu {
                    id: categoryMenu
                    y: categoryButton.height
                    Repeater {
                        model: list.categories
                        delegate: MenuItem {
                            required property var modelData
                            text: modelData.name
                            checkable: true
                            checked: list.categoryAbbrev === modelData.abbrev
                            onTriggered: list.chooseCategory(modelData.abbrev)
                        }
                    }
                }
            }
            Label {
                id: titleLabel
                objectName: "listTitle"
                Layout.fillWidth: true
                text: list.title
                color: QorTheme.barText
                font.bold: true
                font.pixelSize: 14
                elide: Text.ElideRight
            }
            ToolButton {
                implicitWidth: QorTheme.touchTarget
                implicitHeight: QorTheme.touchTarget
                Accessible.name: qsTr("Filter materials")
                text: "⚲"
                font.pixelSize: 20
                onClicked: filterDialog.open()
            }
            ToolButton {
                id: sortButton
                objectName: "sortButton"
                implicitWidth: QorTheme.touchTarget
                implicitHeight: QorTheme.touchTarget
                Accessible.name: qsTr("Change sort order")
                icon.source: QorTheme.pdf(list.sortImage, 33, 33)
                icon.color: "transparent"
                icon.width: 33
                icon.height: 33
                onClicked: list.nextSort()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Label {
            Layout.fillWidth: true
            text: PackStatus.notice
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            color: QorTheme.noticeText
            font.pixelSize: 11
            background: Rectangle { color: QorTheme.noticeBackground }
        }

        Label {
            objectName: "incidentsNote"
            Layout.fillWidth: true
            Layout.margins: 6
            text: list.incidentsNote
            visible: text.length > 0
            color: QorTheme.secondaryText
            font.pixelSize: 12
            wrapMode: Text.Wrap
        }

        TextField {
            id: searchField
            objectName: "searchField"
            Layout.fillWidth: true
            Layout.margins: 4
            implicitHeight: QorTheme.touchTarget
            placeholderText: list.placeholderText
            inputMethodHints: Qt.ImhNoPredictiveText
            Accessible.name: list.placeholderText
            onTextEdited: list.searchText = text
            onTextChanged: if (text === "") list.searchText = ""
            Keys.onReturnPressed: page.openRow(0)
            Keys.onEnterPressed: page.openRow(0)
            Keys.onEscapePressed: page.endSearch()
            Keys.onDownPressed: { listView.forceActiveFocus(); listView.currentIndex = 0 }
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: listView
                objectName: "materialListView"
                anchors.fill: parent
                anchors.rightMargin: sideIndex.visible ? sideIndex.width : 0
                clip: true
                model: page.visible || shown ? list : null
                keyNavigationEnabled: true
                highlightMoveDuration: 0
                section.property: "sectionKey"
                section.delegate: Rectangle {
                    required property string section
                    width: ListView.view.width
                    height: sectionLabel.text === "" ? 0 : 26
                    color: QorTheme.sectionBackground
                    Label {
                        id: sectionLabel
                        x: 10
                        anchors.verticalCenter: parent.verticalCenter
                        text: list.searching ? "" : list.sectionTitle(parent.section)
                        color: QorTheme.sectionText
                        font.bold: true
                    }
                }
                delegate: MaterialRow {
                    width: ListView.view.width
                    highlighted: ListView.isCurrentItem || (AppDelegate.tablet && index === list.selectedRow)
                    onClicked: page.openRow(index)
                    Keys.onReturnPressed: page.openRow(index)
                }
                Keys.onReturnPressed: page.openRow(currentIndex)
                Keys.onEnterPressed: page.openRow(currentIndex)
                // Up from the first result goes back to the search field.
                Keys.onUpPressed: function(event) {
                    if (currentIndex <= 0)
                        searchField.forceActiveFocus()
                    else
                        decrementCurrentIndex()
                }
                Accessible.role: Accessible.List
                Accessible.name: list.title
                ScrollBar.vertical: ScrollBar {}
            }

            Label {
                objectName: "emptyText"
                anchors.centerIn: parent
                width: parent.width - 40
                text: list.emptyText
                visible: text.length > 0
                color: QorTheme.secondaryText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            // Nothing found: the closest names, clearly not matches.
            Column {
                id: suggestionPanel
                objectName: "suggestionPanel"
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: 10
                spacing: 2
                visible: list.searching && listView.count === 0 && list.suggestions.length > 0
                Label {
                    text: qsTr("Did you mean")
                    color: QorTheme.pageText
                    font.bold: true
                    font.pixelSize: 16
                    bottomPadding: 6
                }
                Repeater {
                    model: list.suggestions
                    delegate: ItemDelegate {
                        id: suggestionRow
                        required property var modelData
                        required property int index
                        objectName: "suggestion" + index
                        width: suggestionPanel.width
                        implicitHeight: QorTheme.touchTarget
                        background: Rectangle {
                            color: suggestionRow.down || suggestionRow.visualFocus ? QorTheme.sectionBackground : QorTheme.pageBackground
                            Rectangle { width: parent.width; height: 1; anchors.bottom: parent.bottom; color: QorTheme.sectionBackground }
                        }
                        contentItem: Label {
                            text: modelData.name + "   UN" + modelData.unId + "  ·  " + qsTr("Guide") + " " + modelData.guideId
                            color: QorTheme.pageText
                            elide: Text.ElideRight
                            verticalAlignment: Text.AlignVCenter
                        }
                        Accessible.name: qsTr("Suggestion") + " " + modelData.name
                        onClicked: page.openRow(index)
                        Keys.onReturnPressed: page.openRow(index)
                    }
                }
            }

            // Side index: touching or dragging along it scrolls to a section.
            // When the keys do not fit, it shows a subset with "•" between.
            Item {
                id: sideIndex
                objectName: "sideIndex"
                anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
                width: QorTheme.touchTarget
                visible: list.sectionIndex.length > 0
                Accessible.role: Accessible.ScrollBar
                Accessible.name: qsTr("Section index")
                readonly property int entryHeight: 22
                readonly property var entries: list.sectionIndex.length > 0 ? list.sideIndexEntries(Math.floor(height / entryHeight)) : []
                property string shownKey: ""

                function scrollTo(key) {
                    shownKey = key
                    var row = list.rowForSectionKey(key)
                    if (row < 0)
                        listView.positionViewAtBeginning()
                    else
                        listView.positionViewAtIndex(row, ListView.Beginning)
                }

                Column {
                    id: indexColumn
                    anchors.centerIn: parent
                    Repeater {
                        model: sideIndex.entries
                        delegate: Label {
                            required property var modelData
                            width: sideIndex.width
                            height: sideIndex.entryHeight
                            text: modelData.label
                            font.pixelSize: 13
                            font.bold: true
                            color: QorTheme.tintText
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                    }
                }
                MouseArea {
                    anchors.fill: parent
                    preventStealing: true
                    // A touch takes the entry under it; a drag passes over every key.
                    onPressed: function(mouse) {
                        var i = Math.floor((mouse.y - indexColumn.y) / sideIndex.entryHeight)
                        if (i >= 0 && i < sideIndex.entries.length)
                            sideIndex.scrollTo(sideIndex.entries[i].key)
                    }
                    onPositionChanged: function(mouse) {
                        var key = list.sideIndexKeyAt((mouse.y - indexColumn.y) / Math.max(1, indexColumn.height))
                        if (key !== "" && key !== sideIndex.shownKey)
                            sideIndex.scrollTo(key)
                    }
                    onReleased: sideIndex.shownKey = ""
                    onCanceled: sideIndex.shownKey = ""
                }
            }
            // The key under the finger, large, beside the index.
            Rectangle {
                objectName: "sideIndexBubble"
                visible: sideIndex.shownKey !== ""
                anchors { right: sideIndex.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
                width: Math.max(72, bubbleLabel.implicitWidth + 24)
                height: 72
                radius: 10
                color: QorTheme.sectionBackground
                Label {
                    id: bubbleLabel
                    anchors.centerIn: parent
                    text: sideIndex.shownKey.trim()
                    font.pixelSize: 32
                    font.bold: true
                    color: QorTheme.sectionText
                }
            }
        }
    }

    FilterPage {
        id: filterDialog
        anchors.centerIn: Overlay.overlay
    }
}
