pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// What the other tools have found, each a way to its section.
Item {
    id: root

    required property OtherToolsBarModel model

    implicitHeight: content.implicitHeight + 28

    Separator { anchors.top: parent.top }

    ColumnLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        spacing: 8

        RowLayout {
            spacing: 8

            SectionHeading {
                text: qsTr("FOUND BY THE OTHER TOOLS")
            }

            Label {
                visible: text !== ""
                text: root.model.pendingText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Theme.textTertiary
                size: 11
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: 8

            Repeater {
                model: root.model

                OtherToolsEntry {
                    onAction: root.model.open(index)
                }
            }
        }
    }

    /// One tool's line in the strip.
    component OtherToolsEntry: Pressable {
        id: otherToolsEntry

        required property int index
        required property string size
        required property string note
        required property string toolHelp

        title: otherToolsEntry.size + " " + otherToolsEntry.note
        help: otherToolsEntry.toolHelp
        implicitWidth: texts.implicitWidth + 24
        implicitHeight: 30

        background: Rectangle {
            radius: Theme.cornerRadius
            color: Theme.white(otherToolsEntry.down ? 0.1 : otherToolsEntry.hovered ? 0.07 : 0.04)
        }

        contentItem: Item {
            Row {
                id: texts

                anchors.centerIn: parent
                spacing: 5

                MonospacedDigits {
                    text: otherToolsEntry.size
                    size: 13
                }

                Label {
                    text: otherToolsEntry.note
                    color: Theme.textSecondary
                }
            }
        }
    }
}
