pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Uninstaller

/// One installed application.
Item {
    id: root

    required property int index
    required property string name
    required property string bundle
    required property string path
    required property url url
    required property string size
    required property string description

    property bool isMarked: false

    signal pressed

    implicitHeight: UninstallerMetrics.rowHeight
    Accessible.role: Accessible.Button
    Accessible.name: description
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Rectangle {
        anchors.fill: parent
        color: rowHover.hovered ? Theme.white(0.03) : Theme.clear
    }

    HoverHandler {
        id: rowHover
    }

    TapHandler {
        onTapped: root.pressed()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.sidePadding
        anchors.rightMargin: Theme.sidePadding
        spacing: Theme.partSpacing

        Symbol {
            Layout.preferredWidth: 24
            name: "app.badge.fill"
            size: 18
            color: Theme.textTertiary
        }

        ColumnLayout {
            spacing: 1

            ElidedText {
                Layout.fillWidth: true
                text: root.name
                fullText: root.path
                weight: Font.Medium
            }

            ElidedText {
                Layout.fillWidth: true
                text: root.bundle
                size: 10.5
                color: Theme.textTertiary
            }
        }

        RevealButton {
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }

        Figure {
            Layout.preferredWidth: UninstallerMetrics.sizeWidth
            text: root.size
            isStrong: true
        }
    }

    Separator {
        anchors.bottom: parent.bottom
    }

    FocusRing {
        shown: root.isMarked
        gap: -3
    }
}
