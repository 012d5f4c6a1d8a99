pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The System Data section: what hides in the space of that name, and a footer to move some of it
/// to the Trash.
ToolPane {
    id: root

    required property SystemDataModel model

    readonly property int body: model.body
    readonly property bool hasResult: body === SystemDataModel.Result

    title: model.title
    subtitle: model.subtitle
    actionTitle: model.actionTitle
    isBusy: model.isScanning
    rowsShowLoader: true
    onAction: model.performAction()

    // What the last removal moved, and whether its space is back.
    banner: Conditional {
        condition: root.model.isBannerShown

        ResultBanner {
            symbol: root.model.trashHoldsIt ? "trash.fill" : "checkmark.circle.fill"
            symbolColor: root.model.trashHoldsIt ? Theme.textMuted : Theme.safe
            headline: root.model.bannerHeadline
            detail: root.model.bannerDetail
            help: root.model.bannerHelp

            SecondaryButton {
                visible: root.model.trashHoldsIt
                isEnabled: root.model.canEmptyTrash
                title: qsTr("Empty Trash")
                onAction: root.model.emptyTrash()
            }

            SymbolButton {
                symbol: "xmark"
                title: qsTr("Dismiss")
                onAction: root.model.dismissBanner()
            }
        }
    }

    // How far an analysis is that runs while an earlier one is still shown.
    filters: Item {
        id: analysis

        visible: root.hasResult && root.model.isScanning
        width: parent ? parent.width : implicitWidth
        implicitHeight: 34

        ProgressLine {
            id: line

            anchors.left: parent.left
            anchors.leftMargin: Measures.side(analysis.width)
            anchors.verticalCenter: parent.verticalCenter
            value: root.model.scanProgress
        }

        Label {
            anchors.left: line.right
            anchors.right: parent.right
            anchors.leftMargin: Theme.partSpacing
            anchors.rightMargin: Measures.side(analysis.width)
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.scanLabel
            size: 12
            color: Theme.textTertiary
        }
    }

    Conditional {
        condition: root.body === SystemDataModel.Empty

        SystemDataEmptyState {
            anchors.fill: parent
            model: root.model
        }
    }

    Conditional {
        condition: root.body === SystemDataModel.Analysing

        ToolPlaceholder {
            progress: root.model.scanProgress
            title: root.model.scanLabel
            detail: ""
        }
    }

    Conditional {
        condition: root.hasResult

        SystemDataFindings {
            pane: root.model
        }
    }

    footer: Conditional {
        condition: root.hasResult

        ToolFooter {
            selectionSummary: root.model.selectionSummary
            explanation: qsTr("Only rows marked Safe to remove or Review first can be selected. Everything goes to Trash.")
            buttonTitle: root.model.removalTitle
            isEnabled: root.model.canRemove
            isBusy: root.model.isDeleting
            progress: root.model.deleteProgress
            canStop: true
            onAction: root.model.requestRemoval()
            onStop: root.model.stopRemoval()
        }
    }

    ConfirmationDialog {
        isPresented: root.model.confirmDelete
        title: root.model.confirmationTitle
        message: root.model.confirmationMessage
        buttons: [
            DialogButton {
                title: qsTr("Cancel")
                role: ButtonRole.Cancel
                onTriggered: root.model.cancelConfirmation()
            },
            DialogButton {
                title: qsTr("Move to Trash")
                onTriggered: root.model.confirmRemoval()
            }
        ]
    }
}
