// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Tests
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "NetworkConnectionRow"

    function row(address, port, state) {
        return make(component, { width: 600, connection: Sample.connection(address, port, state) });
    }

    function test_texts() {
        const view = row("127.0.0.1", "7823", "ESTABLISHED");
        compare(textsIn(view), ["127.0.0.1:7823", "→ 127.0.0.1:7823", "ESTABLISHED"]);
        compareLabel(labelOf(view, "127.0.0.1:7823"), 13, Font.DemiBold, Theme.text);
        compareLabel(labelOf(view, "→ 127.0.0.1:7823"), 12, Font.Normal, Theme.gray);
        compareLabel(labelOf(view, "ESTABLISHED"), 11, Font.Normal, Theme.blue);
    }

    function test_emptyFields() {
        compare(textsIn(row("", "", "")), [":", "→ :", ""]);
    }

    function test_ipv6AddressHasNoBrackets() {
        compare(textsIn(row("fe80::1", "22", "LISTEN"))[0], "fe80::1:22");
    }

    function test_layout() {
        const view = row("127.0.0.1", "7823", "ESTABLISHED");
        const local = labelOf(view, "127.0.0.1:7823");
        const remote = labelOf(view, "→ 127.0.0.1:7823");
        compare(boxIn(local, view).x, 0);
        compare(boxIn(remote, view).x, 0);
        compare(boxIn(local, view).y, 8);
        compare(roomBelow(local, remote), 4);
        compare(view.implicitHeight, 8 + local.height + 4 + remote.height + 8);
    }

    function test_stateIsCentredAtTheTrailingEdge() {
        const view = row("127.0.0.1", "7823", "ESTABLISHED");
        const state = labelOf(view, "ESTABLISHED");
        compare(boxIn(state, view).right, view.width);
        compareMiddleHeight(state, view);
    }

    function test_heightDoesNotDependOnTheState() {
        compare(row("a", "1", "").implicitHeight, row("a", "1", "ESTABLISHED").implicitHeight);
    }

    function test_endpointsTakeTheRoomBesideTheState() {
        const view = row("words of an address ".repeat(3), "443", "LISTEN");
        compare(labelsIn(view).map(label => label.lineCount), [1, 1, 1]);
    }

    function test_eachSideHasHalfIfBothAreLong() {
        const view = row("endless".repeat(100), "1", "endless".repeat(100));
        const [local, remote, state] = labelsIn(view).map(label => boxIn(label, view));
        compare(local.width, state.width);
        compare(state.left - local.right, 2 * Theme.spacing);
        compare(state.right, view.width);
    }

    // Not as narrow as its first lines.
    function test_longStateWithShortLinesFirstTakesHalfTheRow() {
        const view = row("10.0.0.1", "443", "\n".repeat(2000) + "word ".repeat(2000));
        compare(boxIn(labelsIn(view)[2], view).left, (view.width + 2 * Theme.spacing) / 2);
    }

    // The taller side determines the row's height, the other one is in the middle.
    function test_sidesOfUnequalHeight_data() {
        return [{ tag: "state", address: "a", state: "1\n2\n3\n4\n5" }, { tag: "endpoints", address: "1\n2", state: "a" }];
    }

    function test_sidesOfUnequalHeight(data) {
        const view = row(data.address, "1", data.state);
        const [local, , state] = labelsIn(view);
        compare(view.implicitHeight, 8 + Math.max(local.parent.height, state.height) + 8);
        compareMiddleHeight(local.parent, view);
        compareMiddleHeight(state, view);
    }

    Component {
        id: component

        NetworkConnectionRow {}
    }
}
