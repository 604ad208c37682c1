// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

PolledViewTest {
    name: "DashboardTabView"

    readonly property var alwaysShown: ["Active Network Connections", "Recent Alerts"]
    readonly property var inventoryCards: ["Installed Applications", "Active Services", "Network Interfaces"]

    function tab() {
        return make(component, { width: 800, height: 600, viewModel: viewModel });
    }

    function cardsOf(view) {
        return itemsOfType(view, "StatsCard");
    }

    function titlesOf(view) {
        return cardsOf(view).map(card => card.title);
    }

    function valuesOf(view) {
        return cardsOf(view).map(card => card.value);
    }

    function test_beforeAnyData() {
        const view = tab();
        compare(titlesOf(view), alwaysShown);
        compare(valuesOf(view), ["0", "0"]);
        compare(textsIn(view).length, 4);
    }

    function test_cards() {
        poll();
        const view = tab();
        compare(titlesOf(view), inventoryCards.concat(alwaysShown));
        compare(valuesOf(view), ["1", "2", "1", "1", "1"]);
    }

    function test_emptyInventoryIsCounted() {
        answerInventory([]);
        poll();
        compare(valuesOf(tab()), ["0", "0", "0", "1", "1"]);
    }

    function test_countsAreNeitherGroupedNorCapped() {
        answerInventory(listOf(1234, number => ({ name: "app " + number })));
        answerAlerts(listOf(150, number => ({ alert_type: "type", severity: "low" })));
        backend.answer("/api/network", backend.connectionsBody(10000, "LISTEN"));
        poll();
        compare(valuesOf(tab()), ["1234", "0", "0", "10000", "150"]);
    }

    function test_cardsComeAndGoWithTheInventory() {
        const view = tab();
        poll();
        compare(titlesOf(view), inventoryCards.concat(alwaysShown));
        backend.fail("/api/inventory");
        poll();
        compare(titlesOf(view), alwaysShown);
        compare(valuesOf(view), ["1", "1"]);
        failEverything();
        poll();
        compare(valuesOf(view), ["0", "0"]);
        backend.recover();
        poll();
        compare(valuesOf(view), ["1", "2", "1", "1", "1"]);
    }

    function test_layout() {
        poll();
        const view = tab();
        const cards = cardsOf(view);
        compare(boxIn(cards[0], view).y, 20);
        for (const card of cards)
            compare(boxIn(card, view).x, 20);
        for (let i = 1; i < cards.length; ++i)
            compare(roomBelow(cards[i - 1], cards[i]), 20);
        compare(view.contentHeight, boxIn(cards[4], view).bottom + 20);
    }

    function test_cardsAreAsWideAsTheTab() {
        poll();
        const view = tab();
        for (const width of [800, 500, 1000]) {
            view.width = width;
            for (const card of cardsOf(view)) {
                compare(card.width, width - 2 * 20);
                compare(boxIn(labelOf(card, card.value), card).x, 16);
            }
        }
    }

    function test_scrollsWhenHigherThanTheTab() {
        poll();
        const view = tab();
        view.height = 200;
        verify(view.contentHeight > view.height);
        compare(view.contentWidth, view.width);
        compare(view.contentY, 0);
        compare(itemsOfType(view, "ScrollBar").length, 1);
        view.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_End);
        compare(view.contentY, view.contentHeight - view.height);
    }

    function test_doesNotScrollWhenAllFits() {
        const view = tab();
        verify(view.contentHeight < view.height);
        compare(itemsOfType(view, "ScrollBar"), []);
    }

    // The cards of the inventory disappear while the page has the focus.
    function test_keepsTheFocusWhenThereIsNothingLeftToScroll() {
        poll();
        const view = tab();
        view.height = 300;
        verify(view.contentHeight > view.height);
        view.forceActiveFocus(Qt.TabFocusReason);
        failEverything();
        poll();
        tryVerify(() => view.contentHeight < view.height, patience);
        verify(view.activeFocus);
    }

    Component {
        id: component

        DashboardTabView {}
    }
}
