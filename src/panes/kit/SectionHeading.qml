import QtQuick
import Klarvik.Kit

/// The small capitals above a group.
Label {
    color: Theme.textTertiary
    size: 11
    weight: Font.DemiBold
    tracking: 0.4
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
