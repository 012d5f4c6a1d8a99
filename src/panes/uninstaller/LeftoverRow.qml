pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Uninstaller

/// The heading of a category, or one leftover in it.
Item {
    id: root

    required property int index
    required property int kind
    required property string name
    required property string path
    required property url url
    required property string whatItIs
    required property string size
    required property bool isSelected
    required property string description

    property bool canToggle: true
    property bool isMarked: false

    readonly property bool isLeftover: kind === LeftoverListModel.Leftover

    signal pressed

    implicitHeight: UninstallerMetrics.rowHeight
    Accessible.role: isLeftover ? Accessible.CheckBox : Accessible.Heading
    Accessible.name: description
    Accessible.focusable: true
    Accessible.checkable: isLeftover
    Accessible.checked: isSelected
    Accessible.onPressAction: pressed()
    Accessible.onToggleAction: pressed()

    Rectangle {
        anchors.fill: parent
        color: Theme.white(!root.isLeftover ? 0 : rowHover.hovered ? 0.04 : 0.02)
    }

    HoverHandler {
        id: rowHover
    }

    TapHandler {
        onTapped: root.pressed()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.sidePadding + (root.isLeftover ? 16 : 0)
        anchors.rightMargin: Theme.sidePadding
        spacing: Theme.partSpacing

        SelectionBox {
            visible: root.isLeftover
            size: 16
            selection: root.isSelected ? SelectionState.All : SelectionState.None
            label: root.name
            canToggle: root.canToggle
            activeFocusOnTab: false
            onToggled: root.pressed()
        }

        ColumnLayout {
            spacing: 1

            ElidedText {
                Layout.fillWidth: true
                text: root.name
                fullText: root.path
                size: root.isLeftover ? 12 : 13
                weight: root.isLeftover ? Font.Normal : Font.Medium
            }

            ElidedText {
                Layout.fillWidth: true
                visible: root.isLeftover
                text: Kit.folderLine(root.url)
                size: 10.5
                color: Theme.textTertiary
            }
        }

        RevealButton {
            visible: root.isLeftover
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }

        KitText {
            Layout.preferredWidth: UninstallerMetrics.whatItIsWidth
            text: root.isLeftover ? "" : root.whatItIs
            size: 12
            color: Theme.textSecondary
        }

        Figure {
            Layout.preferredWidth: UninstallerMetrics.sizeWidth
            text: root.size
            isStrong: !root.isLeftover
        }
    }

    Separator {
        anchors.bottom: parent.bottom
    }

    FocusRing {
        shown: root.isMarked
        gap: -3
    }
}
