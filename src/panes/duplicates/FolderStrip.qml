pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Duplicates

/// Where to look, and which copy stays. The chips of many folders scroll, so that what stands behind
/// them is always there.
Item {
    id: root

    required property DuplicateFinderModel model

    implicitHeight: line.implicitHeight + 28
    width: parent ? parent.width : implicitWidth

    RowLayout {
        id: line
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.sidePadding
        anchors.rightMargin: Theme.sidePadding
        spacing: 10

        FilterLabel { text: qsTr("Folders") }

        Flickable {
            id: strip

            Layout.fillWidth: true
            Layout.minimumWidth: 60
            Layout.maximumWidth: implicitWidth
            implicitWidth: Math.ceil(chips.implicitWidth)
            implicitHeight: chips.implicitHeight
            contentWidth: chips.implicitWidth
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            clip: contentWidth > width

            function show(chip: Item) {
                if (chip.x < contentX)
                    contentX = chip.x;
                else if (chip.x + chip.width > contentX + width)
                    contentX = chip.x + chip.width - width;
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

        Item { Layout.fillWidth: true }
    }
}
