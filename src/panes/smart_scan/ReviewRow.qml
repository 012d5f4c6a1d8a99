pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// One row of the review: a category, one of its items, the row that shows the rest, a hint, or the
/// command that belongs to the hint above it.
ToolGroupRow {
    id: root

    required index
    required property int kind
    required property string name
    required pathText
    required property url url
    required property string symbol
    required property int color
    required property int safety
    required property string items
    required note
    required property bool isInUse
    required property bool canSelect
    required property bool isCopied
    required property bool canRun
    required property string size
    required description

    /// The user wants the command of this row to be run.
    signal runAsked()

    readonly property bool isCategory: kind === ReviewTableModel.Category
    readonly property bool isItem: kind === ReviewTableModel.Item
    readonly property bool isShowMore: kind === ReviewTableModel.ShowMore
    readonly property bool isHint: kind === ReviewTableModel.Hint
    readonly property bool isCommand: kind === ReviewTableModel.Command

    title: name
    titleSize: isCategory ? 13 : 12
    titleWeight: isCategory ? Font.Medium : Font.Normal
    titleColor: isShowMore ? Theme.accent : isHint ? Theme.textSecondary : Theme.textPrimary
    noteColor: isInUse ? Theme.review : Theme.textTertiary
    canToggleSelection: canSelect
    showsBox: !isShowMore && !isHint
    canToggleExpanded: isCategory
    showsLeading: !isShowMore
    tint: hovered ? 0.03 : isCategory ? 0 : 0.02
    // A hint has no box, and its name begins where those of the items do.
    indent: isCategory ? 0 : isHint || isCommand ? 2 * Measures.indent : Measures.indent
    showsParts: !isCommand
    Accessible.role: isShowMore || isCommand ? Accessible.Button : isCategory ? Accessible.TreeItem
                     : isHint ? Accessible.StaticText : Accessible.CheckBox
    Accessible.checkable: canSelect
    Accessible.checked: selection === ReviewTableModel.All
    Accessible.checkStateMixed: selection === ReviewTableModel.Partial

    // What only some rows have is made for these alone: a table is drawn as fast as its rows are made.
    whole: Conditional {
        condition: root.isCommand

        CommandLine {
            anchors.fill: parent
            // Below the name of the hint.
            anchors.leftMargin: Measures.side(root.width) + root.indent + 20 + Theme.partSpacing
            anchors.rightMargin: Measures.side(root.width)
            command: root.name
            isCopied: root.isCopied
            canRun: root.canRun
            isReached: root.ListView.isCurrentItem
            onRun: {
                root.takePress();
                root.runAsked();
            }
            onCopy: {
                root.takePress();
                root.activated();
            }
        }
    }

    leading: Symbol {
        Layout.preferredWidth: 20
        name: root.symbol
        size: root.isCategory ? 16 : 14
        color: root.isCategory ? Theme.systemColor(root.color) : Theme.textTertiary
    }

    Conditional {
        condition: root.isCategory

        Item {
            Layout.preferredWidth: Measures.safetyWidth
            Layout.fillHeight: true

            SafetyBadge {
                visible: root.canSelect
                anchors.verticalCenter: parent.verticalCenter
                level: root.safety
            }
        }
    }

    Conditional {
        condition: root.isCategory

        NumberCell {
            Layout.preferredWidth: Measures.countWidth
            text: root.items
        }
    }

    Conditional {
        condition: root.isItem || root.isHint

        RevealButton {
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        visible: !root.isShowMore
        text: root.size
        isStrong: root.isCategory
    }
}
