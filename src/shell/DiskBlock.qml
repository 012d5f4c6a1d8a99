import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Shell

/// How full the disk is.
ColumnLayout {
    id: root

    required property DiskBlockModel model

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: model.volumeName + ", " + model.percentFull + ", " + model.freeLine

    RowLayout {
        Layout.fillWidth: true
        spacing: 8

        Label {
            Layout.fillWidth: true
            text: root.model.volumeName
            size: 12
            elide: Text.ElideMiddle
        }

        Label {
            text: root.model.percentFull
            size: 11
            color: Theme.textSecondary
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 6
        radius: 3
        color: Theme.white(0.12)

        Rectangle {
            width: parent.width * root.model.usedFraction
            height: parent.height
            radius: 3
            color: root.model.isNearlyFull ? Theme.review : Theme.white(0.56)
        }
    }

    MonospacedDigits {
        text: root.model.freeLine
        size: 11
        color: Theme.textTertiary
    }
}
