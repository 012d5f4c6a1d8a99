pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// What a scan found. Space selects, Return opens, closes or shows the rest.
ColumnLayout {
    id: root

    required property ReviewTableModel model

    readonly property bool isInActiveWindow: Window.active

    spacing: 0
    onIsInActiveWindowChanged: {
        if (isInActiveWindow)
            root.model.windowActivated();
    }

    TableHeader {
        Layout.fillWidth: true
        title: qsTr("CATEGORY")
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        RowList {
            name: qsTr("Categories found")
            model: root.model
            groupOf: row => root.model.categoryRow(row)
            onActivated: row => root.model.activate(row)
            onToggled: row => root.model.toggleSelection(row)

            delegate: ReviewRow {
                id: row

                onRunAsked: root.model.runCommand(row.index)
            }
        }
    }

    Label {
        Layout.fillWidth: true
        Layout.leftMargin: Measures.side(root.width)
        Layout.rightMargin: Measures.side(root.width)
        Layout.topMargin: 8
        Layout.bottomMargin: 8
        visible: text.length > 0
        text: root.model.commandsNote
        size: 11
        color: Theme.textTertiary
    }
}
