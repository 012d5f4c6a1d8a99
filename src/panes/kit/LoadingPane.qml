pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    required property string title
    required property int style
    property string detail
    // How far it is, from 0 to 1; below that nobody knows.
    property real progress: -1
    property string remaining

    implicitWidth: 380
    implicitHeight: parts.implicitHeight
    anchors.fill: parent

    Column {
        id: parts
        anchors.centerIn: parent
        width: Math.min(380, root.width - 2 * Theme.sidePadding)
        spacing: 6

        DelayedAppearance {
            objectName: "delayedLoader"
            width: parent.width
            height: 44 + parts.spacing

            Conditional {
                condition: root.style === LoadingStyle.Reading

                SweepLoader {
                    anchors.centerIn: parent
                    size: 44
                }
            }

            Conditional {
                condition: root.style === LoadingStyle.Working

                LiftingLoader {
                    anchors.centerIn: parent
                    size: 44
                }
            }
        }

        Label {
            width: parent.width
            text: root.title
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            size: 14
            weight: Font.Medium
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 3
        }

        Label {
            width: parent.width
            text: root.detail
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            size: 12
            color: Theme.textTertiary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 12
            visible: text !== ""
        }

        Item {
            width: parent.width
            height: 20
            visible: root.progress >= 0

            ProgressLine {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                width: 220
                value: root.progress
            }
        }

        Label {
            width: parent.width
            text: root.remaining
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            size: 12
            color: Theme.textTertiary
            horizontalAlignment: Text.AlignHCenter
            // It comes and goes without moving the rest.
            visible: root.progress >= 0
        }
    }
}
