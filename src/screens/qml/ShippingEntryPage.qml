import QtQuick
import QtQuick.Controls
import QOR

// One shipping-table entry's regulation rows.
Page {
    id: page
    objectName: "shippingEntry"
    property alias attributes: delegate.attributes
    property string backText: qsTr("Back")
    property alias controller: delegate
    property alias table: rows
    title: attributes.name || ""
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader { page: page; title: page.title; backText: page.backText }
    ShippingTableDelegate { id: delegate }
    StackView.onActivated: rows.forceActiveFocus()
    PageRequests { page: page; origin: delegate }
    DetailRows {
        id: rows
        anchors.fill: parent
        model: delegate.rowModel
        onRowActivated: function(index) { delegate.activate(index) }
    }
}
