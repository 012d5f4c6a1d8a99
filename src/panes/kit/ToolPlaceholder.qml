pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    required property string title
    required property string detail
    property string icon
    property real progress: -1
    property bool isBusy: false
    property string actionTitle
    property bool hasAction: true
    signal action()

    readonly property int topElement: Kit.placeholderTop(root.progress, root.isBusy)
    readonly property toolPaneState button: Kit.toolPane(root.actionTitle, root.hasAction, false, false)

    implicitWidth: 380
    implicitHeight: parts.implicitHeight
    anchors.fill: parent

    Column {
        id: parts
        anchors.centerIn: parent
        width: Math.min(380, root.width - 2 * Theme.sidePadding)
        spacing: 6

        Item {
            width: parent.width
            height: 44 + parts.spacing

            Conditional {
                condition: root.topElement === PlaceholderTop.Progress

                ProgressLine {
                    objectName: "progressLine"
                    anchors.centerIn: parent
                    width: 220
                    value: root.progress
                }
            }

            Conditional {
                condition: root.topElement === PlaceholderTop.Loader

                DelayedAppearance {
                    anchors.centerIn: parent
                    width: 44
                    height: 44

                    SweepLoader {
                        objectName: "loader"
                        size: 44
                    }
                }
            }

            Conditional {
                condition: root.topElement === PlaceholderTop.Icon

                Symbol {
                    objectName: "icon"
                    anchors.centerIn: parent
                    name: root.icon
                    size: 30
                    color: Theme.textTertiary
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
            lineHeight: 1.15
        }

        Item {
            width: parent.width
            height: mainButton.height + 8
            visible: root.button.showsButton

            PrimaryButton {
                id: mainButton
                objectName: "mainButton"
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                title: root.actionTitle
                onAction: root.action()
            }
        }
    }
}
