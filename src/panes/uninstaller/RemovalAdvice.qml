pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// How an application goes that Klarvik does not remove itself: the command, and what it would take.
ResultBanner {
    id: root

    required property string command
    required property string explanation
    required property string alsoRemoved

    symbol: root.command === "" ? "lock.shield.fill" : "shippingbox.fill"
    symbolColor: Theme.textSecondary
    headline: root.command === "" ? qsTr("This app stays") : root.command
    headlineIsCode: root.command !== ""
    detail: root.explanation
    help: root.alsoRemoved

    SecondaryButton {
        visible: root.command !== ""
        title: copied.running ? qsTr("Copied") : qsTr("Copy")
        help: qsTr("Copy the command")
        onAction: {
            clipboard.selectAll();
            clipboard.copy();
            copied.restart();
        }

        Timer {
            id: copied
            interval: 2000
        }
    }

    // Text that is copied comes out of an element that holds it.
    TextEdit {
        id: clipboard
        visible: false
        text: root.command
        textFormat: TextEdit.PlainText
    }
}
