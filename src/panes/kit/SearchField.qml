pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

FocusScope {
    id: root

    property alias text: input.text
    property string placeholder: qsTr("Search")
    signal edited(string text)

    implicitWidth: 220
    implicitHeight: 26

    Rectangle {
        anchors.fill: parent
        radius: Theme.cornerRadius
        color: Theme.white(0.06)
        border.color: input.activeFocus ? Theme.accent : Theme.white(0.1)
    }

    Symbol {
        id: glass
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 10
        color: Theme.textTertiary
    }

    TextInput {
        id: input
        anchors.left: glass.right
        anchors.right: clearButton.left
        anchors.leftMargin: 6
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        activeFocusOnTab: true
        clip: true
        font: Theme.font(12)
        color: Theme.textPrimary
        selectionColor: Theme.accent
        selectedTextColor: Theme.onAccent
        selectByMouse: true
        Accessible.role: Accessible.EditableText
        Accessible.name: root.placeholder
        Keys.onEscapePressed: event => {
            event.accepted = input.text !== "";
            input.clear();
            root.edited("");
        }
        onTextEdited: root.edited(input.text)
    }

    Label {
        anchors.left: input.left
        anchors.right: input.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.placeholder
        size: 12
        color: Theme.textTertiary
        visible: input.text === ""
    }

    SymbolButton {
        id: clearButton
        anchors.right: parent.right
        anchors.rightMargin: 3
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark.circle.fill"
        title: qsTr("Clear the search")
        size: 10
        visible: input.text !== ""
        onAction: {
            input.clear();
            input.forceActiveFocus();
            root.edited("");
        }
    }
}
