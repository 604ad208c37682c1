// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

PolledViewTest {
    name: "NetworkTabView"

    function tab() {
        return make(component, { width: 800, height: 600, viewModel: viewModel });
    }

    function connection(number, risk) {
        return {
            protocol: "tcp",
            local_address: "127.0.0.1",
            local_port: String(number),
            remote_address: "10.0.0.5",
            remote_port: "443",
            state: "ESTABLISHED",
            pid: "4711",
            risk_level: risk
        };
    }

    function rowsOf(view) {
        return itemsOfType(view, "NetworkConnectionRow").sort((a, b) => boxIn(a, view).y - boxIn(b, view).y);
    }

    function test_emptyState() {
        const view = tab();
        const state = itemOfType(view, "EmptyState");
        compare(boxIn(state, view), Qt.rect(0, 0, 800, 600));
        compare(itemOfType(state, "SymbolIcon").name, "network");
        compareColor(itemOfType(state, "SymbolIcon").color, Theme.gray);
        compare(textsIn(view), ["No network connections detected"]);
        compare(itemsOfType(view, "PlainList").length, 0);
    }

    function test_list() {
        answerConnections(listOf(3, connection));
        poll();
        const view = tab();
        compare(itemsOfType(view, "EmptyState").length, 0);
        compare(boxIn(itemOfType(view, "PlainList"), view), Qt.rect(0, 0, 800, 600));
        compare(rowsOf(view).map(row => textsIn(row)), [
            ["127.0.0.1:0", "→ 10.0.0.5:443", "ESTABLISHED"],
            ["127.0.0.1:1", "→ 10.0.0.5:443", "ESTABLISHED"],
            ["127.0.0.1:2", "→ 10.0.0.5:443", "ESTABLISHED"]
        ]);
    }

    function test_riskDoesNotChangeTheLook() {
        answerConnections([connection(1), connection(1, "high")]);
        poll();
        const rows = rowsOf(tab());
        verify(grabImage(rows[0]).equals(grabImage(rows[1])));
    }

    function test_followsThePolls() {
        const view = tab();
        poll();
        compare(rowsOf(view).length, 1);
        backend.fail("/api/network");
        poll();
        compare(rowsOf(view).length, 0);
        verify(itemOfType(view, "EmptyState"));
        backend.recover();
        poll();
        compare(rowsOf(view).length, 1);
        compare(itemsOfType(view, "EmptyState").length, 0);
    }

    function test_rowsShowTheNewValues() {
        const view = tab();
        answerConnections([connection(1), connection(2)]);
        poll();
        answerConnections([connection(3), connection(2)]);
        poll();
        compare(rowsOf(view).map(row => textsIn(row)[0]), ["127.0.0.1:3", "127.0.0.1:2"]);
    }

    Component {
        id: component

        NetworkTabView {}
    }
}
