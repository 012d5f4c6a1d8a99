pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Shell

/// The updater's own window. As high as what it has to say.
Window {
    id: root

    required property UpdateWindowModel model
    readonly property int wantedHeight: page.y + page.height + 20

    title: qsTr("Software Update")
    color: Theme.canvas
    height: root.visible ? root.wantedHeight : 160
    minimumHeight: root.visible ? root.wantedHeight : 0
    maximumHeight: root.visible ? root.wantedHeight : 10000
    onClosing: root.model.dismiss()

    Shortcut {
        sequences: ["Esc", "Ctrl+W"]
        onActivated: root.model.dismiss()
    }

    KlarvikAppIcon {
        id: icon

        x: 20
        y: 20
        size: 56
    }

    Column {
        id: page

        anchors.left: icon.right
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 20
        y: 20
        spacing: 12

        Column {
            width: parent.width
            spacing: 4

            Label {
                width: parent.width
                text: root.model.title
                size: 15
                weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Label {
                width: parent.width
                text: root.model.detail
                size: 12
                color: Theme.textSecondary
                wrapMode: Text.Wrap
                maximumLineCount: 4
                lineHeight: 1.15
            }
        }

        Rectangle {
            width: parent.width
            height: 170
            visible: root.model.notes !== ""
            radius: 8
            color: Theme.raised
            border.width: 1
            border.color: Theme.hairline

            ToolScrollView {
                anchors.margins: 1
                topMargin: 10
                bottomMargin: 10
                activeFocusOnTab: true
                Accessible.role: Accessible.StaticText
                Accessible.name: root.model.notes

                Label {
                    x: 12
                    width: parent.width - 24
                    text: root.model.notes
                    size: 12
                    wrapMode: Text.Wrap
                    elide: Text.ElideNone
                    maximumLineCount: 10000
                    lineHeight: 1.2
                }
            }
        }

        TextButton {
            visible: root.model.hasNotesLink
            title: qsTr("Release notes")
            onAction: root.model.openNotes()
        }

        ProgressLine {
            width: parent.width
            visible: root.model.hasBar && root.model.barHasEnd
            value: root.model.progress
        }

        IndeterminateBar {
            width: parent.width
            visible: root.model.hasBar && !root.model.barHasEnd
        }

        Row {
            anchors.right: parent.right
            topPadding: 4
            spacing: 10

            SecondaryButton {
                focus: root.model.primary === ""
                title: root.model.secondary
                onAction: root.model.dismiss()
            }

            PrimaryButton {
                visible: root.model.primary !== ""
                focus: visible
                title: root.model.primary
                onAction: root.model.goOn()
            }
        }
    }
}
