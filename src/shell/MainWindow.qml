pragma ComponentBehavior: Bound

import QtQuick
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

    CommandShortcuts {
        commands: root.model.commands
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
