pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// One installed application.
RowFrame {
    id: root

    required index
    required property string name
    required property string bundle
    required property string path
    required property url url
    required property string size
    required property url icon
    required description

    Accessible.role: Accessible.Button

    Item {
        Layout.preferredWidth: 24
        Layout.preferredHeight: 24

        Image {
            id: picture

            // One of a single point stands for none.
            readonly property bool isShown: status === Image.Ready && implicitWidth > 1

            anchors.fill: parent
            visible: isShown
            source: root.icon
            sourceSize.width: 24 * Screen.devicePixelRatio
            sourceSize.height: 24 * Screen.devicePixelRatio
            fillMode: Image.PreserveAspectFit
        }

        Symbol {
            anchors.centerIn: parent
            visible: !picture.isShown
            name: "app.badge.fill"
            size: 18
            color: Theme.textTertiary
        }
    }

    ColumnLayout {
        spacing: 1

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            weight: Font.Medium
        }

        ElidedText {
            Layout.fillWidth: true
            text: root.bundle
            size: 10.5
            color: Theme.textTertiary
        }
    }

    RevealButton {
        activeFocusOnTab: root.ListView.isCurrentItem
        url: root.url
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        text: root.size
        isStrong: true
    }

    Symbol {
        Layout.preferredWidth: 12
        name: "chevron.right"
        size: 10
        color: Theme.textTertiary
    }
}
