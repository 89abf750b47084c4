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
    property alias table: table
    title: attributes.name || ""
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader { page: page; title: page.title; backText: page.backText }
    ShippingTableDelegate { id: delegate }
    PageRequests { page: page; origin: delegate }
    DetailRows {
        id: table
        anchors.fill: parent
        model: delegate.rowModel
        onRowActivated: function(index) { delegate.activate(index) }
    }
}
