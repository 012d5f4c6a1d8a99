pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// What an analysis will look at, for a pane that has not made one yet.
Item {
    id: root

    required property SystemDataModel model

    /// What a line is about, and a word about it.
    component StateRow: RowLayout {
        id: row

        required property string name
        required property string word
        property color wordColor: Theme.textTertiary
        readonly property string description: row.name + ", " + row.word

        Layout.preferredHeight: 38
        spacing: Theme.partSpacing
        Accessible.role: Accessible.ListItem
        Accessible.name: row.description

        Label {
            Layout.fillWidth: true
            text: row.name
        }

        Label {
            text: row.word
            size: 11
            color: row.wordColor
        }
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        anchors.topMargin: 12
        spacing: 12

        SectionHeading {
            text: qsTr("WHAT THE ANALYSIS WILL LOOK AT")
        }

        Panel {
            Layout.fillWidth: true

            ColumnLayout {
                width: parent.width
                spacing: 0

                StateRow {
                    Layout.fillWidth: true
                    name: Words.analysisFindsSafe
                    word: root.model.safetyText(SystemDataModel.Safe)
                    wordColor: Theme.safe
                }

                StateRow {
                    Layout.fillWidth: true
                    name: Words.analysisFindsSnapshots
                    word: root.model.safetyText(SystemDataModel.Review)
                    wordColor: Theme.review
                }

                StateRow {
                    Layout.fillWidth: true
                    name: Words.analysisFindsProtected
                    word: root.model.safetyText(SystemDataModel.Protected)
                }
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.maximumWidth: 640
            text: qsTr("Walking these folders takes about 40 seconds, which is why it is not part of a normal scan. It reads sizes only — nothing is selected, moved or deleted until you say so.")
            color: Theme.textTertiary
            size: 12
            lineHeight: 1.3
            elide: Text.ElideNone
            maximumLineCount: 4
            wrapMode: Text.WordWrap
        }

        Panel {
            Layout.fillWidth: true
            Layout.topMargin: 8

            ColumnLayout {
                width: parent.width
                spacing: 0

                StateRow {
                    Layout.fillWidth: true
                    name: qsTr("System Data · after analysis")
                    word: qsTr("Unknown until it is measured")
                }

                StateRow {
                    Layout.fillWidth: true
                    visible: !root.model.hasFullDiskAccess
                    name: qsTr("Needs Full Disk Access")
                    word: qsTr("Not granted")
                    wordColor: Theme.review
                }
            }
        }
    }
}
