pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The sheet that asks for the one permission.
Sheet {
    id: root

    required property FullDiskAccessModel model

    readonly property list<string> steps: [
        qsTr("Click the button below — System Settings opens on the right page"),
        qsTr("Turn on the switch next to Klarvik"),
        qsTr("Quit and reopen Klarvik")
    ]

    isPresented: model.isPresented
    name: model.title
    description: model.text
    sheetWidth: 380
    padding: 24
    spacing: 14
    onCancelled: model.dismiss()

    component Sentence: Label {
        width: parent?.width ?? 0
        size: 12
        color: Theme.textSecondary
        wrapMode: Text.Wrap
        maximumLineCount: 10
        lineHeight: 1.15
    }

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.model.symbol
        size: 34
        color: root.model.isGranted ? Theme.safe : Theme.accent
    }

    Label {
        width: parent.width
        text: root.model.title
        size: 17
        weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
    }

    Sentence {
        text: root.model.text
        horizontalAlignment: Text.AlignHCenter
    }

    Column {
        width: parent.width
        visible: !root.model.isGranted
        spacing: 10

        Repeater {
            model: root.steps

            Row {
                id: step

                required property int index
                required property string modelData

                width: parent?.width ?? 0
                spacing: 10
                Accessible.role: Accessible.StaticText
                Accessible.name: step.modelData

                Rectangle {
                    width: 20
                    height: 20
                    radius: 10
                    color: Theme.white(0.12)

                    Label {
                        anchors.centerIn: parent
                        text: step.index + 1
                        size: 11
                        weight: Font.DemiBold
                    }
                }

                Sentence {
                    width: step.width - 30
                    topPadding: 2
                    text: step.modelData
                    color: Theme.textPrimary
                }
            }
        }
    }

    PrimaryButton {
        width: parent.width
        visible: !root.model.isGranted
        focus: !root.model.isGranted
        title: qsTr("Open System Settings")
        onAction: root.model.openSettings()
    }

    Sentence {
        visible: !root.model.isGranted
        size: 11
        color: Theme.textTertiary
        text: qsTr("You can skip this and grant it later in Settings. Klarvik still finds plenty without it.")
    }

    Sentence {
        visible: root.model.showsIdentityNote
        size: 11
        color: Theme.textTertiary
        text: qsTr("This build has no signing identity, so macOS treats every rebuild as a different app and forgets the permission. Released builds keep it.")
    }

    PrimaryButton {
        width: parent.width
        focus: root.model.isGranted
        fill: root.model.isGranted ? Theme.accent : Theme.white(0.12)
        title: root.model.footerTitle
        onAction: root.model.dismiss()
    }
}
