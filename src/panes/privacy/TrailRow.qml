pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Privacy

/// The heading of a section, or one trail in it.
RowFrame {
    id: root

    required index
    required property int kind
    required property string name
    required property string path
    required property url url
    required property string cost
    required property string count
    required property string size
    required property bool isSelected
    required description

    property bool isLocked: false

    readonly property bool isTrail: kind === TrailListModel.Trail
    readonly property bool hasPath: Kit.hasPath(url)

    tint: isTrail && hovered ? 0.03 : 0
    showsParts: isTrail
    implicitHeight: isTrail ? PrivacyMetrics.rowHeight : PrivacyMetrics.headingHeight
    Accessible.role: isTrail ? Accessible.CheckBox : Accessible.Heading
    Accessible.checkable: isTrail
    Accessible.checked: isSelected

    whole: SectionHeading {
        visible: !root.isTrail
        anchors.left: parent.left
        anchors.leftMargin: Theme.sidePadding
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        text: root.name
    }

    SelectionBox {
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        canToggle: !root.isLocked
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    ColumnLayout {
        spacing: 1

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            weight: Font.Medium
        }

        ElidedText {
            Layout.fillWidth: true
            visible: root.hasPath
            text: Kit.folderLine(root.url)
            size: 10.5
            color: Theme.textTertiary
        }
    }

    RevealButton {
        visible: root.hasPath
        activeFocusOnTab: root.ListView.isCurrentItem
        url: root.url
    }

    KitText {
        Layout.preferredWidth: PrivacyMetrics.costWidth
        text: root.cost
        size: 12
        color: Theme.textSecondary
    }

    Figure {
        Layout.preferredWidth: PrivacyMetrics.itemsWidth
        text: root.count
    }

    Figure {
        Layout.preferredWidth: PrivacyMetrics.sizeWidth
        text: root.size
        isStrong: true
    }
}
