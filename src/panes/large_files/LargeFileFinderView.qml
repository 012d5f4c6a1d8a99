pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Large Files section: a list that grows while the home is walked, and a footer to move what
/// is picked to the Trash.
ToolPane {
    id: root

    required property LargeFileFinderModel model

    readonly property placeholder instead: model.placeholder

    title: model.title
    subtitle: model.subtitle
    actionTitle: model.actionTitle
    isBusy: model.isScanning
    rowsShowLoader: true
    showsColumns: !instead.isShown
    columns: [
        ColumnSpec { title: qsTr("FILE") },
        ColumnSpec { title: qsTr("KIND"); width: Measures.kindWidth },
        ColumnSpec { title: qsTr("LAST OPENED"); width: Measures.dateWidth },
        ColumnSpec { title: qsTr("SIZE"); width: Measures.sizeWidth; alignment: Qt.AlignRight }
    ]
    onAction: model.performAction()

    filters: FilterBar {
        FilterLabel { text: qsTr("Over") }

        FilterMenu {
            entries: root.model.thresholds
            currentIndex: root.model.thresholdIndex
            onChosen: index => root.model.chooseThreshold(index)
        }

        FilterDivider {}

        FilterChip {
            title: qsTr("All kinds")
            isSelected: root.model.activeKind === ""
            onAction: root.model.showAllKinds()
        }

        // One for each place, so that a chip with the focus keeps it while kinds are found.
        Repeater {
            model: root.model.mostKinds

            Conditional {
                id: place

                required property int index

                condition: index < root.model.kinds.length

                FilterChip {
                    title: root.model.kindNames[place.index] ?? ""
                    isSelected: title === root.model.activeKind
                    onAction: root.model.toggleKind(title)
                }
            }
        }

        FilterDivider {}

        FilterMenu {
            entries: root.model.sorts
            currentIndex: root.model.sortIndex
            onChosen: index => root.model.chooseSort(index)
        }
    }

    Conditional {
        condition: !root.instead.isShown

        LargeFileTable {
            pane: root.model
        }
    }

    Conditional {
        condition: root.instead.isShown && root.instead.isBusy

        LoadingPane {
            title: root.instead.title
            detail: root.instead.detail
            progress: root.model.progress
            style: LoadingStyle.Reading
        }
    }

    Conditional {
        condition: root.instead.isShown && !root.instead.isBusy

        ToolPlaceholder {
            icon: root.instead.icon
            title: root.instead.title
            detail: root.instead.detail
        }
    }

    footer: Conditional {
        condition: !root.instead.isShown

        ToolFooter {
            selectionSummary: root.model.selectionSummary
            explanation: root.model.footerHint
            buttonTitle: root.model.trashButtonTitle
            isEnabled: root.model.canTrash
            isBusy: root.model.isDeleting
            progress: root.model.deleteProgress
            canStop: true
            onAction: root.model.trashSelected()
            onStop: root.model.stopTrashing()
        }
    }
}
