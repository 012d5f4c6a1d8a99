pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Label {
    id: root

    required property int level

    text: Kit.safetyText(root.level)
    size: 11
    color: root.level === Safety.Caution ? Theme.review : Theme.safe
}
