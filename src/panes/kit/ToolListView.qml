pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

ListView {
    id: root

    // How far the list is filled with rows, in points from its top. Rows that come all at once are made
    // a few in each frame, so that no frame has to wait for all of them.
    property real filledHeight: root.filledAtOnce
    readonly property real filledAtOnce: 2 * Measures.rowHeight

    anchors.fill: parent
    displayMarginEnd: Math.min(0, root.filledHeight - root.height)
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
    onCountChanged: {
        if (root.count === 0)
            root.filledHeight = root.filledAtOnce;
    }

    FrameAnimation {
        running: root.count > 0 && root.filledHeight < root.height
        onTriggered: root.filledHeight += root.filledAtOnce
    }

    Connections {
        target: typeof root.model === "object" ? root.model : null
        ignoreUnknownSignals: true

        function onModelReset() {
            root.filledHeight = root.filledAtOnce;
        }
    }
}
