import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What the last clean freed, and the way back from it.
ResultBanner {
    id: root

    required property CleanedBannerModel model

    symbol: "checkmark.circle.fill"
    symbolColor: Theme.safe
    headline: model.headline
    detail: model.detail

    SecondaryButton {
        visible: root.model.isRestorable
        title: qsTr("Empty Trash")
        onAction: root.model.emptyTrash()
    }

    SecondaryButton {
        visible: root.model.isRestorable
        isEnabled: !root.model.isRestoring
        symbol: "arrow.uturn.backward"
        title: qsTr("Restore")
        onAction: root.model.restore()
    }

    SymbolButton {
        symbol: "xmark"
        title: qsTr("Dismiss")
        onAction: root.model.dismiss()
    }
}
