pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Shell

/// What was found, and the actions that are used most. Tab and the arrow keys move through those.
FocusScope {
    id: root

    required property MenuBarModel model

    function move(forward: bool) {
        const from = root.Window.activeFocusItem ?? root;
        from.nextItemInFocusChain(forward).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: column.implicitHeight + 24
    Accessible.role: Accessible.Pane
    Accessible.name: "Klarvik"
    Keys.onDownPressed: root.move(true)
    Keys.onUpPressed: root.move(false)

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 12
        spacing: 10

        RowLayout {
            spacing: 8

            KlarvikMark {
                size: 18
            }

            Label {
                text: "Klarvik"
                size: 14
                weight: Font.DemiBold
            }
        }

        FoundBlock {
            Layout.fillWidth: true
            visible: root.model.categories.length > 0
            model: root.model
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            Repeater {
                // The rows stay the same, so that the pointer and the focus stay where they are
                // when a label changes.
                model: root.model.actions.length

                ColumnLayout {
                    id: row

                    required property int index
                    readonly property menuBarAction entry: root.model.actions[row.index]

                    Layout.fillWidth: true
                    spacing: 0

                    Item {
                        Layout.fillWidth: true
                        Layout.topMargin: 6
                        Layout.bottomMargin: 6
                        visible: row.entry.startsGroup
                        implicitHeight: 1

                        Separator { color: Theme.hairlineStrong }
                    }

                    MenuBarButton {
                        Layout.fillWidth: true
                        icon: row.entry.symbol
                        label: row.entry.label
                        pressableEnabled: row.entry.isEnabled
                        onAction: root.model.perform(row.index)
                    }
                }
            }
        }
    }

    /// One action: a line with its symbol.
    component MenuBarButton: Pressable {
        id: menuBarButton

        required property string icon
        required property string label

        title: menuBarButton.label
        implicitHeight: 18 + 2 * 6
        leftPadding: 8
        rightPadding: 8
        ringGap: 0

        background: Rectangle {
            radius: Theme.cornerRadius
            color: Theme.white(menuBarButton.hovered && menuBarButton.pressableEnabled ? 0.12 : 0)
        }

        contentItem: Item {
            opacity: menuBarButton.pressableEnabled ? 1.0 : 0.45

            Symbol {
                id: symbol

                anchors.verticalCenter: parent.verticalCenter
                width: 18
                name: menuBarButton.icon
                size: 13
                color: Theme.textMuted
            }

            Label {
                anchors.left: symbol.right
                anchors.leftMargin: 8
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: menuBarButton.label
            }
        }
    }
}
