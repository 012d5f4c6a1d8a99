import QtQuick

// A list of choices over everything else. Up and Down move, Return takes, Esc closes. It is made when
// it is first opened: a window has many menus, of which few are.
Loader {
    id: root

    required property list<string> entries
    // What stands at the end of each entry, such as the keys for it; none where it is shorter.
    property list<string> hints
    property int currentIndex: -1
    property bool marksCurrent: false
    readonly property bool isOpen: root.item?.visible ?? false
    signal chosen(int index)
    // For the list alone.
    signal opening()

    function open() {
        if (!root.item)
            root.setSource("MenuList.qml", { menu: root });
        root.opening();
    }

    width: root.item?.width ?? 0
}
