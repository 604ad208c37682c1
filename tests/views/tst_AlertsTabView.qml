// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

PolledViewTest {
    name: "AlertsTabView"

    function tab() {
        return make(component, { width: 800, height: 600, viewModel: viewModel });
    }

    function alert(number) {
        return {
            alert_type: "type " + number,
            severity: "high",
            title: "title",
            file_path: "/tmp/file",
            timestamp: "2024-01-15T10:30:00Z"
        };
    }

    function rowsOf(view) {
        return itemsOfType(view, "AlertRow").sort((a, b) => boxIn(a, view).y - boxIn(b, view).y);
    }

    function test_emptyState() {
        const view = tab();
        const state = itemOfType(view, "EmptyState");
        compare(boxIn(state, view), Qt.rect(0, 0, 800, 600));
        compareColor(state.color, Theme.panelTint);
        compare(itemOfType(state, "SymbolIcon").name, "checkmark.circle");
        compareColor(itemOfType(state, "SymbolIcon").color, Theme.green);
        compare(textsIn(view), ["No threats detected"]);
        compare(itemsOfType(view, "PlainList"), []);
    }

    function test_oneAlertIsAList() {
        answerAlerts([alert(1)]);
        poll();
        const view = tab();
        compare(itemsOfType(view, "EmptyState"), []);
        compare(boxIn(itemOfType(view, "PlainList"), view), Qt.rect(0, 0, 800, 600));
        compare(rowsOf(view).map(row => textsIn(row)), [["type 1"]]);
    }

    function test_followsThePolls() {
        const view = tab();
        poll();
        compare(rowsOf(view).map(row => textsIn(row)), [["malware", "found"]]);
        backend.fail("/api/alerts");
        poll();
        compare(textsIn(view), ["No threats detected"]);
        backend.recover();
        poll();
        compare(rowsOf(view).length, 1);
    }

    // Rows are reused: nothing of the alert before must remain.
    function test_rowsShowTheNewValues() {
        const view = tab();
        answerAlerts([{ alert_type: "one", severity: "critical", description: "described" }, alert(2)]);
        poll();
        answerAlerts([{ alert_type: "other", severity: "low" }, alert(2)]);
        poll();
        compare(rowsOf(view).map(row => textsIn(row)), [["other"], ["type 2"]]);
        compare(itemOfType(rowsOf(view)[0], "SymbolIcon").name, "info.circle");
    }

    Component {
        id: component

        AlertsTabView {}
    }
}
