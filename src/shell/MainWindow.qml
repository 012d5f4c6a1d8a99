import QtQuick
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Shell

/// The one main window.
Window {
    id: root

    required property AppShellModel shell

    objectName: "main"
    title: "Klarvik"
    minimumWidth: 920
    minimumHeight: 640
    width: 1080
    height: 720
    visible: true
    color: Theme.canvas

    AppShell {
        anchors.fill: parent
        shell: root.shell
    }
}
