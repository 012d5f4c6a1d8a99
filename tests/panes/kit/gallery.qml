pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

// Every element of the kit on one sheet.
Rectangle {
    id: root

    required property var progress
    required property var slices

    width: 1400
    height: 1130
    color: Theme.canvas

    ToolPane {
        x: 0
        y: 0
        width: 880
        height: 620
        title: "4.12 GB found"
        subtitle: "5 categories · 214 items"
        actionTitle: "Rescan"
        isBusy: true
        columns: [
            ColumnSpec { title: "CATEGORY" },
            ColumnSpec { title: "SAFETY"; width: 70 },
            ColumnSpec { title: "ITEMS"; width: 60; alignment: Qt.AlignRight },
            ColumnSpec { title: "SIZE"; width: 90; alignment: Qt.AlignRight }
        ]
        headerButtons: SecondaryButton { title: "Select safe only" }
        filters: FilterBar {
            FilterLabel { text: "Folders" }
            FilterChip { title: "Documents" }
            FilterChip { title: "Downloads"; isSelected: true }
            FilterChip { title: "Add folder…"; isDashed: true }
            FilterDivider {}
            FilterLabel { text: "Keep" }
            FilterMenu { entries: ["Newest copy", "Oldest copy"]; currentIndex: 0 }
            SearchField { placeholder: "Search apps" }
        }
        footer: ToolFooter {
            selectionSummary: "1.61 GB selected · 118 items"
            explanation: "Everything selected is marked Safe. Items move to the Trash."
            buttonTitle: "Clean 1.61 GB"
        }

        ToolScrollView {
            Repeater {
                model: [
                    { symbol: "hammer.fill", color: "blue", name: "Xcode Cache", level: Safety.Safe, items: 11, bytes: 1611100000, state: SelectionState.All },
                    { symbol: "memorychip", color: "orange", name: "App Caches", level: Safety.Safe, items: 127, bytes: 1211711000, state: SelectionState.Partial },
                    { symbol: "icloud.and.arrow.up.fill", color: "green", name: "iPhone Backups", level: Safety.Caution, items: 2, bytes: 888888888, state: SelectionState.None },
                    { symbol: "safari.fill", color: "cyan", name: "Browser Caches", level: Safety.Safe, items: 9, bytes: 211100000, state: SelectionState.All },
                    { symbol: "externaldrive.fill", color: "gray", name: "Leftovers", level: Safety.Caution, items: 65, bytes: 197000000, state: SelectionState.None }
                ]

                Column {
                    id: entry

                    required property var modelData
                    required property int index

                    width: parent.width

                    ToolGroupRow {
                        selection: entry.modelData.state
                        isExpanded: entry.index === 1
                        title: entry.modelData.name
                        leading: Symbol {
                            name: entry.modelData.symbol
                            color: Theme.systemColor(entry.modelData.color)
                        }

                        SafetyBadge { level: entry.modelData.level; Layout.preferredWidth: 70 }
                        MonospacedDigits { text: entry.modelData.items; Layout.preferredWidth: 60; size: 12; color: Theme.textSecondary; alignment: Qt.AlignRight }
                        MonospacedDigits { text: Kit.byteText(entry.modelData.bytes); color: Theme.textPrimary; Layout.preferredWidth: 90; alignment: Qt.AlignRight }
                    }

                    Repeater {
                        model: entry.index === 1 ? 2 : 0

                        ToolDetailRow {
                            required index

                            name: ["com.example.browser", "a much longer name of a cache that does not fit into the row however wide the window is drawn today"][index]
                            path: "file:///Users/ann/Library/Caches/com.example.browser"
                            dimmed: index === 1
                            leading: SelectionBox { selection: SelectionState.All; size: 14; label: "item" }

                            KeepDeleteBadge { Layout.preferredWidth: width; fate: parent && index === 0 ? KeepOrDelete.Keep : KeepOrDelete.Delete }
                            MonospacedDigits { text: Kit.byteText(411111111); Layout.preferredWidth: 90; size: 12; color: Theme.textSecondary; alignment: Qt.AlignRight }
                        }
                    }
                }
            }
        }
    }

    ToolFooter {
        x: 0
        y: 636
        width: 880
        selectionSummary: "summary"
        explanation: "explanation"
        buttonTitle: "Clean"
        isBusy: true
        canStop: true
        progress: root.progress
    }

    Row {
        x: 24
        y: 740
        spacing: 16

        PrimaryButton { title: "Clean 1.61 GB" }
        PrimaryButton { title: "Clean"; isEnabled: false }
        SecondaryButton { title: "Stop" }
        TextButton { title: "Open System Settings"; anchors.verticalCenter: parent.verticalCenter }
        SymbolButton { symbol: "gearshape"; title: "Settings" }
        RevealButton { url: "file:///Users/ann/a"; anchors.verticalCenter: parent.verticalCenter }
        CheckRow { title: "Launch at login"; isOn: true; anchors.verticalCenter: parent.verticalCenter }
        CheckRow { title: "Show in the menu bar"; isOn: false; anchors.verticalCenter: parent.verticalCenter }
        SelectionBox { selection: SelectionState.None; size: 16; label: "a"; anchors.verticalCenter: parent.verticalCenter }
        SelectionBox { selection: SelectionState.Partial; size: 16; label: "a"; anchors.verticalCenter: parent.verticalCenter }
        SelectionBox { selection: SelectionState.All; size: 16; label: "a"; anchors.verticalCenter: parent.verticalCenter }
    }

    Row {
        x: 24
        y: 800
        spacing: 30

        KlarvikAppIcon { size: 128 }
        KlarvikAppIcon { size: 64 }
        KlarvikAppIcon { size: 32 }
        KlarvikMark { size: 64 }
        KlarvikMark { size: 22 }
        KlarvikGlyph { size: 15 }
        SweepLoader { size: 44 }
        LiftingLoader { size: 44 }
        InlineLoader { size: 15 }
        InlineLoader { size: 30; tint: Theme.white(1) }
        ProgressLine { value: 0.4 }
    }

    IndeterminateBar { x: 24; y: 946; width: 400 }

    Grid {
        x: 24
        y: 966
        columns: 24
        spacing: 12

        Repeater {
            model: ["app.badge.fill", "archivebox.fill", "arrow.clockwise", "arrow.down.circle.fill", "arrow.triangle.2.circlepath", "arrow.uturn.backward", "bookmark.fill", "building.columns.fill", "chart.bar.fill", "checkmark", "checkmark.circle", "checkmark.circle.fill", "checkmark.shield.fill", "chevron.down", "chevron.left", "chevron.right", "chevron.up.chevron.down", "circle.dashed", "clock.arrow.2.circlepath", "cpu.fill", "cylinder.fill", "doc.badge.clock.fill", "doc.on.doc", "doc.text.fill", "doc.text.magnifyingglass", "envelope.fill", "exclamationmark.triangle.fill", "externaldrive", "externaldrive.fill", "folder", "folder.fill", "gear", "gearshape", "gearshape.fill", "globe", "hammer.fill", "icloud.and.arrow.up.fill", "icloud.fill", "info.circle", "iphone", "lock.shield.fill", "macwindow", "magnifyingglass", "memorychip", "memorychip.fill", "minus", "mug.fill", "plus", "safari.fill", "shield", "shippingbox.and.arrow.backward.fill", "shippingbox.fill", "sparkles", "square.dashed", "square.stack.3d.up.fill", "stethoscope", "trash", "trash.fill", "wrench.and.screwdriver.fill", "xmark", "xmark.circle", "xmark.circle.fill"]

            Symbol {
                required property string modelData

                name: modelData
                size: 17
            }
        }
    }

    Item {
        x: 900
        y: 20
        width: 480
        height: 250

        DonutChart {
            x: 10
            y: 20
            slices: root.slices
            size: 200
            thickness: 28
            centerTitle: "211.1 GB"
            centerSubtitle: "in use"
            highlighted: ""
        }

        Column {
            x: 236
            y: 20
            width: 240

            Repeater {
                model: root.slices

                DonutLegendRow {
                    required property donutSlice modelData
                    required property int index

                    width: 240
                    slice: modelData
                    share: [0.42, 0.31, 0.18, 0.09][index]
                    subtitle: index === 0 ? "88.7 GB" : ""
                    isHighlighted: index === 0
                    canTap: true
                }
            }
        }
    }

    Item {
        x: 900
        y: 290
        width: 480
        height: 170

        ToolPlaceholder {
            icon: "doc.on.doc"
            title: "Choose where to look"
            detail: "Klarvik compares contents, not names, so it only reads the folders you name."
            actionTitle: "Add a folder…"
        }
    }

    Item {
        x: 900
        y: 470
        width: 480
        height: 130

        ToolPlaceholder {
            title: "Hashing files"
            detail: "Klarvik compares contents, so identical files are found even when they were renamed."
            isBusy: true
        }
    }

    Item {
        x: 900
        y: 600
        width: 480
        height: 130

        ToolPlaceholder {
            title: "Measuring"
            detail: "Walking your folders."
            progress: 0.6
        }
    }

    Item {
        x: 900
        y: 740
        width: 480
        height: 150

        LoadingPane {
            title: "Moving to the Trash"
            detail: "Nothing is removed permanently."
            style: LoadingStyle.Working
        }
    }
}
