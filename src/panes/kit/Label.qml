pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Text {
    id: root

    property real size: 13
    property int weight: Font.Normal
    property real tracking: 0

    font: Theme.font(root.size, root.weight, root.tracking)
    color: Theme.textPrimary
    elide: Text.ElideRight
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
    maximumLineCount: 1
    verticalAlignment: Text.AlignVCenter
}
