pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What each clean reclaimed, oldest first.
Item {
    id: root

    required property StorageAnalyticsModel model
    property real grown: root.model.animateCharts ? 1 : 0

    readonly property int count: bars.count
    readonly property real barWidth: Math.min(36, (width - (count - 1) * row.spacing) / Math.max(1, count))

    implicitHeight: 96
    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("Reclaimed per clean")

    Behavior on grown {
        enabled: !Kit.reduceMotion
        NumberAnimation {
            duration: 500
            easing.type: Easing.OutCubic
        }
    }

    Row {
        id: row

        anchors.fill: parent
        spacing: 4

        Repeater {
            id: bars

            model: root.model.cleanBars

            Item {
                id: bar

                required property cleanBar modelData
                readonly property string description: bar.modelData.description

                width: root.barWidth
                height: root.implicitHeight
                Accessible.role: Accessible.StaticText
                Accessible.name: bar.description

                Rectangle {
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    height: Math.max(2, parent.height * bar.modelData.height * root.grown)
                    radius: Math.min(3, height / 2)
                    color: Theme.accent
                    opacity: over.hovered ? 1 : 0.8
                }

                HoverHandler {
                    id: over
                }

                KitToolTip {
                    shown: over.hovered
                    text: bar.description
                }
            }
        }
    }
}
