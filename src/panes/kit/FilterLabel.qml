pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

KitText {
    id: root

    size: 12
    color: Theme.textTertiary
}
