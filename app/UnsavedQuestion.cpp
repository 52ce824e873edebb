#include "UnsavedQuestion.h"

#include "MessageDialog.h"

TUnsavedAnswer AskAboutUnsaved(QWidget* window, const QString& sentence)
{
    const auto button = [](const QString& caption, TUnsavedAnswer answer) {
        return TDialogButton{caption, static_cast<int>(answer)};
    };
    TMessageDialog box(TMessageDialog::TKind::Question, sentence,
                       {button(QStringLiteral("ذخیره"), TUnsavedAnswer::Save),
                        button(QStringLiteral("ذخیره نکن"), TUnsavedAnswer::Discard),
                        button(QStringLiteral("انصراف"), TUnsavedAnswer::Stay)},
                       window);
    return static_cast<TUnsavedAnswer>(box.Ask());
}
