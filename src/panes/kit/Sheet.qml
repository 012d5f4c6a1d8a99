pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

// Stands before the whole window until it is answered. Closes nothing by itself: whoever presents
// it clears `isPresented`.
Item {
    id: root

    required property bool isPresented
    // For assistive tools.
    required property string name
    required property string description
    property real sheetWidth: 400
    property alias padding: sheet.padding
    property alias spacing: body.spacing
    default property alias content: body.data
    // By Esc.
    signal cancelled()

    T.Popup {
        id: sheet

        // What had the focus, and is given it back.
        property Item opener: null

        parent: T.Overlay.overlay
        anchors.centerIn: parent
        visible: root.isPresented
        modal: true
        focus: true
        padding: 22
        closePolicy: T.Popup.NoAutoClose
        onAboutToShow: sheet.opener = root.Window.activeFocusItem
        onClosed: sheet.opener?.forceActiveFocus(Qt.PopupFocusReason)
        implicitWidth: root.sheetWidth
        implicitHeight: body.implicitHeight + 2 * sheet.padding

        T.Overlay.modal: Rectangle {
            color: Theme.shade(0.5)
        }

        background: Rectangle {
            radius: 12
            color: Theme.floating
            border.color: Theme.white(0.12)
        }

        contentItem: FocusScope {
            focus: true
            Accessible.role: Accessible.Dialog
            Accessible.name: root.name
            Accessible.description: root.description
            Keys.onEscapePressed: root.cancelled()

            Column {
                id: body
                anchors.left: parent.left
                anchors.right: parent.right
                spacing: 10
            }
        }
    }
}
