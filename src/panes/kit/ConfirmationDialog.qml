pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

Item {
    id: root

    required property bool isPresented
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

    T.Popup {
        id: sheet

        parent: T.Overlay.overlay
        anchors.centerIn: parent
        visible: root.isPresented
        modal: true
        focus: true
        padding: 22
        closePolicy: T.Popup.NoAutoClose
        implicitWidth: 400
        implicitHeight: body.implicitHeight + 2 * sheet.padding

        T.Overlay.modal: Rectangle {
            color: Theme.shade(0.5)
        }

        background: Rectangle {
            radius: 12
            color: Theme.floating
            border.color: Theme.white(0.12)
        }

        contentItem: FocusScope {
            focus: true
            Accessible.role: Accessible.Dialog
            Accessible.name: root.title
            Accessible.description: root.message
            Keys.onEscapePressed: root.cancel()

            Column {
                id: body
                anchors.left: parent.left
                anchors.right: parent.right
                spacing: 10

                KitText {
                    objectName: "dialogTitle"
                    width: parent.width
                    text: root.title
                    size: 15
                    weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    maximumLineCount: 3
                }

                KitText {
                    objectName: "dialogMessage"
                    width: parent.width
                    text: root.message
                    size: 12
                    color: Theme.textSecondary
                    wrapMode: Text.Wrap
                    maximumLineCount: 20
                    lineHeight: 1.15
                }

                Row {
                    anchors.right: parent.right
                    topPadding: 10
                    spacing: 10

                    Repeater {
                        model: root.buttons

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
}
