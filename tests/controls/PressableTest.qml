// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

/// A test of a button, which counts its presses.
ViewTest {
    property alias pressed: pressedSpy

    function pressable(properties) {
        const view = make(component, Object.assign({ width: 100, height: 40, label: "press" }, properties));
        count(view);
        return view;
    }

    /// From now on, `pressed` counts the presses of this one.
    function count(view) {
        pressed.target = view;
        pressed.clear();
    }

    SignalSpy {
        id: pressedSpy

        signalName: "pressed"
    }

    Component {
        id: component

        Pressable {}
    }
}
