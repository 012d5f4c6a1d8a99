pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit
import Klarvik.Panes

/// A command that needs the rights of root: as it would be run, and what has come of it.
Sheet {
    id: root

    required property RootRunModel model

    readonly property bool isAsking: model.phase === RootRunModel.Asking
    readonly property bool isRunning: model.phase === RootRunModel.Running

    isPresented: model.phase !== RootRunModel.None
    name: model.title
    description: model.message
    sheetWidth: 520
    onCancelled: model.close()

    Conditional {
        condition: root.isPresented

        Column {
            width: parent.width
            spacing: root.spacing

            Label {
                width: parent.width
                text: root.model.title
                size: 15
                weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 3
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Label {
                width: parent.width
                text: root.model.message
                size: 12
                color: Theme.textSecondary
                wrapMode: Text.Wrap
                maximumLineCount: 6
                lineHeight: 1.15
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            CodeBox {
                text: root.model.command
                label: qsTr("Command")
            }

            CodeBox {
                visible: text.length > 0
                text: root.model.output
                label: qsTr("What it printed")
            }

            Row {
                anchors.right: parent.right
                topPadding: 10
                spacing: 10

                InlineLoader {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.isRunning
                    size: 16
                }

                PrimaryButton {
                    title: root.isAsking ? qsTr("Cancel") : root.isRunning ? qsTr("Stop Waiting") : qsTr("Close")
                    focus: true
                    fill: Theme.white(0.12)
                    onAction: root.model.close()
                }

                PrimaryButton {
                    visible: root.isAsking
                    title: qsTr("Run")
                    onAction: root.model.run()
                }
            }
        }
    }

    /// Text of a terminal, scrolled where there is much of it.
    component CodeBox: Rectangle {
        id: box

        required property string text
        required property string label

        width: parent?.width ?? 0
        height: Math.min(code.implicitHeight + 16, 180)
        radius: Theme.cornerRadius
        color: Theme.white(0.05)
        border.width: 1
        border.color: Theme.hairline

        Flickable {
            anchors.fill: parent
            anchors.margins: 8
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            contentHeight: code.implicitHeight
            T.ScrollBar.vertical: KitScrollBar {}

            Text {
                id: code
                width: parent.width - 8
                text: box.text
                textFormat: Text.PlainText
                wrapMode: Text.WrapAnywhere
                renderType: Text.NativeRendering
                font: Theme.codeFont(11)
                color: Theme.textSecondary
                Accessible.role: Accessible.StaticText
                Accessible.name: box.label + ": " + box.text
            }
        }
    }
}
