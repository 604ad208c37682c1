// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Window
import QtTest
import Quillmark.Views

/// When the root view polls, and what the header then shows.
PolledViewTest {
    id: testCase

    name: "ContentViewPolling"

    readonly property var onePoll: ["/api/status", "/api/alerts", "/api/network", "/api/inventory"]

    /// The requests that arrived while `action` ran and its polls completed.
    function requestsDuring(content, polls, action) {
        const before = backend.requests().length;
        completed.target = content.viewModel;
        completed.clear();
        action();
        backend.endTimers();
        tryVerify(() => completed.count >= polls, patience);
        return backend.requests().slice(before);
    }

    function openWindow() {
        return createTemporaryObject(windowComponent, testCase);
    }

    function shownIn(content) {
        return itemsOfType(content, "StatusBadge").map(badge => badge.value);
    }

    function test_pollsWhenItComesOnScreen() {
        const window = openWindow();
        compare(requestsDuring(window.content, 1, () => window.show()), onePoll);
    }

    function test_pollsEachTimeItComesOnScreen() {
        const window = openWindow();
        requestsDuring(window.content, 1, () => window.show());
        window.hide();
        compare(requestsDuring(window.content, 1, () => window.show()), onePoll);
    }

    function test_maximizingDoesNotPollAgain() {
        const window = openWindow();
        requestsDuring(window.content, 1, () => window.show());
        // There is only the poll that is started here.
        compare(requestsDuring(window.content, 1, () => {
            window.showMaximized();
            window.showNormal();
            window.content.viewModel.startPolling();
        }), onePoll);
    }

    function test_doesNotPollBeforeItIsShown() {
        const window = openWindow();
        const other = openWindow();
        compare(requestsDuring(other.content, 1, () => other.show()), onePoll);
        compare(shownIn(window.content), ["OFFLINE", "0"]);
    }

    function test_headerFollowsThePolls() {
        const window = openWindow();
        const content = window.content;
        compare(shownIn(content), ["OFFLINE", "0"]);
        answerStatus("running", 7, "yesterday");
        requestsDuring(content, 1, () => window.show());
        compare(shownIn(content), ["RUNNING", "7"]);
        verify(labelOf(content, "yesterday"));
        backend.fail("/api/status");
        poll(content.viewModel);
        compare(shownIn(content), ["OFFLINE", "0"]);
        compare(itemsOfType(content, "StatusBadge").map(badge => badge.isHealthy), [false, true]);
        compare(textsIn(content).includes("Last Scan"), false);
    }

    function test_keepsItsViewModelAndTabThroughPolls() {
        const window = openWindow();
        const content = window.content;
        const model = content.viewModel;
        content.selectedTab = "alerts";
        requestsDuring(content, 1, () => window.show());
        window.hide();
        requestsDuring(content, 1, () => window.show());
        compare(content.viewModel, model);
        compare(content.selectedTab, "alerts");
    }

    function test_everyWindowHasItsOwnViewModel() {
        verify(openWindow().content.viewModel !== openWindow().content.viewModel);
    }

    function test_closingAWindowCausesNoWarning() {
        const window = openWindow();
        requestsDuring(window.content, 1, () => window.show());
        destroyed.target = window.content.Component;
        window.close();
        window.destroy();
        tryCompare(destroyed, "count", 1, patience);
    }

    Component {
        id: windowComponent

        Window {
            readonly property alias content: contentView

            width: 1000
            height: 700

            ContentView {
                id: contentView

                anchors.fill: parent
            }
        }
    }

    SignalSpy {
        id: destroyed

        signalName: "destruction"
    }

    SignalSpy {
        id: completed

        signalName: "inventoryChanged"
    }
}
