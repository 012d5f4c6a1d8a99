pragma Singleton

import QtQuick

// Which of the things under the pointer has the tooltip.
QtObject {
    property Item owner: null
}
