pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The Smart Scan section: what the state calls for, and a footer to clean with.
ToolPane {
    id: root

    required property SmartScanModel model

    readonly property int body: model.body
    readonly property bool isReviewing: body === SmartScanModel.Review

    title: model.title
    subtitle: model.subtitle
    actionTitle: model.actionTitle
    onAction: model.performAction()

    headerButtons: SecondaryButton {
        visible: root.model.offersSafeOnly
        title: qsTr("Select safe only")
        onAction: root.model.selectSafeOnly()
    }

    banner: CleanedBanner {
        visible: root.model.banner.isShown
        model: root.model.banner
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            Conditional {
                condition: root.body === SmartScanModel.Preview

                ScanPreview {
                    anchors.fill: parent
                    model: root.model.preview
                }
            }

            ScanningTable {
                anchors.fill: parent
                visible: root.body === SmartScanModel.Scanning
                model: root.model
            }

            ReviewTable {
                anchors.fill: parent
                visible: root.isReviewing
                model: root.model.reviewTable
            }

            Conditional {
                condition: root.body === SmartScanModel.NothingFound

                ToolPlaceholder {
                    anchors.fill: parent
                    icon: "checkmark.circle"
                    title: qsTr("Nothing worth removing")
                    detail: qsTr("Klarvik found no junk in the places it looks.")
                }
            }
        }

        Conditional {
            condition: root.model.elsewhere.isShown
                       && (root.isReviewing || root.body === SmartScanModel.NothingFound)

            OtherToolsBar {
                Layout.fillWidth: true
                model: root.model.elsewhere
            }
        }
    }

    footer: CleanFooter {
        visible: root.isReviewing
        model: root.model.footer
    }

    RootRunSheet {
        model: root.model.rootRun
    }

    ConfirmationDialog {
        isPresented: root.model.isConfirming
        title: qsTr("Your selection includes Review items")
        message: Words.reviewItemsAreSelected
        buttons: [
            DialogButton {
                title: qsTr("Cancel")
                role: ButtonRole.Cancel
                onTriggered: root.model.cancelConfirmation()
            },
            DialogButton {
                title: qsTr("Clean anyway")
                role: ButtonRole.Destructive
                onTriggered: root.model.confirmClean()
            }
        ]
    }

    /// What is selected, what becomes of it, and the button that does it.
    component CleanFooter: ToolFooter {
        id: cleanFooter

        required property CleanFooterModel model

        selectionSummary: model.selectionSummary
        explanation: model.hint
        buttonTitle: model.shown.buttonLabel
        shown: model.shown
        onAction: model.clean()
        onStop: model.stop()
    }

    /// What the last clean freed, and the way back from it.
    component CleanedBanner: ResultBanner {
        id: cleanedBanner

        required property CleanedBannerModel model

        symbol: "checkmark.circle.fill"
        symbolColor: Theme.safe
        headline: model.headline
        detail: model.detail

        SecondaryButton {
            visible: cleanedBanner.model.isRestorable
            title: qsTr("Empty Trash")
            onAction: cleanedBanner.model.emptyTrash()
        }

        SecondaryButton {
            visible: cleanedBanner.model.isRestorable
            isEnabled: !cleanedBanner.model.isRestoring
            symbol: "arrow.uturn.backward"
            title: qsTr("Restore")
            onAction: cleanedBanner.model.restore()
        }

        SymbolButton {
            symbol: "xmark"
            title: qsTr("Dismiss")
            onAction: cleanedBanner.model.dismiss()
        }
    }
}
