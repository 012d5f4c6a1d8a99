pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

// The choices of a menu, over everything else.
T.Popup {
    id: root

    required property MenuPopup menu
    property real widestEntry: 120
    // What had the focus, and is given it back.
    property Item opener: null

    padding: 5
    margins: 6
    modal: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    implicitWidth: root.widestEntry + 2 * root.padding
    implicitHeight: Math.min(320, list.contentHeight) + 2 * root.padding
    onAboutToShow: {
        list.forceLayout();
        root.opener = root.menu.Window.activeFocusItem;
        list.currentIndex = Math.max(0, root.menu.currentIndex);
    }
    onOpened: list.forceActiveFocus()
    onClosed: root.opener?.forceActiveFocus(Qt.PopupFocusReason)

    Connections {
        target: root.menu

        function onOpening() {
            root.open();
        }
    }

    function take(index: int) {
        root.close();
        root.menu.chosen(index);
    }

    contentItem: ListView {
        id: list
        model: root.menu.entries
        clip: true
        keyNavigationWraps: true
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.PopupMenu

        delegate: Pressable {
            id: entry

            required property int index
            required property string modelData

            title: entry.modelData
            activeFocusOnTab: false
            implicitWidth: Math.ceil(label.implicitWidth + hint.implicitWidth) + 48
            width: ListView.view.width
            Component.onCompleted: root.widestEntry = Math.max(root.widestEntry, entry.implicitWidth)
            implicitHeight: 26
            Accessible.role: Accessible.MenuItem
            onHoveredChanged: {
                if (entry.hovered)
                    list.currentIndex = entry.index;
            }
            onAction: root.take(entry.index)

            background: Rectangle {
                radius: 4
                color: entry.ListView.isCurrentItem ? Theme.accent : Theme.clear
            }

            contentItem: Item {
                Symbol {
                    x: 8
                    anchors.verticalCenter: parent.verticalCenter
                    name: "checkmark"
                    size: 9
                    visible: root.menu.marksCurrent && entry.index === root.menu.currentIndex
                }

                Label {
                    id: label
                    x: root.menu.marksCurrent ? 28 : 10
                    anchors.verticalCenter: parent.verticalCenter
                    text: entry.modelData
                    size: 12
                }

                Label {
                    id: hint
                    anchors.right: parent.right
                    anchors.rightMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.menu.hints[entry.index] ?? ""
                    size: 12
                    color: entry.ListView.isCurrentItem ? Theme.onAccent : Theme.textSecondary
                }
            }
        }
    }

    background: Rectangle {
        radius: 8
        color: Theme.floating
        border.color: Theme.white(0.14)
    }
}
