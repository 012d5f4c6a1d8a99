pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// The entries of a row, opened by the secondary button, or by the Menu key where its owner asks.
Item {
    id: root

    required property list<string> entries
    // Before the menu is there.
    signal opening()
    signal chosen(int index)

    function popup(x: real, y: real) {
        root.opening();
        menu.x = x;
        menu.y = y;
        menu.open();
    }

    anchors.fill: parent

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: eventPoint => root.popup(eventPoint.position.x, eventPoint.position.y)
    }

    MenuPopup {
        id: menu
        entries: root.entries
        onChosen: index => root.chosen(index)
    }
}
