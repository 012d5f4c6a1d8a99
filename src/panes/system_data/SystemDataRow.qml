pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// One row of the findings: a kind, what an open kind is, or one of its items.
RowFrame {
    id: root

    required index
    required property int rowKind
    required property string kindName
    required property string name
    required property string detail
    required property string path
    required property url url
    required property string symbol
    required property color color
    required property int safety
    required property string safetyText
    required property int selection
    required property bool canToggle
    required property string selectionHelp
    required property string share
    required property string size
    required property bool isExpanded
    required description

    property SystemDataModel model

    readonly property bool isKind: rowKind === SystemDataTableModel.Kind
    readonly property bool isHeader: rowKind === SystemDataTableModel.Header
    readonly property bool isItem: rowKind === SystemDataTableModel.Item
    readonly property bool isHighlighted: isKind && model.highlighted === kindName

    tint: isHighlighted ? 0.06 : hovered && !isHeader ? 0.03 : isKind ? 0 : 0.02
    indent: isItem ? Measures.indent : 0
    canExpand: isKind
    isOpen: isExpanded
    showsParts: !isHeader
    isPressable: !isHeader
    implicitHeight: isHeader ? explanation.implicitHeight : Measures.rowHeight
    Accessible.role: isKind ? Accessible.TreeItem : isItem && canToggle ? Accessible.CheckBox : Accessible.StaticText
    Accessible.checkable: canToggle
    Accessible.checked: selection === SelectionState.All
    Accessible.checkStateMixed: selection === SelectionState.Partial
    onHoveredChanged: model.hover(kindName, hovered)
    // It may have faded out before it was kept for later.
    ListView.onReused: opacity = 1

    whole: ColumnLayout {
        id: explanation

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Measures.side(root.width) + Measures.indent
        anchors.rightMargin: Measures.side(root.width)
        visible: root.isHeader
        spacing: 8

        Label {
            Layout.fillWidth: true
            Layout.maximumWidth: 760
            Layout.topMargin: 10
            text: root.isHeader ? root.name : ""
            size: 12
            color: Theme.textSecondary
            lineHeight: 1.25
            elide: Text.ElideNone
            maximumLineCount: 5
            wrapMode: Text.WordWrap
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.bottomMargin: 8
            spacing: Theme.partSpacing

            SectionHeading {
                Layout.fillWidth: true
                text: qsTr("WHAT IT IS")
                size: 10
            }

            SectionHeading {
                Layout.preferredWidth: Measures.statusWidth
                text: qsTr("STATUS")
                size: 10
            }

            SectionHeading {
                Layout.preferredWidth: Measures.shareWidth
                text: qsTr("SHARE")
                size: 10
                horizontalAlignment: Text.AlignRight
            }

            SectionHeading {
                Layout.preferredWidth: Measures.sizeWidth
                text: qsTr("SIZE")
                size: 10
                horizontalAlignment: Text.AlignRight
            }
        }
    }

    Item {
        Layout.preferredWidth: 16
        Layout.preferredHeight: 16

        SelectionBox {
            visible: root.canToggle
            size: 16
            selection: root.selection
            label: root.name
            help: root.selectionHelp
            canToggle: root.canToggle
            activeFocusOnTab: false
            onToggled: root.pressBox()
        }
    }

    Symbol {
        Layout.preferredWidth: 14
        visible: root.isKind
        name: root.isExpanded ? "chevron.down" : "chevron.right"
        size: 10
        color: Theme.textTertiary
    }

    Symbol {
        Layout.preferredWidth: 20
        visible: root.isKind
        name: root.symbol
        size: 16
        color: root.color
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            size: root.isKind ? 13 : 12
            weight: root.isKind ? Font.Medium : Font.Normal
        }

        Label {
            Layout.fillWidth: true
            visible: !root.model.isLedger
            text: root.detail
            size: 10.5
            color: Theme.textTertiary
            elide: Text.ElideMiddle
        }

        // A sentence, which a narrow window cuts.
        ElidedText {
            Layout.fillWidth: true
            visible: root.model.isLedger
            text: root.detail
            size: 10.5
            color: Theme.textTertiary
            elide: Text.ElideRight
        }
    }

    RevealButton {
        visible: root.isItem && root.path !== ""
        activeFocusOnTab: root.ListView.isCurrentItem
        url: root.url
    }

    Label {
        Layout.preferredWidth: Measures.statusWidth
        text: root.safetyText
        size: 11
        color: root.safety === SystemDataModel.Safe ? Theme.safe : root.safety === SystemDataModel.Review ? Theme.review : Theme.textTertiary
    }

    NumberCell {
        Layout.preferredWidth: Measures.shareWidth
        text: root.share
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        text: root.size
        isStrong: root.isKind
    }
}
