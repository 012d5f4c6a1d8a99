pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Uninstaller section: every application, or the opened one with what it left behind.
ToolPane {
    id: root

    required property AppUninstallerModel model

    readonly property placeholder instead: model.placeholder
    readonly property list<ColumnSpec> appColumns: [
        ColumnSpec {
            title: Words.applicationColumn
        },
        ColumnSpec {
            title: qsTr("TOTAL")
            width: Measures.sizeWidth
            alignment: Qt.AlignRight
        },
        ColumnSpec {
            title: ""
            width: 12
        }
    ]
    readonly property list<ColumnSpec> leftoverColumns: [
        ColumnSpec {
            title: qsTr("LEFTOVER")
        },
        ColumnSpec {
            title: qsTr("WHAT IT IS")
            width: Measures.noteWidth
        },
        ColumnSpec {
            title: qsTr("SIZE")
            width: Measures.sizeWidth
            alignment: Qt.AlignRight
        }
    ]

    title: model.title
    subtitle: model.subtitle
    hasAction: false
    isBusy: model.isUninstalling
    showsColumns: !instead.isShown
    // The linter does not know that a list property takes another one's value.
    columns: model.isDetail ? leftoverColumns : appColumns // qmllint disable type

    banner: Conditional {
        condition: root.model.isDetail && root.model.removalExplanation !== ""

        RemovalAdvice {
            command: root.model.removalCommand
            explanation: root.model.removalExplanation
            alsoRemoved: root.model.alsoRemoved
        }
    }

    filters: FilterBar {
        implicitHeight: Measures.filterHeight

        SearchField {
            visible: !root.model.isDetail
            placeholder: qsTr("Search apps")
            text: root.model.searchText
            onEdited: text => root.model.searchText = text
        }

        FilterLabel {
            visible: !root.model.isDetail
            text: qsTr("Sorted by total size")
        }

        FilterChip {
            id: backChip

            visible: root.model.isDetail
            symbol: "chevron.left"
            title: qsTr("All apps")
            help: qsTr("Back to the list of all apps")
            pressableEnabled: !root.model.isUninstalling
            onAction: {
                root.model.showAllApps();
                apps.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }

    AppTable {
        id: apps

        visible: !root.model.isDetail && !root.instead.isShown
        pane: root.model
        onLeftWithFocus: backChip.forceActiveFocus(Qt.OtherFocusReason)
    }

    Conditional {
        condition: root.model.isDetail && !root.instead.isShown

        LeftoverTable {
            pane: root.model
        }
    }

    Conditional {
        condition: root.instead.isShown

        ToolPlaceholder {
            isBusy: root.instead.isBusy
            icon: root.instead.icon
            title: root.instead.title
            detail: root.instead.detail
        }
    }

    footer: Conditional {
        condition: root.model.isDetail

        ToolFooter {
            selectionSummary: root.model.selectionSummary
            explanation: root.model.selectionHint
            buttonTitle: root.model.actionTitle
            isEnabled: root.model.canUninstall
            isBusy: root.model.isUninstalling
            onAction: root.model.uninstall()
        }
    }
}
