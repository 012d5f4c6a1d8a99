pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    // A list of donutSlice.
    required property var slices
    required property real size
    required property real thickness
    property string centerTitle
    property string centerSubtitle
    property string highlighted
    property real sweep: 1
    signal select(string id)

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.Chart
    Accessible.name: root.centerTitle + " " + root.centerSubtitle

    Repeater {
        model: Kit.donutArcs(root.slices)

        Arc {
            id: piece

            required property donutArc modelData
            readonly property real from: piece.modelData.drawnStart(root.sweep)
            readonly property real to: piece.modelData.drawnEnd(root.sweep)

            width: root.size
            height: root.size
            visible: piece.to > piece.from
            opacity: Kit.donutOpacity(piece.modelData.id, root.highlighted)
            color: piece.modelData.color
            thickness: root.thickness
            startAngle: piece.from
            sweepAngle: piece.to - piece.from

            Behavior on opacity {
                enabled: !Kit.reduceMotion
                NumberAnimation {
                    duration: 1600
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    Column {
        anchors.centerIn: parent
        spacing: 1

        // A long figure gets smaller before it comes to the ring.
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: (root.size - 2 * root.thickness) * 0.84
            text: root.centerTitle
            size: 21
            weight: Font.DemiBold
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            horizontalAlignment: Text.AlignHCenter
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.centerSubtitle
            size: 10.5
            color: Theme.textTertiary
        }
    }

    TapHandler {
        onTapped: eventPoint => {
            const id = Kit.donutSliceAt(root.slices, eventPoint.position.x, eventPoint.position.y, root.size, root.thickness);
            if (id !== "")
                root.select(id);
        }
    }
}
