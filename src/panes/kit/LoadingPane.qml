pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    required property string title
    required property int style
    property string detail

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

            SweepLoader {
                anchors.centerIn: parent
                size: 44
                visible: root.style === LoadingStyle.Reading
            }

            LiftingLoader {
                anchors.centerIn: parent
                size: 44
                visible: root.style === LoadingStyle.Working
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
    }
}
