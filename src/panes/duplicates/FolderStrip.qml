pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// Where to look, and which copy stays, on a second line where the first has no room for both.
/// Folders that do not fit on their line are counted, and shown on more lines when asked for.
Item {
    id: root

    required property DuplicateFinderModel model
    property bool showsAll: false

    readonly property int gap: 10
    /// For the chip that says how many more there are.
    readonly property int counterRoom: 84
    readonly property int side: Measures.side(root.width)
    readonly property real room: root.width - 2 * root.side - label.width - adding.width - 2 * root.gap
    readonly property bool wraps: root.widthOf(chips.count) + root.gap + keeping.width > root.room
    readonly property real chipRoom: root.wraps ? root.room : root.room - root.gap - keeping.width
    readonly property int fitting: root.countThatFits(root.chipRoom)
    readonly property int hiddenCount: chips.count - root.fitting

    /// Of the first `count` chips.
    function widthOf(count: int): real {
        let width = 0;
        for (let at = 0; at < count; ++at)
            width += (at > 0 ? root.gap : 0) + (chips.itemAt(at)?.implicitWidth ?? 0);
        return width;
    }

    function countThatFits(room: real): int {
        if (root.widthOf(chips.count) <= room)
            return chips.count;
        let count = 1;
        while (count + 1 < chips.count && root.widthOf(count + 1) + root.gap + root.counterRoom <= room)
            ++count;
        return count;
    }

    implicitHeight: keeping.y + keeping.implicitHeight + 14
    width: parent ? parent.width : implicitWidth

    FilterLabel {
        id: label
        x: root.side
        y: 14
        height: keeping.implicitHeight
        text: qsTr("Folders")
    }

    Flow {
        id: flow

        x: label.x + label.width + root.gap
        y: 14
        width: root.chipRoom
        spacing: root.gap

        Repeater {
            id: chips

            model: root.model.folderNames.length

            FilterChip {
                required property int index

                visible: root.showsAll || index < root.fitting
                title: root.model.folderNames[index] ?? ""
                help: root.model.folderHelps[index] ?? ""
                isSelected: true
                isRemovable: chips.count > 1
                onAction: root.model.removeFolder(index)
            }
        }

        Conditional {
            condition: root.hiddenCount > 0

            FilterChip {
                title: root.showsAll ? qsTr("Fewer") : qsTr("+%1 more").arg(root.hiddenCount)
                help: root.showsAll ? "" : qsTr("Show all folders")
                symbol: ""
                onAction: root.showsAll = !root.showsAll
            }
        }
    }

    CenteredRow {
        id: adding

        x: flow.x + Math.min(root.chipRoom, flow.implicitWidth) + root.gap
        y: 14
        spacing: root.gap

        FilterChip {
            title: qsTr("Add folder…")
            isDashed: true
            onAction: root.model.chooseFolders()
        }

        Conditional {
            condition: root.model.removedFolder !== ""

            TextButton {
                title: qsTr("Undo")
                help: qsTr("Put %1 back").arg(root.model.removedFolder)
                onAction: root.model.putFolderBack()
            }
        }
    }

    CenteredRow {
        id: keeping

        x: root.wraps ? root.side : adding.x + adding.width + root.gap
        y: root.wraps ? 14 + Math.max(flow.implicitHeight, adding.implicitHeight) + root.gap : 14
        spacing: root.gap

        FilterLabel { text: qsTr("Keep") }

        FilterMenu {
            entries: root.model.keepRules
            currentIndex: root.model.keepRuleIndex
            onChosen: index => root.model.chooseKeepRule(index)
        }

        FilterLabel { text: root.model.minSizeText }
    }
}
