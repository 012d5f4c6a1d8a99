pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The sidebar, and beside it every pane that was looked at: all alive at once, one of them to be seen.
Item {
    id: root

    required property AppShellModel shell

    Sidebar {
        id: sidebar

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: 232
        shell: root.shell
    }

    Line {
        id: divider

        anchors.left: sidebar.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
    }

    Item {
        anchors.left: divider.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: notice.top

        Repeater {
            model: root.shell.panes

            Loader {
                id: pane

                required property url view
                required property QtObject paneModel
                required property bool isSelected

                anchors.fill: parent
                opacity: isSelected ? 1 : 0
                enabled: isSelected
                visible: isSelected

                property bool isComplete: false

                // What is never looked at is never made.
                function makeWhenSeen() {
                    if (isComplete && isSelected && status === Loader.Null)
                        setSource(view, { model: paneModel });
                }

                Component.onCompleted: {
                    isComplete = true;
                    makeWhenSeen();
                }
                onIsSelectedChanged: makeWhenSeen()
            }
        }
    }

    Column {
        id: notice

        anchors.left: divider.right
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        topPadding: removal.condition || notification.condition ? 12 : 0

        Conditional {
            id: removal

            condition: root.shell.removalHeadline !== ""

            ResultBanner {
                symbol: root.shell.isRestored ? "checkmark.circle.fill" : "trash.fill"
                symbolColor: root.shell.isRestored ? Theme.safe : Theme.textMuted
                headline: root.shell.removalHeadline
                detail: root.shell.removalDetail

                SecondaryButton {
                    visible: root.shell.canRestore
                    symbol: "arrow.uturn.backward"
                    title: qsTr("Restore")
                    onAction: root.shell.restoreRemoval()
                }

                SymbolButton {
                    symbol: "xmark"
                    title: qsTr("Dismiss")
                    onAction: root.shell.dismissRemoval()
                }
            }
        }

        Conditional {
            id: notification

            condition: root.shell.notice !== ""

            ResultBanner {
                symbol: "exclamationmark.triangle.fill"
                symbolColor: Theme.review
                headline: root.shell.noticeHeadline
                detail: root.shell.notice

                SymbolButton {
                    symbol: "xmark"
                    title: qsTr("Dismiss")
                    onAction: root.shell.dismissNotice()
                }
            }
        }
    }

    Conditional {
        condition: Words.asksForFullDiskAccess

        FullDiskAccessView {
            model: root.shell.access
        }
    }

    ConfirmationDialog {
        isPresented: root.shell.trash.isConfirming
        title: qsTr("Empty the Trash?")
        message: root.shell.trash.confirmationMessage
        buttons: [
            DialogButton {
                title: qsTr("Empty Trash")
                role: ButtonRole.Destructive
                onTriggered: root.shell.trash.confirmEmpty()
            },
            DialogButton {
                title: qsTr("Cancel")
                role: ButtonRole.Cancel
                onTriggered: root.shell.trash.cancelConfirmation()
            }
        ]
    }
}
