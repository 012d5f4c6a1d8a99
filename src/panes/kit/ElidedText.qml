pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// One line that gives up its middle when it does not fit.
KitText {
    id: root

    // What the tooltip says; the text itself, and only when it is cut, as long as this is empty.
    property string fullText: ""

    elide: Text.ElideMiddle

    HoverHandler {
        id: hover
    }

    Loader {
        anchors.fill: parent
        active: hover.hovered && (root.truncated || root.fullText !== "")
        sourceComponent: KitToolTip {
            shown: true
            text: root.fullText !== "" ? root.fullText : root.text
        }
    }
}
