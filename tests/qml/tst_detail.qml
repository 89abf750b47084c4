import QtQuick
import QtQuick.Controls
import QtTest
import QOR

ShellTestCase {
    id: test
    name: "Detail"

    function list() { return win.materialList }
    function stack() { return list().StackView.view }

    function setUpWindow() { AppDelegate.currentTab = AppDelegate.MaterialsTab }
    function reset() {
        list().endSearch()
        stack().pop(null, StackView.Immediate)
        AppDelegate.currentTab = AppDelegate.MaterialsTab
    }

    function openMaterial(unId) {
        searchFor(unId)
        list().openRow(0)
        tryCompare(stack(), "busy", false)
        tryCompare(stack(), "depth", 2)
        var page = stack().currentItem
        compare(page.objectName, "materialDetail")
        return page
    }

    function itemsNamed(item, name, out) {
        if (item.objectName === name)
            out.push(item)
        var kids = item.children
        for (var i = 0; i < kids.length; ++i)
            itemsNamed(kids[i], name, out)
        return out
    }

    // Drawn, not just present: a grab of each line has pixels other than its background.
    function verifyDrawnText(label) {
        verify(label.visible && label.width > 0 && label.height > 0, label.text)
        var img = grabImage(label)
        var background = img.pixel(0, 0)
        var inked = false
        for (var x = 0; x < img.width && !inked; x += 2)
            for (var y = 0; y < img.height && !inked; y += 2)
                inked = !Qt.colorEqual(img.pixel(x, y), background)
        verify(inked, "nothing drawn for " + label.text)
    }

    function test_sourceLinesUnderEverySection() {
        var page = openMaterial("1090")
        mouseClick(findChild(page, "segment1"))
        tryVerify(function() { return page.table.count === page.controller.rowModel.count })
        var sourceRows = rowsOf(page).filter(function(r) { return r.kind === DetailRowModel.Source })
        // Rows below the fold are made only when scrolled to: check each
        // source line where it is shown.
        var seen = {}
        for (var pass = 0; pass < 2; ++pass) {
            if (pass === 1)
                page.table.positionViewAtEnd()
            waitForRendering(page.table)
            var lines = itemsNamed(page.table.contentItem, "sourceLine", [])
            for (var i = 0; i < lines.length; ++i) {
                if (seen[lines[i].text] || lines[i].y + lines[i].height < 0)
                    continue
                verify(lines[i].text.indexOf("Source: ") === 0, lines[i].text)
                verifyDrawnText(lines[i])
                seen[lines[i].text] = true
            }
        }
        compare(Object.keys(seen).length, sourceRows.length)
        page.table.positionViewAtBeginning()
        waitForRendering(page.table)
        var notes = itemsNamed(page.table.contentItem, "sourceNote", []).filter(function(n) { return n.visible })
        compare(notes.length, 1, "only the incident section says its counts are partial")
        verifyDrawnText(notes[0])
        mouseClick(findChild(page, "segment0"))
    }

    function test_guideTextSizeScalesThePage() {
        var guide = openGuide("125")
        guide.controller.sliderChanged(500)
        compare(guide.host.zoom, 1.3, "the page really scales, to at most 130%")
        guide.controller.sliderChanged(100)
        guide.StackView.view.pop(null, StackView.Immediate)
    }

    function openGuide(guideId) {
        AppDelegate.showGuide(guideId)
        tryVerify(function() { var g = findChild(win.contentItem, "guidePage"); return g && g.guideId === guideId }, 3000)
        var guide = findChild(win.contentItem, "guidePage")
        tryCompare(guide.StackView.view, "busy", false)
        return guide
    }

    function test_leavingFullScreenAnyWayRestoresTheBars() {
        var tabBar = findChild(win.contentItem, "tabBar")
        // Leaving the guide while in full screen brings the bars back.
        var guide = openGuide("125")
        AppDelegate.toggleFullscreen()
        verify(!tabBar.visible)
        guide.StackView.view.pop(null, StackView.Immediate)
        verify(!AppDelegate.fullscreen)
        verify(tabBar.visible, "popping the guide brings the tab bar back")
        // So does switching tabs (a link or shortcut can do that).
        guide = openGuide("125")
        AppDelegate.toggleFullscreen()
        AppDelegate.currentTab = AppDelegate.MaterialsTab
        verify(tabBar.visible, "another tab brings the tab bar back")
        findChild(win.contentItem, "guidePage").StackView.view.pop(null, StackView.Immediate)
    }
}
