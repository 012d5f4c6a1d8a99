import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SmartScan

/// What the last clean freed, and the way back from it.
Item {
    id: root

    required property CleanedBannerModel model

    width: parent ? parent.width : implicitWidth
    implicitHeight: content.implicitHeight + 24 + 14
    Accessible.role: Accessible.Notification
    Accessible.name: headline.text

    Rectangle {
        anchors.fill: content
        anchors.margins: -12
        anchors.leftMargin: -16
        radius: 10
        color: Theme.raised
        border.color: Theme.hairlineStrong
    }

    RowLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 12
        anchors.leftMargin: Theme.sidePadding + 16
        anchors.rightMargin: Theme.sidePadding + 12
        spacing: 12

        Symbol {
            name: "checkmark.circle.fill"
            size: 22
            color: Theme.safe
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            KitText {
                id: headline

                Layout.fillWidth: true
                text: root.model.headline
                weight: Font.Medium
            }

            KitText {
                Layout.fillWidth: true
                text: root.model.detail
                color: Theme.textSecondary
                size: 12
                elide: Text.ElideNone
                maximumLineCount: 3
                wrapMode: Text.WordWrap
            }
        }

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
}
