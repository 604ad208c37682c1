// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "FormField"

    function field(properties) {
        const view = makeWide(300, component, Object.assign({ label: "Name", placeholder: "Type it", value: "" }, properties));
        edited.target = view;
        edited.clear();
        return view;
    }

    function inputOf(view) {
        return itemOfType(view, "Input");
    }

    function test_label() {
        const view = field();
        const label = labelOf(view, "Name");
        compareLabel(label, 11, Font.DemiBold, Theme.gray);
        compare(boxIn(label, view).x, 0);
        compare(roomBelow(label, itemOfType(view, "Box")), 4);
        compare(itemOfType(view, "Box").width, 300);
    }

    function test_text() {
        const input = inputOf(field({ value: "value" }));
        compare(input.font.pixelSize, 12);
        compare(input.font.weight, Font.Normal);
        compareColor(input.color, Theme.black);
        compare(input.displayText, "value");
    }

    function test_border() {
        const view = field();
        const border = itemOfType(view, "Box");
        verify(border.radius > 0);
        compare(border.borderWidth, 1);
        compareColor(border.borderColor, Theme.fieldBorder);
        inputOf(view).forceActiveFocus(Qt.TabFocusReason);
        compare(border.borderWidth, 2);
        compareColor(border.borderColor, Theme.blue);
    }

    function test_placeholderIsShownInAnEmptyField() {
        const view = field();
        const placeholder = labelOf(view, "Type it");
        compareLabel(placeholder, 12, Font.Normal, Theme.gray);
        compare(boxIn(placeholder, itemOfType(view, "Box")).x, 8);
        view.value = "x";
        compare(textsIn(view).includes("Type it"), false);
    }

    function test_reportsWhatIsTyped() {
        const view = field();
        mouseClick(inputOf(view));
        keyClick("a");
        compare(edited.count, 1);
        compare(edited.signalArguments[0][0], "a");
    }

    function test_reportsPastedLinesAsOne() {
        const input = inputOf(field());
        input.forceActiveFocus();
        clipboard.text = "a key\r\n";
        clipboard.selectAll();
        clipboard.copy();
        keyClick(Qt.Key_V, Qt.ControlModifier);
        compare(edited.signalArguments[edited.count - 1][0], "a key");
        compare(input.displayText, "a key");
        keyClick("s");
        compare(edited.signalArguments[edited.count - 1][0], "a keys");
    }

    function test_pastedLinesAreNotRemovedOneByOne() {
        const input = inputOf(field());
        input.forceActiveFocus();
        clipboard.text = "x\n".repeat(5000);
        clipboard.selectAll();
        clipboard.copy();
        keyClick(Qt.Key_V, Qt.ControlModifier);
        compare(input.displayText, "x".repeat(5000));
        verify(edited.count <= 3, edited.count);
    }

    function test_maskedFieldShowsDots() {
        const view = field({ value: "secret", echoMode: TextInput.Password });
        compare(inputOf(view).displayText, "\u25CF".repeat(6));
        compare(inputOf(view).text, "\u25CF".repeat(6));
        verify(inputOf(view).Accessible.passwordEdit);
    }

    function test_accessible() {
        const input = inputOf(field());
        compare(input.Accessible.role, Accessible.EditableText);
        compare(input.Accessible.name, "Name");
        compare(input.Accessible.description, "Type it");
    }

    function test_textIsDescribedOnceTheFieldHasTheFocus() {
        const view = field({ value: "abc" });
        const input = inputOf(view);
        const description = ScreenReader.readsFieldTexts ? "" : "abc";
        input.forceActiveFocus(Qt.TabFocusReason);
        compare(input.Accessible.description, description);
        keyClick("d");
        compare(input.Accessible.description, description);
    }

    function test_maskedFieldHasItsLabelAsAGroup() {
        const view = field({ value: "secret", echoMode: TextInput.Password });
        const group = inputOf(view).parent.parent;
        compare(group.Accessible.name, "Name");
        verify(!group.Accessible.ignored);
        compare(inputOf(view).Accessible.description, "Filled in");
        verify(inputOf(field()).parent.parent.Accessible.ignored);
    }

    TextInput {
        id: clipboard
    }

    Component {
        id: component

        FormField {}
    }

    SignalSpy {
        id: edited

        signalName: "edited"
    }
}
