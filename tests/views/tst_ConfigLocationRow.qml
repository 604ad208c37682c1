// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

ViewTest {
    name: "ConfigLocationRow"

    function row(path) {
        return make(component, { width: 300, path: path, description: "description" });
    }

    function test_pathStaysOnOneLine() {
        const view = row("/a folder/".repeat(30));
        const path = labelsIn(view)[0];
        compare([path.lineCount, path.truncated], [1, true]);
        compare(boxIn(path, view).right, view.width - 8);
        compare(view.implicitHeight, row("/etc").implicitHeight);
        verify(!labelsIn(row("/etc"))[0].truncated);
    }

    Component {
        id: component

        ConfigLocationRow {}
    }
}
