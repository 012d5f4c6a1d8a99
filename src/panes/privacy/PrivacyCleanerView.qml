pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Privacy section: the trails found, and what clearing each of them costs.
ToolPane {
    id: root

    required property PrivacyCleanerModel model

    readonly property placeholder instead: model.placeholder

    title: qsTr("Privacy")
    subtitle: model.subtitle
    actionTitle: qsTr("Rescan")
    isBusy: model.isScanning
    rowsShowLoader: true
    showsColumns: !instead.isShown
    columns: [
        ColumnSpec {
            title: qsTr("TRAIL")
        },
        ColumnSpec {
            title: qsTr("WHAT CLEARING COSTS")
            width: Measures.noteWidth
        },
        ColumnSpec {
            title: qsTr("ITEMS")
            width: Measures.figures(Measures.countWidth, root.width)
            alignment: Qt.AlignRight
        },
        ColumnSpec {
            title: qsTr("SIZE")
            width: Measures.figures(Measures.sizeWidth, root.width)
            alignment: Qt.AlignRight
        }
    ]
    onAction: model.performAction()

    Conditional {
        condition: !root.instead.isShown

        TrailTable {
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
        condition: !root.instead.isShown

        ToolFooter {
            selectionSummary: root.model.selectionSummary
            explanation: root.model.selectionHint
            buttonTitle: root.model.clearTitle
            isEnabled: root.model.canClear
            isBusy: root.model.isCleaning
            onAction: root.model.clear()
        }
    }

    ConfirmationDialog {
        isPresented: root.model.asksToSignOut
        title: qsTr("Sign out of sites?")
        message: root.model.signOutQuestion
        buttons: [
            DialogButton {
                title: qsTr("Cancel")
                role: ButtonRole.Cancel
                onTriggered: root.model.staySignedIn()
            },
            DialogButton {
                title: qsTr("Clear and Sign Out")
                role: ButtonRole.Destructive
                onTriggered: root.model.clearAndSignOut()
            }
        ]
    }
}
