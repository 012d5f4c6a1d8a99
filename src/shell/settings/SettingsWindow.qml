pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Shell

/// The window of the settings.
Window {
    id: root

    required property SettingsModel model

    title: qsTr("Settings")
    color: Theme.canvas

    SettingsView {
        anchors.fill: parent
        model: root.model
    }

    Shortcut {
        sequences: ["Esc", "Ctrl+W"]
        onActivated: root.close()
    }
}
