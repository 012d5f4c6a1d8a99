pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Line {
    height: 18
    color: Theme.white(0.12)
}
