pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import QtQuick.Templates as T
import Klarvik.Kit

T.ToolTip {
    id: root

    property bool shown: false
    // To the right, where what stands above and below can be pressed as well.
    property bool isBeside: false

    // Beside what it is about, never over it.
    readonly property bool fitsBelow: {
        const window = root.parent ? root.parent.Window.window : null;
        if (!root.visible || !window)
            return true;
        const bottom = root.parent.mapToItem(null, 0, root.parent.height).y;
        return bottom + 6 + root.implicitHeight + root.margins <= window.height;
    }

    visible: root.shown && root.text !== ""
    delay: 700
    timeout: 12000
    margins: 6
    padding: 6
    leftPadding: 9
    rightPadding: 9
    x: !root.parent ? 0 : root.isBeside ? root.parent.width + 12 : (root.parent.width - root.implicitWidth) / 2
    y: !root.parent ? 0 : root.isBeside ? (root.parent.height - root.implicitHeight) / 2
                    : root.fitsBelow ? root.parent.height + 6 : -root.implicitHeight - 6
    implicitWidth: Math.min(360, label.implicitWidth + root.leftPadding + root.rightPadding)
    implicitHeight: label.implicitHeight + root.topPadding + root.bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Label {
        id: label
        text: root.text
        size: 11.5
        wrapMode: Text.Wrap
        maximumLineCount: 6
    }

    background: Rectangle {
        radius: Theme.cornerRadius
        color: Theme.floating
        border.color: Theme.white(0.14)
    }
}
