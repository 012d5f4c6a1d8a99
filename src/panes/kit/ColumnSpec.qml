pragma ComponentBehavior: Bound

import QtQml

QtObject {
    required property string title
    property real width: -1
    property int alignment: Qt.AlignLeft
}
