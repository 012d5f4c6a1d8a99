pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The General page of the settings.
ToolScrollView {
    id: root

    required property GeneralSettingsModel model

    spacing: 12
    topMargin: 12
    bottomMargin: 12

    SettingsRow {
        width: parent.width
        label: qsTr("Startup")

        CheckRow {
            title: qsTr("Launch at login")
            isOn: root.model.launchAtLogin.isOn
            onToggled: root.model.launchAtLogin.toggle()
        }

        SettingsNote {
            visible: root.model.launchAtLogin.isUnavailable
            text: Words.launchAtLoginUnavailable
        }

        CheckRow {
            title: Words.showInTray
            isOn: root.model.showMenuBar.isOn
            onToggled: root.model.showMenuBar.toggle()
        }
    }

    SettingsRow {
        width: parent.width
        label: qsTr("Deleting")

        CheckRow {
            title: qsTr("Move to Trash instead of deleting")
            isOn: root.model.useTrash.isOn
            onToggled: root.model.useTrash.toggle()
        }

        CheckRow {
            title: qsTr("Ask before removing Review items")
            isOn: root.model.confirmDelete.isOn
            onToggled: root.model.confirmDelete.toggle()
        }

        SettingsNote {
            text: qsTr("System folders, other user accounts and your document folders are always refused, regardless of these settings.")
        }
    }

    SettingsRow {
        width: parent.width
        visible: Words.asksForFullDiskAccess
        label: qsTr("Full Disk Access")

        Row {
            height: 20
            spacing: 14

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.isGranted ? qsTr("Granted") : qsTr("Not granted")
                color: root.model.isGranted ? Theme.safe : Theme.review
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            TextButton {
                anchors.verticalCenter: parent.verticalCenter
                title: qsTr("Open System Settings")
                onAction: root.model.openSystemSettings()
            }

            TextButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: !root.model.isGranted
                title: qsTr("Reopen Klarvik")
                onAction: root.model.reopen()
            }
        }
    }

    SettingsRow {
        width: parent.width
        label: qsTr("Scanning")

        CheckRow {
            title: qsTr("Measure every tool when Klarvik opens")
            isOn: root.model.backgroundScanOnLaunch.isOn
            onToggled: root.model.backgroundScanOnLaunch.toggle()
        }

        CheckRow {
            title: Words.includeDeveloperCaches
            isOn: root.model.includeDeveloperJunk.isOn
            onToggled: root.model.includeDeveloperJunk.toggle()
        }

        SettingsNote {
            text: qsTr("Turn this off if you do not write software — those categories will stop appearing.")
        }
    }

    SettingsRow {
        width: parent.width
        label: qsTr("About")

        Label {
            height: 20
            text: root.model.versionLine
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        SettingsNote {
            text: root.model.systemLine
        }

        Row {
            visible: root.model.hasWebsite || root.model.hasSupport
            spacing: 14

            TextButton {
                visible: root.model.hasWebsite
                title: qsTr("Privacy")
                onAction: root.model.openPrivacy()
            }

            TextButton {
                visible: root.model.hasWebsite
                title: qsTr("Terms")
                onAction: root.model.openTerms()
            }

            TextButton {
                visible: root.model.hasSupport
                title: qsTr("Support")
                onAction: root.model.openSupport()
            }
        }

        TextButton {
            title: qsTr("Show onboarding again")
            onAction: root.model.showOnboardingAgain()
        }
    }

    /// Small print below a setting.
    component SettingsNote: Label {
        width: Math.min(320, implicitWidth)
        size: 11
        color: Theme.textTertiary
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        maximumLineCount: 4
        lineHeight: 1.1
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    /// What a setting is about on the left, and the setting on the right.
    component SettingsRow: Item {
        id: settingsRow

        required property string label
        default property alias content: column.data

        implicitHeight: column.height
        Accessible.role: Accessible.Grouping
        Accessible.name: settingsRow.label

        Label {
            id: name

            width: 120
            height: 20
            text: settingsRow.label
            color: Theme.textSecondary
            horizontalAlignment: Text.AlignRight
        }

        Column {
            id: column

            anchors.left: name.right
            anchors.leftMargin: 16
            anchors.right: parent.right
            spacing: 4
        }
    }
}
