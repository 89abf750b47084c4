import QtQuick
import QtWebEngine
import QOR

// Shows a page view of the page factories in a web engine view.
Item {
    id: host
    property var pageView: null
    property real zoom: 1.0
    property alias web: web
    // The page's name for screen readers.
    property string title
    signal linkClicked(url url)
    signal loaded(bool ok)

    function showContent() {
        if (!pageView || !pageView.hasContent)
            return
        if (pageView.url.toString().length > 0)
            web.url = pageView.url
        else
            web.loadHtml(pageView.html, pageView.baseUrl)
    }

    onPageViewChanged: {
        if (pageView) {
            pageView.attachHost(host)
            showContent()
        }
    }
    Component.onDestruction: if (pageView) pageView.detachHost(host)

    Connections {
        target: host.pageView
        function onContentChanged() { host.showContent() }
        function onStopRequested() { web.stop() }
        function onScriptRequested(id, script) {
            var view = host.pageView
            web.runJavaScript(script, function(result) { view.scriptFinished(id, result) })
        }
    }

    WebEngineView {
        id: web
        anchors.fill: parent
        zoomFactor: host.zoom
        Accessible.role: Accessible.Document
        Accessible.name: host.title.length > 0 ? host.title : qsTr("Page text")
        backgroundColor: QorTheme.guideBackground
        onLoadingChanged: function(request) {
            if (request.status === WebEngineView.LoadSucceededStatus || request.status === WebEngineView.LoadFailedStatus) {
                var ok = request.status === WebEngineView.LoadSucceededStatus
                if (host.pageView)
                    host.pageView.reportLoadFinished(ok)
                host.loaded(ok)
            }
        }
        onNavigationRequested: function(request) {
            if (request.navigationType !== WebEngineNavigationRequest.LinkClickedNavigation)
                return
            var u = request.url.toString()
            // Links that leave the pack are handled by the screen, not followed here.
            if (!u.startsWith("file:") && !u.startsWith("data:") && !u.startsWith("about:")) {
                request.reject()
            }
            if (host.pageView)
                host.pageView.reportNavigation(request.url)
            host.linkClicked(request.url)
        }
    }
}
