pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// A folder or a file, how much of its level it takes, and what can be done with it.
RowFrame {
    id: root

    required index
    required property string name
    required property string detail
    required property string path
    required property url url
    required property real share
    required property string shareText
    required property string size
    required property string symbol
    required property bool canOpen
    required property bool canTrash
    required description

    property FolderBrowser browser

    isPressable: canOpen
    Accessible.role: canOpen ? Accessible.Button : Accessible.StaticText

    Symbol {
        Layout.preferredWidth: 20
        name: root.symbol
        size: 15
        color: root.canOpen ? Theme.accent : Theme.textTertiary
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            size: 13
            weight: root.canOpen ? Font.Medium : Font.Normal
        }

        Label {
            Layout.fillWidth: true
            text: root.detail
            size: 10.5
            color: Theme.textTertiary
        }
    }

    Rectangle {
        Layout.preferredWidth: 120
        Layout.preferredHeight: 6
        radius: 3
        color: Theme.white(0.06)

        Rectangle {
            width: Math.max(2, parent.width * root.share)
            height: parent.height
            radius: 3
            color: Theme.accent
        }
    }

    NumberCell {
        Layout.preferredWidth: Measures.shareWidth
        text: root.shareText
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        text: root.size
        isStrong: true
    }

    // Room for the buttons is kept where there are none, so that the figures stand in columns.
    Item {
        Layout.preferredWidth: 22
        Layout.preferredHeight: 22

        RevealButton {
            anchors.centerIn: parent
            visible: root.path !== ""
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }
    }

    Item {
        Layout.preferredWidth: 22
        Layout.preferredHeight: 22

        SymbolButton {
            anchors.centerIn: parent
            visible: root.canTrash
            activeFocusOnTab: root.ListView.isCurrentItem
            isEnabled: !root.browser.isDeleting
            symbol: "trash"
            title: qsTr("Move to Trash")
            help: title
            size: 12
            color: Theme.textTertiary
            onAction: {
                root.takePress();
                root.browser.requestTrash(root.index);
            }
        }
    }

    Symbol {
        Layout.preferredWidth: 12
        name: root.canOpen ? "chevron.right" : ""
        size: 10
        color: Theme.textTertiary
    }
}
