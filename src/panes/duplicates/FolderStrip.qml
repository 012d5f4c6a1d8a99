pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// Where to look, and which copy stays. The chips of many folders scroll, so that what stands behind
/// them is always there.
Item {
    id: root

    required property DuplicateFinderModel model
    /// What a focus ring takes up around a chip.
    readonly property int ringRoom: 4

    implicitHeight: line.implicitHeight - 2 * ringRoom + 28
    width: parent ? parent.width : implicitWidth

    RowLayout {
        id: line
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Measures.side(root.width)
        // The usual folders fit into the smallest window.
        width: Math.min(implicitWidth, root.width - 2 * Measures.side(root.width) + root.ringRoom)
        spacing: 10

        FilterLabel { text: qsTr("Folders") }

        Flickable {
            id: strip

            Layout.fillWidth: true
            Layout.minimumWidth: 60
            Layout.maximumWidth: implicitWidth
            Layout.leftMargin: -root.ringRoom
            Layout.rightMargin: -root.ringRoom
            implicitWidth: Math.ceil(chips.implicitWidth)
            implicitHeight: chips.implicitHeight
            contentWidth: implicitWidth
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            clip: contentWidth > width

            function show(chip: Item) {
                const left = chip.x - root.ringRoom;
                const right = chip.x + chip.width + root.ringRoom;
                if (left < contentX)
                    contentX = left;
                else if (right > contentX + width)
                    contentX = right - width;
            }

            WheelHandler {
                orientation: Qt.Vertical
                target: null
                onWheel: event => {
                    const end = Math.max(0, strip.contentWidth - strip.width);
                    strip.contentX = Math.max(0, Math.min(end, strip.contentX - event.angleDelta.y / 2));
                }
            }

            Row {
                id: chips
                padding: root.ringRoom
                spacing: 10

                Repeater {
                    model: root.model.folderNames.length

                    FilterChip {
                        id: chip

                        required property int index

                        title: root.model.folderNames[index] ?? ""
                        help: root.model.folderHelps[index] ?? ""
                        isSelected: true
                        onAction: root.model.removeFolder(index)
                        onActiveFocusChanged: if (activeFocus) strip.show(chip)
                    }
                }
            }
        }

        FilterChip {
            title: qsTr("Add folder…")
            isDashed: true
            onAction: root.model.chooseFolders()
        }

        FilterLabel { text: qsTr("Keep") }

        FilterMenu {
            entries: root.model.keepRules
            currentIndex: root.model.keepRuleIndex
            onChosen: index => root.model.chooseKeepRule(index)
        }

        FilterLabel { text: root.model.minSizeText }
    }
}
