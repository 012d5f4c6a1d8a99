pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A box and its title on one line.
CheckRow {
}
