pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

// What has just been done, and what can be done about it.
Item {
    id: root

    required property string symbol
    required property color symbolColor
    required property string headline
    required property string detail
    property string help
    // A command rather than words.
    property bool headlineIsCode: false
    default property alias buttons: content.data

    width: parent ? parent.width : implicitWidth
    implicitHeight: content.implicitHeight + 24 + 14
    Accessible.role: Accessible.Notification
    Accessible.name: root.headline

    Rectangle {
        anchors.fill: content
        anchors.margins: -12
        anchors.leftMargin: -16
        radius: 10
        color: Theme.raised
        border.color: Theme.hairlineStrong
    }

    HoverHandler {
        id: over
    }

    HelpTip {
        text: root.help
        hovered: over.hovered
    }

    RowLayout {
        id: content
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 12
        anchors.leftMargin: Measures.side(root.width) + 16
        anchors.rightMargin: Measures.side(root.width) + 12
        spacing: 12

        Symbol {
            name: root.symbol
            size: 22
            color: root.symbolColor
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            Label {
                Layout.fillWidth: true
                text: root.headline
                font: root.headlineIsCode ? Theme.codeFont(12) : Theme.font(13, Font.Medium)
            }

            Label {
                Layout.fillWidth: true
                visible: root.detail !== ""
                text: Kit.withSizesUnbroken(root.detail)
                color: Theme.textSecondary
                size: 12
                elide: Text.ElideNone
                maximumLineCount: 3
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.StaticText
                Accessible.name: root.detail
            }
        }
    }
}
