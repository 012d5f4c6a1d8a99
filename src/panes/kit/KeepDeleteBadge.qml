pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Label {
    id: root

    required property int fate

    width: 46
    text: Kit.fateText(root.fate)
    size: 10
    weight: Font.Medium
    tracking: 0.4
    color: root.fate === KeepOrDelete.Keep ? Theme.safe : Theme.review
}
