pragma ComponentBehavior: Bound

import TarnLoft.Controls

ConfirmationDialog {
    required property Question model

    title: model.title
    message: model.message
    confirmText: model.confirmText
    cancelText: model.cancelText
    alternativeText: model.alternativeText
    destructive: model.destructive
    cancelIsDefault: model.cancelIsDefault
    onConfirmed: model.answer = Question.Answer.Confirmed
    onAlternativeChosen: model.answer = Question.Answer.Alternative
}
