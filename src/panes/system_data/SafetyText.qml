import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// A verdict in words, in the colour that goes with it.
Label {
    required property int safety

    size: 11
    color: safety === SystemDataModel.Safe ? Theme.safe : safety === SystemDataModel.Review ? Theme.review : Theme.textTertiary
}
