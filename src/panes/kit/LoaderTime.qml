pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

LoaderTimeline {
    id: root

    required property Item owner

    running: root.owner.visible && !Kit.reduceMotion
}
