pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    width: 1
    height: 18
    color: Theme.white(0.12)
}
