pragma ComponentBehavior: Bound

import QtQuick
import QtQml
import Klarvik.Shell

/// The keys of the application menu, heard in every window.
Instantiator {
    id: root

    required property AppCommandsModel commands

    model: root.commands.shortcuts

    delegate: Shortcut {
        required property int index
        required property string modelData

        sequences: [modelData]
        enabled: modelData !== ""
        context: Qt.ApplicationShortcut
        onActivated: root.commands.run(index)
    }
}
