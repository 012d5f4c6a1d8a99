pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.LargeFiles

/// One file: its name above its folder, and what there is to know of it.
Item {
    id: root

    required property int index
    required property string name
    required property string folder
    required property string path
    required property url url
    required property string kind
    required property string lastOpened
    required property string size
    required property bool isSelected
    required property string description

    property bool isMarked: false
    property bool isPooled: false

    signal pressed
    signal toggled

    implicitHeight: TableMetrics.rowHeight
    // A row kept for later use is not drawn, and must not be told to a screen reader either.
    visible: !isPooled
    ListView.onPooled: isPooled = true
    ListView.onReused: isPooled = false
    Accessible.role: Accessible.CheckBox
    Accessible.name: description
    Accessible.focusable: true
    Accessible.checkable: true
    Accessible.checked: isSelected
    Accessible.onPressAction: toggled()
    Accessible.onToggleAction: toggled()

    Rectangle {
        anchors.fill: parent
        color: Theme.white(root.isSelected ? 0.06 : hover.hovered ? 0.03 : 0)
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: {
            root.pressed();
            root.toggled();
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.sidePadding
        anchors.rightMargin: Theme.sidePadding
        spacing: Theme.partSpacing

        SelectionBox {
            size: 16
            selection: root.isSelected ? SelectionState.All : SelectionState.None
            label: root.name
            activeFocusOnTab: false
            onToggled: {
                root.pressed();
                root.toggled();
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1

            ElidedText {
                Layout.fillWidth: true
                text: root.name
                fullText: root.path
                size: 12
            }

            ElidedText {
                Layout.fillWidth: true
                text: root.folder
                fullText: root.path
                size: 10.5
                color: Theme.textTertiary
            }
        }

        RevealButton {
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }

        KitText {
            Layout.preferredWidth: TableMetrics.kindWidth
            text: root.kind
            size: 12
            color: Theme.textSecondary
        }

        KitText {
            Layout.preferredWidth: TableMetrics.lastOpenedWidth
            text: root.lastOpened
            size: 12
            color: Theme.textSecondary
        }

        Figure {
            Layout.preferredWidth: TableMetrics.sizeWidth
            text: root.size
            isStrong: true
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
