pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

SymbolButton {
    id: root

    required property url url

    symbol: "magnifyingglass"
    title: Words.showInFileManager
    help: root.title
    size: 11
    slot: 20
    color: Theme.textTertiary
    hoverColor: Theme.accent
    onAction: Kit.reveal(root.url)
}
