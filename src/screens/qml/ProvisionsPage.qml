import QtQuick
import QtQuick.Controls
import QOR

// The special provisions of one shipping entry; each opens its group's page.
Page {
    id: page
    objectName: "provisionsPage"
    property alias provisions: delegate.provisions
    property alias headerTitle: delegate.headerTitle
    background: Rectangle { color: QorTheme.pageBackground }
    header: BarHeader { page: page; title: page.title }
    ShippingSpecialProvisionsTableDelegate { id: delegate }
    StackView.onActivated: rows.forceActiveFocus()
    PageRequests { page: page; origin: delegate }
    DetailRows {
        id: rows
        anchors.fill: parent
        model: delegate.rowModel
        onRowActivated: function(index) { delegate.activate(index) }
    }
}
