import QtQuick
import QtQuick.Window
import Klarvik.Kit
import Klarvik.Shell

/// The window of the status item.
Window {
    id: root

    required property MenuBarModel model
    required property bool hasRoundCorners

    objectName: "popover"
    title: "Klarvik"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    width: 260
    height: content.implicitHeight
    color: Theme.clear

    Rectangle {
        anchors.fill: parent
        radius: root.hasRoundCorners ? 10 : 0
        color: Theme.raised
        border.width: 1
        border.color: Theme.white(0.14)

        NumberAnimation on opacity {
            from: Kit.reduceMotion ? 1 : 0
            to: 1
            duration: 120
        }

        MenuBarView {
            id: content

            anchors.fill: parent
            model: root.model
            focus: true
            Keys.onEscapePressed: root.close()
        }
    }
}
