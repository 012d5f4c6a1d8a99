pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

MonospacedDigits {
    id: root

    required property real bytes

    text: Kit.byteText(root.bytes)
    color: Theme.textPrimary
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
