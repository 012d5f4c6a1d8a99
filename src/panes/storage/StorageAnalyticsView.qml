pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Storage section: what fills the disk, what grows, and what cleaning has reclaimed.
ToolPane {
    id: root

    required property StorageAnalyticsModel model

    /// A heading over a raised panel.
    component Card: Item {
        id: card

        required property string heading
        default property alias content: panel.content

        width: parent ? parent.width : implicitWidth
        implicitHeight: parts.implicitHeight + 24

        Column {
            id: parts

            x: Measures.side(card.width)
            width: card.width - 2 * x
            spacing: 10

            SectionHeading {
                text: card.heading
            }

            Panel {
                id: panel

                width: parent.width
                verticalPadding: 18
                spacing: 14
            }
        }
    }

    /// The line that stands where there is nothing to draw.
    component Note: Label {
        width: Math.min(640, parent ? parent.width : implicitWidth)
        size: 12
        color: Theme.textTertiary
        lineHeight: 1.3
        elide: Text.ElideNone
        maximumLineCount: 4
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    function tellThatChartsAppeared() {
        if (root.enabled)
            root.model.chartsAppeared();
    }

    title: qsTr("Storage")
    subtitle: model.subtitle
    actionTitle: model.actionTitle
    isBusy: model.isMeasuring
    rowsShowLoader: true
    onAction: model.performAction()
    onEnabledChanged: tellThatChartsAppeared()
    Component.onCompleted: tellThatChartsAppeared()

    Conditional {
        condition: root.model.browser.isOpen

        FolderBrowserView {
            browser: root.model.browser
        }
    }

    ToolScrollView {
        visible: !root.model.browser.isOpen
        topMargin: 12

        Card {
            heading: qsTr("WHAT FILLS THE DISK")

            Conditional {
                condition: !root.model.isMeasured

                Note {
                    text: root.model.nothingMeasured
                }
            }

            Conditional {
                condition: root.model.isMeasuring

                ProgressLine {
                    width: parent ? Math.min(parent.width, 420) : implicitWidth
                    value: root.model.measureProgress
                }
            }

            Conditional {
                condition: root.model.isMeasured

                CompositionChart {
                    width: parent ? parent.width : implicitWidth
                    model: root.model
                }
            }
        }

        Card {
            heading: qsTr("GROWING FASTEST")

            Note {
                visible: text !== ""
                text: root.model.noGrowth
            }

            Repeater {
                model: root.model.growth

                Item {
                    id: grown

                    required property growthRow modelData
                    readonly property string description: grown.modelData.name + ", " + grown.modelData.figure

                    // A figure stands near what it belongs to.
                    width: parent ? Math.min(parent.width, 560) : implicitWidth
                    implicitHeight: 20
                    Accessible.role: Accessible.ListItem
                    Accessible.name: grown.description

                    Label {
                        anchors.left: parent.left
                        anchors.right: figure.left
                        anchors.rightMargin: Theme.partSpacing
                        anchors.verticalCenter: parent.verticalCenter
                        text: grown.modelData.name
                        elide: Text.ElideMiddle
                    }

                    MonospacedDigits {
                        id: figure

                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        text: grown.modelData.figure
                        size: 13
                        color: Theme.review
                    }
                }
            }
        }

        Card {
            heading: qsTr("RECLAIMED PER CLEAN")

            Note {
                visible: text !== ""
                text: root.model.noTrend
            }

            Conditional {
                condition: root.model.noTrend === ""

                CleanBars {
                    width: parent ? parent.width : implicitWidth
                    model: root.model
                }
            }
        }
    }
}
