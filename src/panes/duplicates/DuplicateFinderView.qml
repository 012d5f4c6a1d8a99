pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Duplicates section: groups of equal files, the copy of each that stays, and a footer to move
/// the others to the Trash.
ToolPane {
    id: root

    required property DuplicateFinderModel model

    readonly property placeholder instead: model.placeholder

    title: model.title
    subtitle: model.subtitle
    actionTitle: model.actionTitle
    isActionEnabled: model.canScan
    isBusy: model.isScanning
    rowsShowLoader: true
    showsColumns: !instead.isShown
    columns: [
        ColumnSpec { title: qsTr("FILE") },
        ColumnSpec { title: qsTr("COPIES"); width: Measures.countWidth; alignment: Qt.AlignRight },
        ColumnSpec { title: qsTr("EACH"); width: Measures.sizeWidth; alignment: Qt.AlignRight },
        ColumnSpec { title: qsTr("RECLAIMABLE"); width: Measures.sizeWidth; alignment: Qt.AlignRight }
    ]
    onAction: model.performAction()

    filters: FolderStrip {
        model: root.model
    }

    Conditional {
        condition: !root.instead.isShown

        DuplicateTable {
            pane: root.model
        }
    }

    Conditional {
        condition: root.instead.isShown && root.instead.isBusy

        LoadingPane {
            title: root.instead.title
            detail: root.instead.detail
            progress: root.model.progress
            remaining: root.model.remaining
            style: LoadingStyle.Reading
        }
    }

    Conditional {
        condition: root.instead.isShown && !root.instead.isBusy

        ToolPlaceholder {
            icon: root.instead.icon
            title: root.instead.title
            detail: root.instead.detail
            actionTitle: root.instead.actionTitle
            onAction: root.model.chooseFolders()
        }
    }

    footer: Conditional {
        condition: !root.instead.isShown

        ToolFooter {
            selectionSummary: root.model.selectionSummary
            explanation: root.model.footerHint
            buttonTitle: root.model.deleteButtonTitle
            isEnabled: root.model.canDelete
            isBusy: root.model.isDeleting
            progress: root.model.deleteProgress
            canStop: true
            onAction: root.model.deleteSelected()
            onStop: root.model.stopDeleting()
        }
    }
}
