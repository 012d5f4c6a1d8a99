pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// A command that the user may run in a terminal, and the buttons that copy it or have it run here.
RowLayout {
    id: root

    required property string command
    required property bool isCopied
    property bool canRun: false
    /// Whether Tab comes to the button.
    required property bool isReached
    signal copy()
    signal run()

    spacing: Theme.partSpacing

    Rectangle {
        Layout.fillWidth: true
        Layout.preferredHeight: 26
        radius: Theme.cornerRadius
        color: Theme.white(0.05)
        border.width: 1
        border.color: Theme.hairline

        ElidedText {
            anchors.fill: parent
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            text: root.command
            elide: Text.ElideRight
            font: Theme.codeFont(11)
            color: Theme.textSecondary
        }
    }

    TextButton {
        visible: root.canRun
        title: qsTr("Run…")
        help: qsTr("Show what would be run, and run it with the system asking for the password")
        activeFocusOnTab: root.isReached
        onAction: root.run()
    }

    Item {
        // As wide with either text.
        Layout.preferredWidth: 48
        Layout.fillHeight: true

        TextButton {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            title: root.isCopied ? qsTr("Copied") : qsTr("Copy")
            help: qsTr("Copy this command")
            activeFocusOnTab: root.isReached
            onAction: root.copy()
        }
    }
}
