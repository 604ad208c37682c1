// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A column of cards that scrolls vertically, by pointer and keyboard.
Flickable {
    id: page

    default property alias content: column.data
    required property string label
    readonly property int padding: 20

    /// Scrolls until `item`, which must be inside the page, is in view.
    function reveal(item: Item) {
        scroller.reveal(item);
    }

    contentWidth: width
    contentHeight: column.height + 2 * padding
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    pixelAligned: true
    // A page with the focus keeps it, even when nothing is left to scroll.
    activeFocusOnTab: activeFocus || contentHeight > height

    // Not Pane: a screen reader would read all texts of a pane that gets the focus.
    Accessible.role: Accessible.Section
    Accessible.name: label
    Accessible.onScrollUpAction: scroller.scrollLines(-1)
    Accessible.onScrollDownAction: scroller.scrollLines(1)
    Accessible.onPreviousPageAction: scroller.scrollPages(-1)
    Accessible.onNextPageAction: scroller.scrollPages(1)

    Column {
        id: column

        x: page.padding
        y: page.padding
        width: page.width - 2 * page.padding
        spacing: 20
    }

    Scroller {
        id: scroller

        target: page
    }

    ScrollBar {
        target: page
        scroller: scroller
    }

    FocusRing {
        parent: page
        target: page
    }
}
