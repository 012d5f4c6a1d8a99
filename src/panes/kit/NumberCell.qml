pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// A number in a column: digits of one width, held to the right.
Item {
    id: root

    required property string text
    property bool isStrong: false

    implicitWidth: digits.implicitWidth
    implicitHeight: digits.implicitHeight

    MonospacedDigits {
        id: digits

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        size: 13
        color: root.isStrong ? Theme.textPrimary : Theme.textSecondary
    }
}
