import QtQuick
import QtQuick.Controls
import QtTest
import QOR

ShellTestCase {
    id: test
    name: "Materials"

    function list() { return win.materialList }

    function typeSearch(text) {
        var field = list().searchField
        field.text = text
        field.textEdited()
    }

    function setUpWindow() { AppDelegate.currentTab = AppDelegate.MaterialsTab }
    function reset() {
        findChild(list(), "filterPage").close()
        list().endSearch()
        AppDelegate.showAllMaterialsWithSort(0)
        list().StackView.view.pop(null, StackView.Immediate)
    }

    function test_sortAndCategory() {
        var controller = list().controller
        mouseClick(list().sortButton)
        compare(controller.sortType, 1)
        controller.chooseCategory("T")
        tryCompare(list().titleLabel, "text", " Toxic Inhalation Hazard")
    }

    function test_incidentSortSaysCountsArePartial() {
        var note = findChild(list(), "incidentsNote")
        verify(!note.visible, "no note under the alphabetical sort")
        AppDelegate.showAllMaterialsWithSort(2)
        tryVerify(function() { return note.visible })
        verify(note.height > 0 && note.text.length > 0)
    }

    function test_didYouMeanOpensASuggestion() {
        typeSearch("clorine")
        var controller = list().controller
        tryVerify(function() { return list().titleLabel.text === "0 search results" }, 2000)
        var panel = findChild(list(), "suggestionPanel")
        tryVerify(function() { return panel.visible })
        compare(controller.suggestionAt(0).unId, "1017")
        var first = findChild(panel, "suggestion0")
        tryVerify(function() { return first.y > 0 }, 1000, "the panel has laid out its rows")
        mouseClick(first)
        var stack = list().StackView.view
        tryCompare(stack, "depth", 2)
        compare(stack.currentItem.material.unId, "1017")
        stack.pop(null, StackView.Immediate)

        // Enter in the search field opens the best suggestion too.
        typeSearch("amonia")
        tryVerify(function() { return controller.suggestionAt(0).unId === "1005" }, 2000)
        list().searchField.forceActiveFocus()
        keyClick(Qt.Key_Return)
        tryCompare(stack, "depth", 2)
        compare(stack.currentItem.material.unId, "1005")
    }

    function test_followSearchLink() {
        // The link waits 3 s before it fills the search field.
        AppDelegate.openUrl("qor://search?q=chlorine")
        tryVerify(function() { return list().titleLabel.text.indexOf("search results") > 0 }, 5000)
        compare(list().searchField.text, "chlorine")
        compare(list().controller.materialAt(0).unId, "1017")
    }

    function test_followChemicalLink() {
        AppDelegate.openUrl("qor://chemical?un=1005")
        var stack = list().StackView.view
        tryCompare(stack, "depth", 2)
        compare(stack.currentItem.material.unId, "1005")
    }

    function textsUnder(item, out) {
        if (item.text !== undefined && typeof item.text === "string" && item.visible)
            out.push(item.text)
        for (var i = 0; i < item.children.length; ++i)
            textsUnder(item.children[i], out)
        return out
    }

    function test_filterScreenCannotRelabelTheCurrentFilter() {
        // A category chosen here changed the letter of the current filter, so
        // "All Materials" went on to show only that category. The pull-down
        // menu switches categories; this screen offers only the incidents switch.
        var dialog = findChild(list(), "filterPage")
        dialog.open()
        tryCompare(dialog, "opened", true)
        var texts = textsUnder(dialog.contentItem, [])
        verify(texts.indexOf("Materials with Incidents") >= 0, texts)
        compare(texts.filter(function(t) { return t.indexOf("Meth Lab") >= 0 }).length, 0, texts)
        dialog.reject()
        tryCompare(dialog, "visible", false)
    }
}
