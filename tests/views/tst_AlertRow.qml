// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Tests
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "AlertRow"

    function row(severity, description) {
        return make(component, { width: 600, alert: Sample.alert(severity, "malware", description) });
    }

    function test_texts() {
        const view = row("high", "found in a file");
        compare(textsIn(view), ["malware", "found in a file"]);
        compareLabel(labelOf(view, "malware"), 13, Font.DemiBold, Theme.text);
        compareLabel(labelOf(view, "found in a file"), 11, Font.Normal, Theme.gray);
    }

    function test_icon_data() {
        return [
            { tag: "critical", icon: "exclamationmark.triangle.fill", color: Theme.red },
            { tag: "CRITICAL", icon: "exclamationmark.triangle.fill", color: Theme.red },
            { tag: "high", icon: "exclamationmark.circle.fill", color: Theme.orange },
            { tag: "High", icon: "exclamationmark.circle.fill", color: Theme.orange },
            { tag: "medium", icon: "exclamationmark.circle", color: Theme.yellow },
            { tag: "low", icon: "info.circle", color: Theme.blue },
            { tag: " critical", icon: "info.circle", color: Theme.blue },
            { tag: "", icon: "info.circle", color: Theme.blue }
        ];
    }

    function test_icon(data) {
        const icon = itemOfType(row(data.tag, "found"), "SymbolIcon");
        compare(icon.name, data.icon);
        compareColor(icon.color, data.color);
        // As large as the default text.
        compare(icon.size, Theme.bodySize);
        compare(icon.status, Image.Ready);
    }

    function test_layout() {
        const view = row("high", "found");
        const icon = itemOfType(view, "SymbolIcon");
        const type = labelOf(view, "malware");
        const description = labelOf(view, "found");
        compare(boxIn(icon, view).x, 0);
        compare(roomBeside(icon, type), Theme.spacing);
        compare(boxIn(description, view).x, boxIn(type, view).x);
        compare(boxIn(type, view).y, 8);
        compare(roomBelow(type, description), Theme.spacing);
        compare(view.implicitHeight, 8 + type.height + Theme.spacing + description.height + 8);
        compareMiddleHeight(icon, view);
    }

    function test_absentDescriptionTakesNoRoom() {
        const view = row("high", undefined);
        const icon = itemOfType(view, "SymbolIcon");
        const type = labelOf(view, "malware");
        compare(textsIn(view), ["malware"]);
        compare(view.implicitHeight, 8 + Math.max(type.height, icon.height) + 8);
        compareMiddleHeight(icon, type);
    }

    function test_emptyDescriptionIsAnEmptyLine() {
        const view = row("high", "");
        compare(textsIn(view), ["malware", ""]);
        const line = labelOf(view, "");
        compare(line.height, labelOf(row("high", "found"), "found").height);
        compareLabel(line, 11, Font.Normal, Theme.gray);
        compare(view.implicitHeight, row("high", "found").implicitHeight);
    }

    Component {
        id: component

        AlertRow {}
    }
}
