// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

SettingsCardTest {
    name: "QuickSetupCard"

    function card() {
        return makeCard(component);
    }

    function fieldOf(view, label) {
        return itemsOfType(view, "FormField").filter(field => field.label === label)[0];
    }

    function test_card() {
        const view = card();
        compareCard(view, "key.fill", "Quick Setup", 10);
        compare(gapsIn(view), [10, 10, 10, 10, 10]);
    }

    function test_texts() {
        const view = card();
        compareLabel(labelOf(view, "Paste your API key from the dashboard to connect"), 12, Font.Normal, Theme.gray);
        compareLabel(labelOf(view, settings.keyHelp), 10, Font.Normal, Theme.blue);
    }

    function test_fields() {
        const view = card();
        const server = fieldOf(view, "Server URL");
        compare(server.placeholder, settings.defaultServerUrl);
        compare(server.value, settings.defaultServerUrl);
        compare(server.echoMode, TextInput.Normal);
        const key = fieldOf(view, "API Key");
        compare(key.placeholder, "Paste your API key here");
        compare(key.value, "");
        compare(key.echoMode, TextInput.Password);
    }

    function test_fieldsAndSettingsFollowEachOther() {
        const view = card();
        settings.serverUrl = "https://other.example";
        settings.apiKeyInput = "k";
        compare(fieldOf(view, "Server URL").value, "https://other.example");
        compare(fieldOf(view, "API Key").value, "k");
        fieldOf(view, "Server URL").edited("typed");
        fieldOf(view, "API Key").edited("key");
        compare(settings.serverUrl, "typed");
        compare(settings.apiKeyInput, "key");
        labelOf(view, "Get your API key from: typed/agent/start");
    }

    function test_saveNeedsAKey() {
        const view = card();
        const save = buttonOf(view, "Save & Connect");
        compareButton(save, "checkmark.circle.fill", 10, Theme.gray);
        verify(!save.enabled);
        settings.apiKeyInput = "k";
        compareButton(save, "checkmark.circle.fill", 10, Theme.blue);
        verify(save.enabled);
        settings.apiKeyInput = "";
        compareColor(save.background, Theme.gray);
        verify(!save.enabled);
    }

    function test_save() {
        const view = card();
        mouseClick(buttonOf(view, "Save & Connect"));
        compare(settings.statusMessage, "", "not without a key");
        settings.apiKeyInput = "k";
        mouseClick(buttonOf(view, "Save & Connect"));
        compare(settings.statusMessage, "✅ Config saved! Restart the agent to connect.");
    }

    Component {
        id: component

        QuickSetupCard {}
    }
}
