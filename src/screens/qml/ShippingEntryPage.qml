import QtQuick
import QtQuick.Controls
import QOR

// One shipping-table entry's regulation rows.
Page {
    id: page
    objectName: "shippingEntry"
    property alias attributes: delegate.attributes
    property string backText: qsTr("Back")
    title: attributes.name || ""
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader { page: page; title: page.title; backText: page.backText }
    ShippingTableDelegate { id: delegate }
    StackView.onActivated: rows.forceActiveFocus()
    DetailRows {
        id: rows
        anchors.fill: parent
        model: delegate.rows
        onRowClicked: function(row) {
            var action = delegate.actionForKey(row.key)
            var stack = page.StackView.view
            if (!stack || !action.kind)
                return
            if (action.kind === "cfr")
                stack.push(Qt.resolvedUrl("RegulationPage.qml").toString(), { title: action.title, html: action.html, source: action.source })
            else
                stack.push(Qt.resolvedUrl("ProvisionsPage.qml").toString(), { title: action.title, provisions: action.provisions, headerTitle: action.headerTitle })
        }
    }
}
