pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The first run: a page at a time, and below it where one is and the way on.
FocusScope {
    id: root

    required property OnboardingModel model

    // A key that is held must not run through all pages.
    function proceed(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.model.proceed();
    }

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: "Klarvik"
    Keys.onReturnPressed: event => root.proceed(event)
    Keys.onEnterPressed: event => root.proceed(event)

    // Pages that are through leave to the left, and the next one comes from the right.
    component Page: Item {
        id: page

        required property int place
        readonly property int offset: place - root.model.step

        width: root.width
        height: root.height - footer.height
        x: Kit.reduceMotion ? 0 : 36 * Math.sign(page.offset)
        opacity: page.offset === 0 ? 1 : 0
        visible: opacity > 0
        enabled: page.offset === 0

        Behavior on x {
            enabled: !Kit.reduceMotion
            NumberAnimation {
                duration: 280
                easing.type: Easing.OutCubic
            }
        }

        Behavior on opacity {
            enabled: !Kit.reduceMotion
            NumberAnimation {
                duration: 220
                easing.type: Easing.OutQuad
            }
        }
    }

    Page {
        place: 0

        WelcomePage {
            anchors.fill: parent
        }
    }

    Conditional {
        condition: Words.asksForFullDiskAccess

        Page {
            place: 1

            PermissionPage {
                anchors.fill: parent
                model: root.model
            }
        }
    }

    Page {
        place: root.model.stepCount - 1

        ReadyPage {
            anchors.fill: parent
            model: root.model
        }
    }

    OnboardingFooter {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        model: root.model
    }
}
