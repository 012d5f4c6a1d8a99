import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What is selected, what becomes of it, and the button that does it.
ToolFooter {
    id: root

    required property CleanFooterModel model

    selectionSummary: model.selectionSummary
    explanation: model.hint
    buttonTitle: model.shown.buttonLabel
    shown: model.shown
    onAction: model.clean()
    onStop: model.stop()
}
