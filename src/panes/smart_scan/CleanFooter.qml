import QtQuick
import Klarvik.Kit

/// What is selected, what becomes of it, and the button that does it.
ToolFooter {
    id: root

    required property CleanFooterModel model

    selectionSummary: model.selectionSummary
    explanation: model.hint
    buttonTitle: model.buttonTitle
    isEnabled: model.isEnabled
    isBusy: model.isBusy
    onTriggered: model.clean()
    onStopped: model.stop()
}
