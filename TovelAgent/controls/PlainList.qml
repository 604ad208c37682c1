// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A plain list: rows on white with a line between them. It keeps its scroll
/// position when the model's rows change. Its current row is a reading position, which
/// the keyboard moves; no row can be selected.
ListView {
    id: list

    required property string label

    /// The number of rows when the reading position last moved. Not kept up to date,
    /// because a screen reader would speak every change.
    property int spokenCount: 0

    signal copied

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    pixelAligned: true
    reuseItems: true
    // Rows that are prepared out of view would take as long to lay out as those in
    // view, and Qt 6.8 would leave them ignored by assistive technology.
    cacheBuffer: 0
    // The current row takes the focus instead.
    activeFocusOnTab: false
    keyNavigationEnabled: false
    // ListView's own highlight would slow down the first frames.
    highlightFollowsCurrentItem: false

    onActiveFocusChanged: spokenCount = count
    Component.onCompleted: spokenCount = count

    Accessible.role: Accessible.List
    Accessible.name: label
    Accessible.focusable: true
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
        property bool removesAllInView: false

        // Null for a model that is only a number.
        target: list.model instanceof QtObject ? list.model : null

        // Rows are removed at the end: if the first one in view goes, all in view go.
        function onRowsAboutToBeRemoved(parent, first) {
            removesAllInView = list.indexAt(0, list.contentY) >= first;
        }

        function onRowsRemoved() {
            if (removesAllInView)
                goToEnd.start();
        }
    }

    // Deferred, because ListView has not processed the removal yet.
    Timer {
        id: goToEnd

        interval: 0
        onTriggered: list.positionViewAtEnd()
    }

    ListScroller {
        id: scroller

        target: list
        onMoved: byPointer => {
            ring.fromPointer = byPointer;
            list.spokenCount = list.count;
        }
        onCopied: list.copied()
        onMenuRequested: menu.openBelow(list.currentItem)
    }

    MouseArea {
        parent: list
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onPressed: mouse => {
            list.forceActiveFocus(Qt.MouseFocusReason);
            if (scroller.moveToRowAt(mouse.y))
                menu.openAt(mouse.x, mouse.y);
        }

        Accessible.ignored: true
    }

    ScrollBar {
        target: list
        scroller: scroller
    }

    FocusRing {
        id: ring

        parent: list.currentItem ?? list
        target: list.currentItem
    }

    CopyMenu {
        id: menu

        parent: list
        opener: list.currentItem ?? list
        onChosen: scroller.copy()
    }
}
