pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// Text of the first run that takes as many lines as it needs.
Label {
    wrapMode: Text.Wrap
    maximumLineCount: 8
    elide: Text.ElideNone
    lineHeight: 1.25
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
