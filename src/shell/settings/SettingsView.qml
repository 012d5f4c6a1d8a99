pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// A strip of tabs, and the page of the selected one.
Item {
    id: root

    required property SettingsModel model

    Row {
        id: strip

        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.horizontalCenter: parent.horizontalCenter
        height: 28
        spacing: 4
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Settings")

        Repeater {
            model: root.model.tabs

            SettingsTabButton {
                required property int index
                required property string modelData

                title: modelData
                isSelected: index === root.model.tab
                onAction: root.model.tab = index
            }
        }
    }

    Line {
        id: divider

        anchors.top: strip.bottom
        anchors.topMargin: 10
        anchors.left: parent.left
        anchors.right: parent.right
    }

    Loader {
        id: page

        anchors.top: divider.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom

        function show() {
            page.setSource(root.model.page, { model: root.model.pageModel });
        }

        Component.onCompleted: page.show()

        Connections {
            target: root.model

            function onTabChanged() {
                page.show();
            }
        }
    }

    /// One tab of the strip.
    component SettingsTabButton: Pressable {
        id: settingsTabButton

        required property bool isSelected

        implicitWidth: label.implicitWidth + 28
        implicitHeight: 28
        Accessible.role: Accessible.PageTab
        Accessible.selected: settingsTabButton.isSelected

        background: Rectangle {
            radius: Theme.cornerRadius
            color: settingsTabButton.isSelected ? Theme.white(0.12) : settingsTabButton.hovered ? Theme.white(0.06) : Theme.clear
        }

        contentItem: Label {
            id: label

            text: settingsTabButton.title
            size: 13
            color: settingsTabButton.isSelected ? Theme.textPrimary : Theme.textSecondary
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
