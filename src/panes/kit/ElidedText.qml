pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// One line that gives up its middle when it does not fit.
Label {
    id: root

    // What the tooltip says; the text itself, and only when it is cut, as long as this is empty.
    property string fullText: ""

    elide: Text.ElideMiddle
    // Also a name that is read from the right begins where its column does.
    horizontalAlignment: Text.AlignLeft

    HoverHandler {
        id: hover
    }

    HelpTip {
        text: root.fullText !== "" ? root.fullText : root.truncated ? root.text : ""
        hovered: hover.hovered
    }
}
