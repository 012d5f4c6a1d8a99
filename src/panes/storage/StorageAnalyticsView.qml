pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The Storage section: what fills the disk, what grows, and what cleaning has reclaimed.
ToolPane {
    id: root

    required property StorageAnalyticsModel model

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

    FolderBrowserView {
        visible: root.model.browser.isOpen
        browser: root.model.browser
    }

    ToolScrollView {
        visible: !root.model.browser.isOpen
        topMargin: 12

        StorageCard {
            heading: qsTr("WHAT FILLS THE DISK")

            StorageNote {
                visible: !root.model.isMeasured
                text: root.model.nothingMeasured
            }

            ProgressLine {
                visible: root.model.isMeasuring
                width: parent ? Math.min(parent.width, 420) : implicitWidth
                value: root.model.measureProgress
            }

            CompositionChart {
                visible: root.model.isMeasured
                width: parent ? parent.width : implicitWidth
                model: root.model
            }
        }

        StorageCard {
            heading: qsTr("GROWING FASTEST")

            StorageNote {
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

        StorageCard {
            heading: qsTr("RECLAIMED PER CLEAN")

            StorageNote {
                visible: text !== ""
                text: root.model.noTrend
            }

            CleanBars {
                visible: root.model.noTrend === ""
                width: parent ? parent.width : implicitWidth
                model: root.model
            }
        }
    }
}
