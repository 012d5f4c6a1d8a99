pragma ComponentBehavior: Bound

import QtQuick
import QtQml
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Shell

/// The one main window. The first run stands in it until it is through.
Window {
    id: root

    required property MainWindowModel model

    objectName: "main"
    title: "Klarvik"
    color: Theme.canvas

    /// The keys of the application menu, heard in every window.
    Instantiator {
        model: root.model.commands.shortcuts

        delegate: Shortcut {
            required property int index
            required property string modelData

            sequences: [modelData]
            enabled: modelData !== ""
            context: Qt.ApplicationShortcut
            onActivated: root.model.commands.run(index)
        }
    }

    Loader {
        id: content

        anchors.fill: parent
        focus: true

        function show() {
            if (root.model.shell === null)
                content.setSource("qrc:/Klarvik/Shell/OnboardingView.qml", { model: root.model.onboarding });
            else
                content.setSource("AppShell.qml", { shell: root.model.shell });
        }

        Component.onCompleted: content.show()

        Connections {
            target: root.model

            function onShellChanged() {
                content.show();
            }
        }
    }
}
