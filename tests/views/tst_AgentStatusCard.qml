// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

SettingsCardTest {
    name: "AgentStatusCard"

    function card() {
        return makeCard(component);
    }

    function cleanup() {
        home.endAgents();
    }

    function test_card() {
        const view = card();
        compareCard(view, "antenna.radiowaves.left.and.right", "Agent Status", 8);
        compare(gapsIn(view), [8, 8]);
    }

    /// The circle before the line that says whether the agent runs.
    function dotOf(view) {
        return itemsOfType(labelOf(view, settings.agentStatusLine).parent, "Box")[0];
    }

    function compareStatus(view, text, color) {
        const line = labelOf(view, text);
        const dot = dotOf(view);
        compareLabel(line, 13, Font.DemiBold, color);
        compareColor(dot.color, color);
        compare([dot.width, dot.height, dot.radius], [10, 10, 5]);
        compare(roomBeside(dot, line), Theme.spacing);
        compareMiddleHeight(dot, line);
    }

    function test_status() {
        const view = card();
        compareStatus(view, "Agent is not running", Theme.red);
        verify(home.startAgent());
        // The card shows the result of the last search.
        tryVerify(() => {
            settings.refresh();
            return settings.isAgentRunning;
        }, patience);
        settle(view);
        compareStatus(view, "Agent is running", Theme.green);
    }

    function test_buttons() {
        const view = card();
        const start = buttonOf(view, "Start Agent");
        const stop = buttonOf(view, "Stop Agent");
        compareButton(start, "play.fill", 8, Theme.green);
        compareButton(stop, "stop.fill", 8, Theme.red);
        verify(start.enabled && stop.enabled);
        compare(start.width, stop.width);
        compare(roomBeside(start, stop), 8);
        compare(boxIn(start, view).x, 12);
        compare(boxIn(stop, view).right, view.width - 12);
    }

    Component {
        id: component

        AgentStatusCard {}
    }
}
