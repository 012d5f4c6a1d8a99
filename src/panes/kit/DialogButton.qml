pragma ComponentBehavior: Bound

import QtQml
import Klarvik.Kit

QtObject {
    required property string title
    property int role: ButtonRole.Normal
    signal triggered()
}
