pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Rectangle {
    id: root

    required property string title
    required property string subtitle
    property string actionTitle
    property bool hasAction: true
    property bool isActionEnabled: true
    property bool isBusy: false
    property bool rowsShowLoader: false
    property alias columns: header.columns
    // Headings stand over rows only.
    property bool showsColumns: true
    property alias headerButtons: extraButtons.data
    property alias banner: bannerSlot.data
    property alias filters: filterSlot.data
    default property alias rows: rowsSlot.data
    property alias footer: footerSlot.data
    signal action()

    readonly property toolPaneState shown: Kit.toolPane(root.actionTitle, root.hasAction, root.isBusy, root.rowsShowLoader)

    color: Theme.canvas

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            spacing: 10
            Layout.fillWidth: true
            Layout.leftMargin: Measures.side(root.width)
            Layout.rightMargin: Measures.side(root.width)
            Layout.topMargin: 18
            Layout.bottomMargin: 16

            ColumnLayout {
                spacing: 3
                Layout.fillWidth: true

                Label {
                    objectName: "paneTitle"
                    text: root.title
                    font: Theme.paneTitle
                    Layout.fillWidth: true
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Label {
                    objectName: "paneSubtitle"
                    text: Kit.withSizesUnbroken(root.subtitle)
                    size: 12
                    color: Theme.textSecondary
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                    Layout.fillWidth: true
                    Accessible.role: Accessible.StaticText
                    Accessible.name: root.subtitle
                }
            }

            CenteredRow {
                id: extraButtons
                spacing: 8
                visible: children.length > 0
            }

            PrimaryButton {
                objectName: "mainButton"
                title: root.shown.buttonLabel
                visible: root.shown.showsButton
                isEnabled: root.isActionEnabled
                onAction: root.action()
            }
        }

        IndeterminateBar {
            objectName: "bar"
            visible: root.shown.showsBar
            Layout.fillWidth: true
            Layout.preferredHeight: 2
        }

        Column {
            id: bannerSlot
            visible: children.length > 0
            Layout.fillWidth: true
        }

        Column {
            id: filterSlot
            visible: children.length > 0
            Layout.fillWidth: true
        }

        ColumnHeader {
            id: header
            objectName: "columnHeader"
            visible: root.showsColumns && header.columns.length > 0
            Layout.fillWidth: true
        }

        Item {
            id: rowsSlot
            Layout.fillWidth: true
            Layout.fillHeight: true
        }

        Column {
            id: footerSlot
            visible: children.length > 0
            Layout.fillWidth: true
        }
    }
}
