pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// Where one is in the first run, and the way on.
Item {
    id: root

    required property OnboardingModel model

    implicitHeight: 68

    Separator {}

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 32
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6
        Accessible.role: Accessible.Indicator
        Accessible.name: qsTr("Step %1 of %2").arg(root.model.step + 1).arg(dots.count)

        Repeater {
            id: dots

            model: root.model.stepCount

            Rectangle {
                id: dot

                required property int index
                readonly property bool isCurrent: dot.index === root.model.step

                width: dot.isCurrent ? 18 : 6
                height: 4
                radius: 2
                color: dot.isCurrent ? Theme.accent : Theme.white(0.2)

                Behavior on width {
                    enabled: !Kit.reduceMotion
                    NumberAnimation {
                        duration: 220
                        easing.type: Easing.OutCubic
                    }
                }
            }
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 32
        anchors.verticalCenter: parent.verticalCenter
        spacing: 18

        TextButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.model.isLastStep
            title: qsTr("Later")
            size: 13
            color: Theme.textSecondary
            onAction: root.model.later()
        }

        PrimaryButton {
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: Math.max(120, title.length * 9)
            title: root.model.buttonTitle
            onAction: root.model.proceed()
        }
    }
}
