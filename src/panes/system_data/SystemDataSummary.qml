pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The ring of the kinds, whose legend are the rows below it, and what of it can go.
Item {
    id: root

    required property SystemDataModel model

    implicitHeight: 156

    Separator {
        anchors.bottom: parent.bottom
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        anchors.bottomMargin: 14
        spacing: 32

        DonutChart {
            id: chart

            Layout.alignment: Qt.AlignVCenter
            slices: root.model.slices
            size: 140
            thickness: 19
            centerTitle: root.model.totalText
            centerSubtitle: qsTr("System Data")
            highlighted: root.model.highlighted

            SliceHover {
                chart: chart
                onMoved: (slice, inside) => root.model.hover(slice, inside)
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            spacing: 6

            Label {
                Layout.fillWidth: true
                text: root.model.removableSummary
                size: 17
                weight: Font.DemiBold
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Label {
                Layout.fillWidth: true
                text: root.model.protectedSummary
                size: 13
                color: Theme.textSecondary
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Label {
                Layout.fillWidth: true
                visible: root.model.ledgerNote !== ""
                text: root.model.ledgerNote
                size: 12
                color: Theme.textTertiary
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Label {
                Layout.fillWidth: true
                Layout.topMargin: 6
                text: root.model.highlighted
                size: 12
                color: Theme.textTertiary
            }
        }
    }
}
