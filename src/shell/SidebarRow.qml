import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// A section to go to, or the heading of a group of them.
Pressable {
    id: root

    required property int index
    required property bool isHeading
    required property string label
    required property string symbol
    required property string toolHelp
    required property string rightHand
    required property bool hasCheckmark
    required property bool isWorking
    required property bool isSelected
    required property string description

    readonly property color tint: isSelected ? "white" : Theme.textMuted

    title: description
    // No sentence that is the name again.
    help: isHeading || toolHelp === label ? "" : toolHelp
    isHelpBeside: true
    isOnAccent: isSelected
    pressableEnabled: !isHeading
    Accessible.role: isHeading ? Accessible.Heading : Accessible.Button
    Accessible.selectable: !isHeading
    Accessible.selected: isSelected
    implicitHeight: isHeading ? 34 : 32

    Rectangle {
        anchors.fill: parent
        visible: !root.isHeading
        radius: Theme.cornerRadius
        color: root.isSelected ? Theme.accent : Theme.white(root.hovered ? 0.06 : 0)
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        visible: root.isHeading
        text: root.label
        size: 11
        weight: Font.DemiBold
        tracking: 0.4
        color: Theme.textTertiary
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        visible: !root.isHeading
        spacing: 8

        Item {
            Layout.preferredWidth: 17
            Layout.fillHeight: true

            InlineLoader {
                anchors.centerIn: parent
                visible: root.isWorking
                size: 15
                tint: root.isSelected ? "white" : Theme.accent
            }

            KlarvikGlyph {
                anchors.centerIn: parent
                visible: !root.isWorking && root.symbol === ""
                size: 15
                color: root.tint
            }

            Symbol {
                anchors.centerIn: parent
                visible: !root.isWorking && root.symbol !== ""
                name: root.symbol
                size: 13
                color: root.tint
            }
        }

        Label {
            Layout.fillWidth: true
            text: root.label
            color: root.tint
        }

        Symbol {
            visible: root.hasCheckmark
            name: "checkmark"
            size: 9
            color: root.isSelected ? "white" : Theme.safe
        }

        MonospacedDigits {
            text: root.rightHand
            size: 11
            color: root.isSelected ? Theme.white(0.85) : Theme.textTertiary
        }
    }
}
