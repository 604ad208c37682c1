// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Tests
import Quillmark.ViewModel
import Quillmark.Views
import "../support/qml"

/// A test of one card of the Settings tab, with real settings in a temporary home.
ViewTest {
    id: testCase

    property alias home: testHome
    property SettingsState settings: null

    function setUp() {
        // They outlive the card that shows them.
        settings?.destroy();
        settings = settingsComponent.createObject(testCase);
    }

    function makeCard(component) {
        return makeWide(600, component, { settings: settings });
    }

    /// The only button with this text.
    function buttonOf(card, text) {
        const found = itemsOfType(card, "ActionButton").filter(button => button.text === text);
        compare(found.length, 1, "buttons with the text " + text);
        return found[0];
    }

    /// Checks what differs between buttons.
    function compareButton(button, icon, padding, background) {
        compare(button.icon, icon);
        compare(button.padding, padding, "padding of " + button.text);
        compareColor(button.background, background, "background of " + button.text);
    }

    /// Checks what differs between cards.
    function compareCard(card, icon, title, spacing) {
        compare(card.icon, icon);
        compare(card.title, title);
        compare(card.spacing, spacing);
    }

    /// The gaps between a card's rows, including its header.
    function gapsIn(card) {
        const rows = Array.from(card.children[0].children).filter(row => row.visible);
        return rows.slice(1).map((row, index) => roomBelow(rows[index], row));
    }

    TestHome {
        id: testHome
    }

    Component {
        id: settingsComponent

        SettingsState {}
    }
}
