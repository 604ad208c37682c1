// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A plain list: rows on white with a line between them. It keeps its scroll
/// position when the model's rows change.
ListView {
    id: list

    required property string label

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    pixelAligned: true
    reuseItems: true
    // Rows that are prepared out of view would take as long to lay out as those in
    // view, and Qt 6.8 would leave them ignored by assistive technology.
    cacheBuffer: 0
    activeFocusOnTab: true
    // Rows cannot be selected, and a highlight would slow down the first frames.
    keyNavigationEnabled: false
    currentIndex: -1

    Accessible.role: Accessible.List
    Accessible.name: label
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onScrollUpAction: scroller.scrollLines(-1)
    Accessible.onScrollDownAction: scroller.scrollLines(1)
    Accessible.onPreviousPageAction: scroller.scrollPages(-1)
    Accessible.onNextPageAction: scroller.scrollPages(1)

    Rectangle {
        parent: list
        anchors.fill: parent
        z: -1
        color: Theme.listBackground
    }

    // When every row in view is removed, ListView would jump to near the top.
    Connections {
        property bool allGone: false

        target: list.model

        // Rows are removed at the end: if the first one in view goes, all in view go.
        function onRowsAboutToBeRemoved(parent, first) {
            allGone = list.indexAt(0, list.contentY) >= first;
        }

        function onRowsRemoved() {
            if (allGone)
                goToEnd.start();
        }
    }

    // Deferred, because ListView has not processed the removal yet.
    Timer {
        id: goToEnd

        interval: 0
        onTriggered: list.positionViewAtEnd()
    }

    Scroller {
        id: scroller

        target: list
    }

    ScrollBar {
        target: list
        scroller: scroller
    }

    FocusRing {
        parent: list
        target: list
    }
}
