import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Shell

/// What the Trash holds; pressing it anywhere but on its button shows the Trash.
Pressable {
    id: root

    required property TrashBlockModel model

    title: qsTr("Trash") + ", " + model.subtitle
    help: Words.openTrash
    implicitHeight: 50
    onAction: model.open()

    Rectangle {
        anchors.fill: parent
        radius: Theme.cornerRadius
        color: Theme.white(root.hovered ? 0.06 : 0)
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        spacing: 10

        Symbol {
            name: root.model.symbol
            size: 16
            color: Theme.textMuted
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Label {
                Layout.fillWidth: true
                text: qsTr("Trash")
            }

            Label {
                Layout.fillWidth: true
                text: root.model.subtitle
                size: 11
                color: Theme.textTertiary
            }
        }

        InlineLoader {
            visible: root.model.control === TrashBlockModel.Progress
            size: 15
            tint: Theme.textSecondary
        }

        TextButton {
            visible: root.model.controlTitle !== ""
            title: root.model.controlTitle
            help: root.model.controlHelp
            onAction: root.model.pressControl()
        }
    }
}
