pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    required property string name
    property real size: 13
    property color color: Theme.textPrimary

    implicitWidth: Math.ceil(root.size * 1.25)
    implicitHeight: Math.ceil(root.size * 1.25)

    Text {
        anchors.centerIn: parent
        text: Theme.glyph(root.name)
        font: Theme.symbolFont(Math.round(root.size * 1.25))
        color: root.color
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
    }
}
