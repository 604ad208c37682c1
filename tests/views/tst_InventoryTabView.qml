// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

PolledViewTest {
    name: "InventoryTabView"

    function tab() {
        return make(component, { width: 800, height: 600, viewModel: viewModel });
    }

    function rowsOf(view) {
        return itemsOfType(view, "InstalledAppRow").sort((a, b) => boxIn(a, view).y - boxIn(b, view).y);
    }

    function test_blankWithoutAnInventory() {
        const view = tab();
        compare(textsIn(view), []);
        compare(itemsOfType(view, "SymbolIcon"), []);
        compare(itemsOfType(view, "PlainList"), []);
    }

    function test_loadingWithoutApplications() {
        answerInventory([], ["cron"], ["lo"]);
        poll();
        const view = tab();
        compare(textsIn(view), ["Loading applications..."]);
        compareLabel(labelOf(view, "Loading applications..."), Theme.bodySize, Font.Normal, Theme.gray);
        compare(itemsOfType(view, "PlainList"), []);
    }

    function test_list() {
        answerInventory([{ name: "with", version: "2.4.1" }, { name: "without" }, { name: "empty", version: "" }]);
        poll();
        const view = tab();
        compare(boxIn(itemOfType(view, "PlainList"), view), Qt.rect(0, 0, 800, 600));
        compare(rowsOf(view).map(row => textsIn(row)), [["with", "v2.4.1"], ["without"], ["empty", "v"]]);
    }

    function test_followsThePolls() {
        const view = tab();
        poll();
        compare(rowsOf(view).map(row => textsIn(row)), [["editor", "v2.4.1"]]);
        answerInventory([]);
        poll();
        compare(textsIn(view), ["Loading applications..."]);
        backend.fail("/api/inventory");
        poll();
        compare(textsIn(view), []);
        backend.recover();
        poll();
        compare(rowsOf(view).length, 1);
    }

    Component {
        id: component

        InventoryTabView {}
    }
}
