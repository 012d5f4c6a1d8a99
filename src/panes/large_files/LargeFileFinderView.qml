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

            FilterChip {
                required property int index

                visible: index < root.model.kinds.length
                title: root.model.kindNames[index] ?? ""
                isSelected: visible && title === root.model.activeKind
                onAction: root.model.toggleKind(title)
            }
        }

        FilterDivider {}

        FilterMenu {
            entries: root.model.sorts
            currentIndex: root.model.sortIndex
            onChosen: index => root.model.chooseSort(index)
        }
    }

    LargeFileTable {
        visible: !root.instead.isShown
        pane: root.model
    }

    LoadingPane {
        visible: root.instead.isShown && root.instead.isBusy
        title: root.instead.title
        detail: root.instead.detail
        progress: root.model.progress
        style: LoadingStyle.Reading
    }

    ToolPlaceholder {
        visible: root.instead.isShown && !root.instead.isBusy
        icon: root.instead.icon
        title: root.instead.title
        detail: root.instead.detail
    }

    footer: ToolFooter {
        visible: !root.instead.isShown
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
