// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Quillmark.ViewModel
import Quillmark.Views

/// A text of whatever length in a row of a list. One that would take long to lay
/// out is laid out piece by piece, as far as it can be seen.
Column {
    id: label

    required property longText text
    required property int size
    property int weight: Font.Normal
    property color color: Theme.text

    // Where the rows scroll, which matters to long texts alone.
    readonly property Flickable view: pieces.isShort ? null : viewAround(parent)

    function viewAround(item: Item): Flickable {
        while (item && !(item instanceof Flickable))
            item = item.parent;
        return item as Flickable;
    }

    function layOutMore() {
        const isSeenWhole = !view || mapToItem(view, 0, height).y <= view.height;
        if (isSeenWhole)
            pieces.showNext();
    }

    // With the height of the pieces so far, and a chance for all else between.
    onPositioningComplete: next.start()
    onTextChanged: next.start()

    Timer {
        id: next

        interval: 0
        onTriggered: label.layOutMore()
    }

    TextPieces {
        id: pieces

        text: label.text
    }

    Connections {
        target: label.view

        function onContentYChanged() {
            label.layOutMore();
        }

        function onHeightChanged() {
            label.layOutMore();
        }
    }

    Repeater {
        model: pieces

        WrappedLabel {
            required property string piece

            width: label.width
            text: piece
            size: label.size
            color: label.color
            font.weight: label.weight
        }
    }
}
