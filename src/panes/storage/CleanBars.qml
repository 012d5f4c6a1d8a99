pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What each clean reclaimed, oldest first: bars on a common ground, with their dates below it. Where
/// there is room each has its figure; else the line at the top says what the highest stands for.
Item {
    id: root

    required property StorageAnalyticsModel model
    property real grown: root.model.animateCharts ? 1 : 0

    readonly property int barHeight: 96
    readonly property int labelHeight: 18
    readonly property int labelWidth: 66
    readonly property var bars: root.model.cleanBars
    readonly property int slot: Math.max(1, Math.min(88, Math.floor(root.width / Math.max(1, root.bars.length))))
    readonly property int barWidth: Math.max(2, Math.min(36, root.slot - 4))
    /// Every how manieth bar has room for its date.
    readonly property int dateStep: Math.ceil(root.labelWidth / root.slot)
    readonly property bool showsEachFigure: root.dateStep === 1
    readonly property string highestText: root.bars.find(bar => bar.height === 1)?.size ?? ""

    implicitHeight: root.barHeight + 2 * root.labelHeight
    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("Reclaimed per clean")

    Behavior on grown {
        enabled: !Kit.reduceMotion
        NumberAnimation {
            duration: 500
            easing.type: Easing.OutCubic
        }
    }

    Item {
        width: parent.width
        height: root.labelHeight
        visible: !root.showsEachFigure

        Label {
            text: root.highestText
            size: 10.5
            color: Theme.textTertiary
        }

        Separator {
            anchors.bottom: parent.bottom
        }
    }

    Row {
        Repeater {
            model: root.bars

            Item {
                id: bar

                required property int index
                required property cleanBar modelData
                readonly property string description: bar.modelData.description
                readonly property real columnTop: root.labelHeight + root.barHeight - column.height

                width: root.slot
                height: root.implicitHeight
                Accessible.role: Accessible.StaticText
                Accessible.name: bar.description

                Label {
                    anchors.horizontalCenter: column.horizontalCenter
                    y: Math.floor(bar.columnTop) - root.labelHeight
                    height: root.labelHeight
                    visible: root.showsEachFigure
                    text: bar.modelData.size
                    size: 10.5
                    color: Theme.textSecondary
                }

                Rectangle {
                    id: column

                    x: Math.floor((bar.width - width) / 2)
                    y: bar.columnTop
                    width: root.barWidth
                    height: Math.max(2, root.barHeight * bar.modelData.height * root.grown)
                    radius: Math.min(3, height / 2)
                    color: Theme.accent
                    opacity: over.hovered ? 1 : 0.8
                }

                Label {
                    x: root.showsEachFigure ? Math.floor((bar.width - width) / 2) : column.x
                    y: root.labelHeight + root.barHeight + 1
                    height: root.labelHeight
                    visible: bar.index % root.dateStep === 0 && bar.x + x + width <= root.width
                    text: bar.modelData.date
                    size: 10.5
                    color: Theme.textTertiary
                }

                HoverHandler {
                    id: over
                }

                HelpTip {
                    text: bar.description
                    hovered: over.hovered
                }
            }
        }
    }

    Separator {
        y: root.labelHeight + root.barHeight
        color: Theme.hairlineStrong
    }
}
