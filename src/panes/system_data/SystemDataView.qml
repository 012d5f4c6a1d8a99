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

    banner: RemovalBanner {
        visible: root.model.isBannerShown
        model: root.model
    }

    filters: AnalysisProgress {
        visible: root.hasResult && root.model.isScanning
        label: root.model.scanLabel
        progress: root.model.scanProgress
    }

    SystemDataEmptyState {
        anchors.fill: parent
        visible: root.body === SystemDataModel.Empty
        model: root.model
    }

    ToolPlaceholder {
        visible: root.body === SystemDataModel.Analysing
        progress: root.model.scanProgress
        title: root.model.scanLabel
        detail: ""
    }

    SystemDataFindings {
        visible: root.hasResult
        pane: root.model
    }

    footer: ToolFooter {
        visible: root.hasResult
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
