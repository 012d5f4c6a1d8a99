pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

ListView {
    id: root

    anchors.fill: parent
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    // Rows that come into sight take over what others leave behind. Those that a model inserts beyond
    // what is seen would be made at once, in the frame that shows the others.
    reuseItems: true
    cacheBuffer: 0
    // What is below rows that go moves up, instead of being somewhere else at once.
    removeDisplaced: Transition {
        enabled: !Kit.reduceMotion

        NumberAnimation {
            property: "y"
            duration: 280
            easing.type: Easing.OutCubic
        }
    }
    T.ScrollBar.vertical: KitScrollBar {}
}
