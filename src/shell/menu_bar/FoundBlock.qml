pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Shell

/// What the last scan found: the first categories, and how much it is in all.
Rectangle {
    id: root

    required property MenuBarModel model

    implicitHeight: column.implicitHeight + 20
    radius: 8
    color: Theme.white(0.04)

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 10
        spacing: 6

        Repeater {
            model: root.model.categories

            RowLayout {
                id: line

                required property menuBarCategory modelData

                Layout.fillWidth: true
                spacing: 6
                Accessible.role: Accessible.StaticText
                Accessible.name: line.modelData.name + ", " + line.modelData.size

                Item {
                    Layout.preferredWidth: 20
                    Layout.preferredHeight: 14

                    Symbol {
                        anchors.centerIn: parent
                        name: line.modelData.symbol
                        size: 11
                        color: line.modelData.color
                    }
                }

                Label {
                    Layout.fillWidth: true
                    text: line.modelData.name
                    size: 11
                }

                MonospacedDigits {
                    text: line.modelData.size
                    size: 11
                    color: Theme.textMuted
                }
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.leftMargin: 26
            visible: text !== ""
            text: root.model.moreCategories
            size: 10
            color: Theme.textTertiary
        }

        Item {
            Layout.fillWidth: true
            Layout.topMargin: 2
            implicitHeight: 1

            Separator { color: Theme.hairlineStrong }
        }

        RowLayout {
            Layout.fillWidth: true

            Label {
                Layout.fillWidth: true
                text: qsTr("Total found")
                size: 12
                color: Theme.textMuted
            }

            MonospacedDigits {
                text: root.model.totalFound
                size: 14
                weight: Font.DemiBold
                color: Theme.textPrimary
            }
        }
    }
}
