// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import Quillmark.Views

SettingsCardTest {
    name: "AdvancedCard"

    function card() {
        return makeCard(component);
    }

    function noticesIn(view) {
        return itemsOfType(view, "NoticeRow").map(row => [row.icon, row.text, row.isGood]);
    }

    function test_card() {
        const view = card();
        compareCard(view, "gear", "Advanced Configuration", 10);
        compare(gapsIn(view), [10, 10, 10]);
        compare(noticesIn(view), []);
    }

    function test_texts() {
        const view = card();
        compareLabel(labelOf(view, "Import config.toml"), 13, Font.DemiBold, Theme.black);
        compareLabel(labelOf(view, "Select your config.toml file to configure the agent"), 12, Font.Normal, Theme.gray);
    }

    function test_browse() {
        const view = card();
        const browse = buttonOf(view, "Browse and Import Config");
        compareButton(browse, "doc.badge.plus", 10, Theme.blue);
        verify(browse.enabled);
        asked.target = settings;
        asked.clear();
        mouseClick(browse);
        compare(asked.count, 1);
    }

    function test_successfulImport() {
        const view = card();
        settings.fileChosen(home.write("my.toml", "[agent]"));
        settle(view);
        compare(noticesIn(view), [
            ["checkmark.circle.fill", "Selected: my.toml", true],
            ["checkmark.circle", "✅ Config imported successfully! Close and reopen the agent to apply changes.", true]
        ]);
        compare(gapsIn(view), [10, 10, 10, 10, 10]);
    }

    function test_failedImport() {
        const view = card();
        settings.fileChosen(home.write("my.toml", "[other]"));
        compare(noticesIn(view), [
            ["checkmark.circle.fill", "Selected: my.toml", true],
            ["exclamationmark.circle", "❌ Invalid config: missing [agent] section", false]
        ]);
    }

    function test_laterSaveReplacesTheFailure() {
        const view = card();
        settings.fileChosen(home.write("my.toml", "[other]"));
        settings.apiKeyInput = "k";
        settings.saveApiKey();
        compare(noticesIn(view)[1], ["checkmark.circle", "✅ Config saved! Restart the agent to connect.", true]);
    }

    Component {
        id: component

        AdvancedCard {}
    }

    SignalSpy {
        id: asked

        signalName: "pickerRequested"
    }
}
