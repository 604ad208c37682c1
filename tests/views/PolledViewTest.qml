// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Tests
import Quillmark.ViewModel
import "../support/qml"

/// A test of views that show a view model with data from a real backend. Each test
/// function starts with a new view model and good answers.
ViewTest {
    id: testCase

    property alias backend: testBackend
    readonly property DashboardViewModel viewModel: keptReference?.viewModel ?? null
    property DashboardViewModelRef keptReference: null

    function setUp() {
        testBackend.recover();
        // The view model outlives the views that show it.
        keptReference?.destroy();
        keptReference = reference.createObject(testCase);
    }

    /// Polls `model` once, to the end.
    function poll(model) {
        awaitPollOf(model ?? viewModel, () => lastAssigned.target.startPolling());
    }

    /// A view that has its own view model and polls as soon as it is on screen. Waits
    /// for the end of that poll.
    function makePolling(component, properties) {
        const view = createTemporaryObject(component, testCase, properties);
        awaitPollOf(view.viewModel, () => {});
        settle(view);
        return view;
    }

    function awaitPollOf(model, start) {
        lastAssigned.target = model;
        lastAssigned.clear();
        start();
        testBackend.endTimers();
        tryVerify(() => lastAssigned.count > 0, patience, "the poll completes");
    }

    /// Answers as the agent does with these lists.
    function answerConnections(connections) {
        testBackend.answer("/api/network", JSON.stringify({ connections: connections }));
    }

    function answerAlerts(alerts) {
        testBackend.answer("/api/alerts", JSON.stringify({ alerts: alerts }));
    }

    function answerInventory(apps, services, interfaces) {
        testBackend.answer("/api/inventory", JSON.stringify({
            apps: apps,
            services: services ?? [],
            network_interfaces: interfaces ?? [],
            permissions: []
        }));
    }

    function answerStatus(status, threats, lastScan) {
        testBackend.answer("/api/status", JSON.stringify({
            protection_enabled: true,
            threat_count: threats,
            last_alert: "none",
            status: status,
            last_scan: lastScan
        }));
    }

    function failEverything() {
        for (const name of ["status", "alerts", "network", "inventory"])
            testBackend.fail("/api/" + name);
    }

    /// The list of `make(number)` for the numbers below `count`.
    function listOf(count, make) {
        return Array.from({ length: count }, (_, number) => make(number));
    }

    TestBackend {
        id: testBackend
    }

    Component {
        id: reference

        DashboardViewModelRef {}
    }

    SignalSpy {
        id: lastAssigned

        signalName: "inventoryChanged"
    }
}
