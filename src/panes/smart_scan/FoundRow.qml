import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// One category of a running scan: found already, or being measured.
RowArrival {
    id: root

    required property string name
    required property int safety
    required property string items
    required property string size
    required property string description

    readonly property bool isInProgress: safety === ScanningTableModel.InProgress

    implicitHeight: Measures.rowHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: root.description

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        spacing: Theme.partSpacing

        Label {
            Layout.fillWidth: true
            text: root.name
            weight: Font.Medium
            color: root.isInProgress ? Theme.textSecondary : Theme.textPrimary
        }

        Item {
            Layout.preferredWidth: Measures.safetyWidth
            Layout.fillHeight: true

            SafetyBadge {
                anchors.verticalCenter: parent.verticalCenter
                visible: !root.isInProgress
                level: root.isInProgress ? Safety.Safe : root.safety
            }

            DelayedAppearance {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.isInProgress

                InlineLoader {
                    size: 15
                    tint: Theme.accent
                }
            }
        }

        NumberCell {
            Layout.preferredWidth: Measures.countWidth
            text: root.items
        }

        NumberCell {
            Layout.preferredWidth: Measures.sizeWidth
            text: root.size
            isStrong: !root.isInProgress
        }
    }

    Separator { anchors.bottom: parent.bottom }
}
