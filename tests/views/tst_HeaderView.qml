// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Tests
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "HeaderView"

    function header(status) {
        return make(component, { width: 900, status: status });
    }

    function badgesOf(view) {
        return itemsOfType(view, "StatusBadge");
    }

    function test_titles() {
        const view = header(Sample.noStatus());
        compareLabel(labelOf(view, "Quillmark Agent"), 20, Font.Bold, Theme.black);
        compareLabel(labelOf(view, "Endpoint Detection & Response"), 12, Font.Normal, Theme.gray);
    }

    function test_shield() {
        const icon = itemOfType(header(Sample.noStatus()), "SymbolIcon");
        compare(icon.name, "shield.fill");
        compare(icon.size, 24);
        compareColor(icon.color, Theme.blue);
    }

    function test_leftBlock() {
        const view = header(Sample.noStatus());
        const icon = itemOfType(view, "SymbolIcon");
        const title = labelOf(view, "Quillmark Agent");
        const subtitle = labelOf(view, "Endpoint Detection & Response");
        compare(boxIn(icon, view).x, 0);
        compare(roomBeside(icon, title), 12);
        compare(boxIn(title, view).x, boxIn(subtitle, view).x);
        compare(roomBelow(title, subtitle), Theme.spacing);
        compareMiddleHeight(icon, title.parent);
    }

    function test_badges() {
        const view = header(Sample.noStatus());
        const badges = badgesOf(view);
        compare(badges.map(badge => badge.title), ["Status", "Threats"]);
        compare(boxIn(badges[0], view).x, 0);
        compare(roomBeside(badges[0], badges[1]), 20);
        compare(roomBelow(labelOf(view, "Endpoint Detection & Response"), badges[0]), 8);
    }

    function test_values_data() {
        return [
            { tag: "absent", status: Sample.noStatus(), texts: ["OFFLINE", "0"], healthy: [false, true] },
            { tag: "ok", status: Sample.status("ok", 0, ""), texts: ["OK", "0"], healthy: [true, true] },
            { tag: "OK", status: Sample.status("OK", 3, ""), texts: ["OK", "3"], healthy: [false, false] },
            { tag: "Ok", status: Sample.status("Ok", 1, ""), texts: ["OK", "1"], healthy: [false, false] },
            { tag: "running", status: Sample.status("running", -2, ""), texts: ["RUNNING", "-2"], healthy: [false, false] },
            { tag: "ungrouped", status: Sample.status("ok", 1234567, ""), texts: ["OK", "1234567"], healthy: [true, false] }
        ];
    }

    function test_values(data) {
        const badges = badgesOf(header(data.status));
        compare(badges.map(badge => badge.value), data.texts);
        compare(badges.map(badge => badge.isHealthy), data.healthy);
    }

    function test_noLastScanWithoutAStatus() {
        const view = header(Sample.noStatus());
        compare(textsIn(view), ["Quillmark Agent", "Endpoint Detection & Response", "Status", "OFFLINE", "Threats", "0"]);
    }

    function test_lastScan() {
        const view = header(Sample.status("ok", 0, "yesterday"));
        const title = labelOf(view, "Last Scan");
        const value = labelOf(view, "yesterday");
        compareLabel(title, 11, Font.Normal, Theme.gray);
        compareLabel(value, 13, Font.DemiBold, Theme.black);
        compare(roomBelow(title, value), 8);
        compare(boxIn(title, view).right, view.width);
        compare(boxIn(value, view).right, view.width);
        compareMiddleHeight(title.parent, view);
    }

    function test_lastScanIsFormatted() {
        compare(textsIn(header(Sample.status("ok", 0, "2024-01-15T10:30:00Z"))).pop(), "1/15/24, 10:30 AM");
    }

    function test_lastScanComesAndGoesWithTheStatus() {
        const view = header(Sample.noStatus());
        const height = view.implicitHeight;
        view.status = Sample.status("ok", 0, "yesterday");
        verify(labelOf(view, "Last Scan"));
        view.status = Sample.noStatus();
        compare(textsIn(view).includes("Last Scan"), false);
        compare(view.implicitHeight, height);
    }

    function test_emptyTextsKeepTheirLine() {
        const empty = header(Sample.status("", 0, ""));
        const usual = header(Sample.status("ok", 0, "yesterday"));
        const places = view => labelsIn(view).map(label => boxIn(label, view)).map(box => [box.y, box.height]);
        compare(places(empty), places(usual));
    }

    Component {
        id: component

        HeaderView {}
    }
}
