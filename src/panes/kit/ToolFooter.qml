pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Rectangle {
    id: root

    required property string selectionSummary
    required property string explanation
    required property string buttonTitle
    property bool isEnabled: true
    property bool isBusy: false
    property removalProgress progress
    property bool canStop: false
    signal action()
    signal stop()

    property toolFooterState shown: Kit.toolFooter(root.selectionSummary, root.explanation,
                                                            root.buttonTitle, root.isEnabled, root.isBusy,
                                                            root.progress, root.canStop)

    implicitHeight: Math.max(parts.implicitHeight + 24, 60)
    implicitWidth: 480
    width: parent ? parent.width : implicitWidth
    color: Theme.raised

    Separator {
        anchors.top: parent.top
        color: Theme.hairlineStrong
    }

    RowLayout {
        id: parts
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        spacing: Theme.partSpacing

        ColumnLayout {
            spacing: root.shown.showsProgress ? 6 : 3
            Layout.fillWidth: true

            MonospacedDigits {
                objectName: "firstLine"
                text: root.shown.firstLine
                size: 13
                color: Theme.textPrimary
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Conditional {
                condition: root.shown.showsProgress

                ProgressLine {
                    objectName: "progressLine"
                    value: root.shown.fraction
                    Layout.preferredWidth: 320
                }
            }

            Label {
                objectName: "lastLine"
                text: root.shown.lastLine
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                size: 11
                color: Theme.textTertiary
                Layout.fillWidth: true
            }
        }

        Conditional {
            condition: root.shown.showsStop

            SecondaryButton {
                objectName: "stopButton"
                title: qsTr("Stop")
                onAction: root.stop()
            }
        }

        PrimaryButton {
            objectName: "mainButton"
            Layout.maximumWidth: Math.max(72, root.width / 2)
            title: root.shown.buttonLabel
            isEnabled: root.shown.buttonEnabled
            onAction: root.action()
        }
    }
}
