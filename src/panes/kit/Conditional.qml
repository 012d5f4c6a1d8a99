import QtQuick

// Makes what stands in it, next to itself, while `condition` holds, and else takes it away: what is not
// shown takes no time when a window is made, and no memory. What must keep its state is hidden instead.
Repeater {
    required property bool condition

    model: condition ? 1 : 0
}
