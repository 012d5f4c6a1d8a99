pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The folders and files of one share of the disk, level by level. Return opens, Backspace and
/// Escape go up.
FocusScope {
    id: root

    required property FolderBrowser browser

    function focusRows() {
        if (root.visible)
            list.forceActiveFocus(Qt.OtherFocusReason);
    }

    anchors.fill: parent
    Keys.onEscapePressed: root.browser.goUp()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Backspace;
        if (event.accepted && !event.isAutoRepeat)
            root.browser.goUp();
    }
    onVisibleChanged: root.focusRows()
    Component.onCompleted: root.focusRows()

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: Measures.side(root.width) - 6
            Layout.rightMargin: Measures.side(root.width)
            Layout.bottomMargin: 10
            spacing: 6

            SymbolButton {
                symbol: "chevron.left"
                title: qsTr("Back")
                help: qsTr("To the level above")
                onAction: root.browser.goUp()
            }

            TextButton {
                title: qsTr("Storage")
                onAction: root.browser.close()
            }

            Repeater {
                model: root.browser.crumbs

                RowLayout {
                    id: crumb

                    required property int index
                    required property string modelData
                    readonly property bool isLast: index === root.browser.crumbs.length - 1

                    Layout.fillWidth: isLast
                    spacing: 6

                    Symbol {
                        name: "chevron.right"
                        size: 9
                        color: Theme.textTertiary
                    }

                    TextButton {
                        Layout.maximumWidth: 180
                        visible: !crumb.isLast
                        title: crumb.modelData
                        onAction: root.browser.goTo(crumb.index)
                    }

                    Label {
                        Layout.fillWidth: true
                        visible: crumb.isLast
                        text: crumb.modelData
                        size: 12
                        weight: Font.Medium
                        elide: Text.ElideMiddle
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }

            MonospacedDigits {
                text: root.browser.status
                size: 12
                color: Theme.textSecondary
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Item {
            Layout.fillWidth: true
            implicitHeight: 1

            Separator {
                anchors.bottom: parent.bottom
            }
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            Conditional {
                condition: root.browser.isMeasuring

                ToolPlaceholder {
                    title: root.browser.status
                    detail: ""
                }
            }

            RowList {
                id: list

                objectName: "folderRows"
                focus: true
                name: qsTr("Folders and files, largest first")
                model: root.browser
                onActivated: row => root.browser.activate(row)

                delegate: FolderBrowserRow {
                    browser: root.browser
                }
            }

            Connections {
                target: root.browser

                // Another level begins with its first row.
                function onLevelChanged() {
                    list.currentIndex = list.count > 0 ? 0 : -1;
                    list.positionViewAtBeginning();
                }
            }
        }
    }

    ConfirmationDialog {
        isPresented: root.browser.isConfirming
        title: root.browser.confirmationTitle
        message: root.browser.confirmationMessage
        buttons: [
            DialogButton {
                title: qsTr("Cancel")
                role: ButtonRole.Cancel
                onTriggered: root.browser.cancelTrash()
            },
            DialogButton {
                title: qsTr("Move to Trash")
                onTriggered: root.browser.confirmTrash()
            }
        ]
    }
}
