pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Label {
    id: root

    size: 12
    color: Theme.textTertiary
}
