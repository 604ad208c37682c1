// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "Theme"

    readonly property var grounds: ({
        white: Theme.white,
        panelTint: Theme.panelTint,
        listBackground: Theme.listBackground,
        successTint: Qt.rgba(0.9, 1, 0.9, 1),
        errorTint: Qt.rgba(1, 0.9, 0.9, 1)
    })

    function linear(component) {
        return component <= 0.04045 ? component / 12.92 : Math.pow((component + 0.055) / 1.055, 2.4);
    }

    function luminance(color) {
        return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
    }

    /// The contrast ratio of accessibility guidelines, 1 to 21.
    function contrast(one, other) {
        const lights = [luminance(one), luminance(other)].sort((a, b) => a - b);
        return (lights[1] + 0.05) / (lights[0] + 0.05);
    }

    function compareContrast(name, ground, least) {
        const ratio = contrast(Theme[name], grounds[ground]);
        verify(ratio >= least, name + " on " + ground + " has a contrast of " + ratio);
    }

    function test_contrastIsComputedRight() {
        fuzzyCompare(contrast(Qt.color("black"), Qt.color("white")), 21, 0.001);
        fuzzyCompare(contrast(Qt.color("white"), Qt.color("white")), 1, 0.001);
        fuzzyCompare(contrast(Qt.color("#777777"), Qt.color("white")), 4.478, 0.001);
    }

    function test_texts_data() {
        return ["black", "text", "blue", "gray", "green", "red"].map(name => ({ tag: name }));
    }

    function test_texts(data) {
        for (const ground of Object.keys(grounds))
            compareContrast(data.tag, ground, 4.5);
    }

    // Filled buttons have white text.
    function test_textOnButtons_data() {
        return ["blue", "gray", "green", "red"].map(name => ({ tag: name }));
    }

    function test_textOnButtons(data) {
        compareContrast(data.tag, "white", 4.5);
    }

    function test_icons_data() {
        return ["orange", "yellow", "windowGlyph"].map(name => ({ tag: name }));
    }

    function test_icons(data) {
        for (const ground of ["white", "panelTint", "listBackground"])
            compareContrast(data.tag, ground, 3);
    }

    function test_panelTint() {
        fuzzyCompare(Theme.panelTint.r, 0.98, 0.0001);
        fuzzyCompare(Theme.panelTint.g, 0.98, 0.0001);
        fuzzyCompare(Theme.panelTint.b, 0.99, 0.0001);
        compare(Theme.panelTint.a, 1);
    }

    function test_blackAndWhite() {
        compareColor(Theme.black, "#000000");
        compareColor(Theme.white, "#ffffff");
    }

    // They must differ, because each has its own meaning.
    function test_namedColoursDiffer() {
        const names = ["blue", "gray", "green", "red", "orange", "yellow", "black", "white"];
        compare(new Set(names.map(name => String(Theme[name]))).size, names.length);
    }
}
