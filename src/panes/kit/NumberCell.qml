pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// A number in a column: digits of one width, held to the right.
MonospacedDigits {
    id: root

    property bool isStrong: false

    alignment: Qt.AlignRight
    size: 13
    color: root.isStrong ? Theme.textPrimary : Theme.textSecondary
}
