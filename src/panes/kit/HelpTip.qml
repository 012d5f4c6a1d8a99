import QtQuick
import Klarvik.Kit

// The tooltip of what it is put into, made when the pointer comes. Its text is always that of the
// moment, and of things inside each other only the innermost has one.
Loader {
    id: root

    property string text: ""
    property bool hovered: false
    property bool isBeside: false

    function isInside(outer: Item): bool {
        for (let item = root.parent; item; item = item.parent) {
            if (item === outer)
                return true;
        }
        return false;
    }

    function look() {
        const isWanted = root.hovered && root.text !== "";
        if (isWanted === root.active)
            return;
        if (isWanted) {
            if (!HelpTips.owner || root.isInside(HelpTips.owner))
                HelpTips.owner = root.parent;
            root.anchors.fill = root.parent;
            root.active = true;
            root.setSource("KitToolTip.qml");
        } else {
            if (HelpTips.owner === root.parent)
                HelpTips.owner = null;
            root.active = false;
        }
    }

    active: false
    onHoveredChanged: root.look()
    onTextChanged: root.look()
    onLoaded: {
        root.item.isBeside = root.isBeside;
        root.item.text = Qt.binding(() => root.text);
        root.item.shown = Qt.binding(() => !HelpTips.owner || HelpTips.owner === root.parent);
    }
    Component.onDestruction: {
        if (HelpTips.owner === root.parent)
            HelpTips.owner = null;
    }
}
