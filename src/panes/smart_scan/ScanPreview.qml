pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The categories that a scan goes through, for a pane that has not scanned yet.
Item {
    id: root

    required property ScanPreviewModel model

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        anchors.topMargin: 12
        spacing: 12

        SectionHeading {
            text: qsTr("WHAT A SCAN LOOKS AT")
        }

        Panel {
            Layout.fillWidth: true

            GridLayout {
                width: parent.width
                columns: root.width >= 560 ? 2 : 1
                columnSpacing: 48
                rowSpacing: 0

                Repeater {
                    model: root.model

                    RowLayout {
                        id: row

                        required property string name
                        required property int safety

                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        Layout.preferredHeight: 38
                        Accessible.role: Accessible.ListItem
                        Accessible.name: row.name

                        Label {
                            Layout.fillWidth: true
                            text: row.name
                        }

                        SafetyBadge {
                            level: row.safety
                        }
                    }
                }
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.maximumWidth: 640
            text: qsTr("Nothing is deleted by a scan. Items move to the Trash, never straight to permanent deletion, and system folders are refused outright.")
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            color: Theme.textTertiary
            size: 12
            lineHeight: 1.3
            elide: Text.ElideNone
            maximumLineCount: 4
            wrapMode: Text.WordWrap
        }
    }
}
