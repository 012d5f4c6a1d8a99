pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What the last removal moved, and whether its space is back.
ResultBanner {
    id: root

    required property SystemDataModel model

    symbol: model.trashHoldsIt ? "trash.fill" : "checkmark.circle.fill"
    symbolColor: model.trashHoldsIt ? Theme.textMuted : Theme.safe
    headline: model.bannerHeadline
    detail: model.bannerDetail
    help: model.bannerHelp

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
