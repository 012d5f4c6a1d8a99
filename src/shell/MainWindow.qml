pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Onboarding
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
        anchors.fill: parent
        active: root.model.shell === null
        focus: active
        sourceComponent: OnboardingView {
            model: root.model.onboarding
        }
    }

    Loader {
        anchors.fill: parent
        active: root.model.shell !== null
        sourceComponent: AppShell {
            shell: root.model.shell
        }
    }
}
