pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

T.ToolTip {
    id: root

    property bool shown: false

    visible: root.shown && root.text !== ""
    delay: 700
    timeout: 12000
    margins: 6
    padding: 6
    leftPadding: 9
    rightPadding: 9
    y: root.parent ? root.parent.height + 6 : 0
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
