pragma ComponentBehavior: Bound

import QtQuick

Row {
    id: root

    function centreAll() {
        for (let index = 0; index < root.children.length; ++index)
            root.children[index].anchors.verticalCenter = root.verticalCenter;
    }

    onChildrenChanged: root.centreAll()
}
