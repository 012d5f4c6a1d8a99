import QtQuick
import Klarvik.Kit

/// The line that stands where there is nothing to draw.
Label {
    width: Math.min(640, parent ? parent.width : implicitWidth)
    size: 12
    color: Theme.textTertiary
    lineHeight: 1.3
    elide: Text.ElideNone
    maximumLineCount: 4
    wrapMode: Text.WordWrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
