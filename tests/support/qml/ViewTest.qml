// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Tests

/// A test of views: fails on any warning, and has functions that find the visible
/// items of a view.
TestCase {
    id: testCase

    width: 1000
    height: 700
    visible: true
    when: windowShown

    readonly property int patience: TestPatience.milliseconds

    function init() {
        failOnWarning(/.?/);
        setUp();
    }

    /// Runs before each test function; for test cases to override.
    function setUp() {
    }

    /// Creates a view that is destroyed after the test function.
    function make(component, properties) {
        const view = createTemporaryObject(component, testCase, properties ?? {});
        verify(view, "the view is built");
        settle(view);
        return view;
    }

    /// The same with a given width, for views that are as wide as their parent.
    function makeWide(width, component, properties) {
        const view = make(component, properties);
        view.width = width;
        settle(view);
        return view;
    }

    /// Waits until rows and columns have placed their items.
    function settle(view) {
        const isUnsettled = () => itemsIn(view).concat([view]).some(isPolishScheduled);
        for (let i = 0; i < 1000 && isUnsettled(); ++i)
            wait(1);
        verify(!isUnsettled());
    }

    /// The visible items inside `root`, outermost first.
    function itemsIn(root) {
        let found = [];
        for (const child of Array.from(root.children)) {
            if (child.visible)
                found = found.concat([child], itemsIn(child));
        }
        return found;
    }

    /// Those whose type has this name.
    function itemsOfType(root, name) {
        return itemsIn(root).filter(item => isOfType(item, name));
    }

    function isOfType(item, name) {
        return new RegExp("^(QQuick|quillmark::)?" + name + "(_QML|\\()").test(item.toString());
    }

    /// The only item whose type has this name.
    function itemOfType(root, name) {
        const found = itemsOfType(root, name);
        compare(found.length, 1, "items of type " + name);
        return found[0];
    }

    function labelsIn(root) {
        return itemsIn(root).filter(item => item.textFormat !== undefined);
    }

    /// The visible texts in `root`, top to bottom.
    function textsIn(root) {
        return labelsIn(root).map(label => label.text);
    }

    /// The only label with this text.
    function labelOf(root, text) {
        const found = labelsIn(root).filter(label => label.text === text);
        compare(found.length, 1, "labels with the text " + text);
        return found[0];
    }

    function compareColor(actual, expected, what) {
        verify(Qt.colorEqual(actual, expected), (what ?? "colour") + ": " + actual + ", not " + expected);
    }

    /// Checks the size, weight and colour of a label.
    function compareLabel(label, size, weight, color) {
        compare(label.font.pixelSize, size, "size of " + label.text);
        compare(label.font.weight, weight, "weight of " + label.text);
        compareColor(label.color, color, "colour of " + label.text);
        verify(!label.font.italic && !label.font.underline);
        compare(label.textFormat, Text.PlainText);
    }

    /// Checks the name, size and colour of an icon.
    function compareIcon(icon, name, size, color) {
        compare(icon.name, name);
        compare(icon.size, size, "size of " + name);
        compareColor(icon.color, color, "colour of " + name);
    }

    /// The position and size of `item` in `root`.
    function boxIn(item, root) {
        return item.mapToItem(root, 0, 0, item.width, item.height);
    }

    /// The vertical gap between two items.
    function roomBelow(upper, lower) {
        return boxIn(lower, testCase).y - boxIn(upper, testCase).bottom;
    }

    /// The horizontal gap between two items.
    function roomBeside(left, right) {
        return boxIn(right, testCase).x - boxIn(left, testCase).right;
    }

    /// Checks that the middles of two items are at the same height, except for half a
    /// pixel that is rounded away.
    function compareMiddleHeight(one, other) {
        const distance = middleHeight(one) - middleHeight(other);
        verify(Math.abs(distance) <= 0.5, "middles are " + distance + " apart");
    }

    function middleHeight(item) {
        const box = boxIn(item, testCase);
        return box.y + box.height / 2;
    }
}
