pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Sheet {
    id: root

    required property string title
    required property string message
    required property list<DialogButton> buttons

    function cancel() {
        for (let index = 0; index < root.buttons.length; ++index) {
            if (root.buttons[index].role === ButtonRole.Cancel) {
                root.buttons[index].triggered();
                return;
            }
        }
    }

    // What destroys stands on the right, wherever it is named.
    readonly property list<DialogButton> buttonsInOrder: {
        const isCancel = button => button.role === ButtonRole.Cancel;
        const all = Array.from(root.buttons);
        return [...all.filter(isCancel), ...all.filter(button => !isCancel(button))];
    }

    name: root.title
    description: root.message
    onCancelled: root.cancel()

    Conditional {
        condition: root.isPresented

        Column {
            width: parent.width
            spacing: root.spacing

            Label {
                objectName: "dialogTitle"
                width: parent.width
                text: Kit.withSizesUnbroken(root.title)
                size: 15
                weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 3
                Accessible.role: Accessible.StaticText
                Accessible.name: root.title
            }

            Label {
                objectName: "dialogMessage"
                width: parent.width
                text: Kit.withSizesUnbroken(root.message)
                size: 12
                color: Theme.textSecondary
                wrapMode: Text.Wrap
                maximumLineCount: 20
                lineHeight: 1.15
                Accessible.role: Accessible.StaticText
                Accessible.name: root.message
            }

            Row {
                anchors.right: parent.right
                topPadding: 10
                spacing: 10

                Repeater {
                    model: root.buttonsInOrder

                    PrimaryButton {
                        id: choice

                        required property DialogButton modelData

                        title: choice.modelData.title
                        focus: choice.modelData.role === ButtonRole.Cancel
                        fill: choice.modelData.role === ButtonRole.Destructive ? Theme.destructive
                            : choice.modelData.role === ButtonRole.Cancel ? Theme.white(0.12) : Theme.accent
                        onAction: choice.modelData.triggered()
                    }
                }
            }
        }
    }
}
