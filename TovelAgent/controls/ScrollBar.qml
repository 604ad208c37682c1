// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A slim scroll bar at the right that can be dragged; visible only when there
/// is something to scroll. Pointer only: the target itself handles the keyboard.
MouseArea {
    id: bar

    required property Flickable target
    required property Scroller scroller

    // The distance from the thumb's top to the point where the pointer holds it.
    property real grip: 0
    readonly property int margin: 3

    parent: target
    anchors.top: parent?.top
    anchors.bottom: parent?.bottom
    anchors.right: parent?.right
    width: 14
    visible: target.visibleArea.heightRatio < 1
    hoverEnabled: true
    preventStealing: true

    onPressed: mouse => {
        grip = thumb.contains(thumb.mapFromItem(bar, mouse.x, mouse.y)) ? mouse.y - thumb.y : thumb.height / 2;
        thumb.moveTo(mouse.y - grip);
    }
    onPositionChanged: mouse => {
        if (pressed)
            thumb.moveTo(mouse.y - grip);
    }
    onReleased: target.returnToBounds()

    Accessible.ignored: true

    Box {
        id: thumb

        readonly property real travel: bar.height - 2 * bar.margin - height
        readonly property real hiddenRatio: 1 - bar.target.visibleArea.heightRatio
        readonly property real fraction: hiddenRatio > 0 ? bar.target.visibleArea.yPosition / hiddenRatio : 0

        function moveTo(top: real) {
            if (travel > 0)
                bar.scroller.scrollToFraction((top - bar.margin) / travel);
        }

        x: bar.margin
        // The thumb stays clear of the window's edge, where a drag resizes the window.
        width: bar.width - bar.margin - Theme.resizeBorder
        y: bar.margin + Math.max(0, Math.min(1, fraction)) * travel
        height: Math.max(24, bar.target.visibleArea.heightRatio * (bar.height - 2 * bar.margin))
        radius: width / 2
        color: bar.pressed || bar.containsMouse ? Theme.gray : Theme.scrollBar
    }
}
