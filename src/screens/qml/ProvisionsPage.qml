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
    DetailRows {
        id: rows
        anchors.fill: parent
        model: delegate.rows
        onRowClicked: function(row, index) {
            var chosen = delegate.chooseProvision(index)
            if (page.StackView.view && chosen.category)
                page.StackView.view.push(Qt.resolvedUrl("ProvisionPage.qml").toString(),
                                         { category: chosen.category, provision: chosen.provision, title: chosen.title })
        }
    }
}
