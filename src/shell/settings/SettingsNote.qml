pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// Small print below a setting.
Label {
    width: Math.min(320, implicitWidth)
    size: 11
    color: Theme.textTertiary
    wrapMode: Text.Wrap
    elide: Text.ElideNone
    maximumLineCount: 4
    lineHeight: 1.1
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
