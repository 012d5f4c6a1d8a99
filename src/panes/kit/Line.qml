pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A line of one point, as thick everywhere: in whole pixels of the screen. Its user gives it the
/// length.
Rectangle {
    readonly property real thickness: Math.round(Screen.devicePixelRatio) / Screen.devicePixelRatio

    implicitWidth: thickness
    implicitHeight: thickness
    color: Theme.hairlineStrong
}
