pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Uninstaller

/// The heading of a category, or one leftover in it.
RowFrame {
    id: root

    required index
    required property int kind
    required property string name
    required property string path
    required property url url
    required property string whatItIs
    required property string size
    required property bool isSelected
    required description

    property bool canToggle: true

    readonly property bool isLeftover: kind === LeftoverListModel.Leftover

    tint: !isLeftover ? 0 : hovered ? 0.04 : 0.02
    indent: isLeftover ? 16 : 0
    implicitHeight: UninstallerMetrics.rowHeight
    Accessible.role: isLeftover ? Accessible.CheckBox : Accessible.Heading
    Accessible.checkable: isLeftover
    Accessible.checked: isSelected

    SelectionBox {
        visible: root.isLeftover
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        canToggle: root.canToggle
        activeFocusOnTab: false
        onToggled: root.pressBox()
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
