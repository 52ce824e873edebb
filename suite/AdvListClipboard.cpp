#include "AdvListEditorPrivate.h"
#include "Balloon.h"
#include "EditMenu.h"
#include "PersianText.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

bool IsPastedLineBreak(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\n' || unit == u'\r' || unit == u'\v' || unit == u'\f' || unit == u'\u0085' ||
           unit == u'\u2028' || unit == u'\u2029';
}

// Names keep every sign that belongs to a text, the bidirectional marks among them: only line breaks, which
// become \n, tabs and what is no character are not taken as they come.
QString CleanPaste(const QString& text)
{
    QString clean;
    clean.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar character = text.at(place);
        const bool startsPair =
            character.isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
        const bool startsBreak = character == u'\r' && place + 1 < text.size() && text.at(place + 1) == u'\n';
        if (startsPair)
            clean += QStringView(text).mid(place++, 2);
        else if (startsBreak)
            continue;
        else if (IsPastedLineBreak(character))
            clean += u'\n';
        else if (character == u'\t')
            clean += u' ';
        else if (!character.isSurrogate() && character.category() != QChar::Other_Control &&
                 character != u'\uFEFF' && character != u'\uFFFE' && character != u'\uFFFF')
            clean += character;
    }
    return clean;
}

} // namespace

QString TAdvListEditorPer::TPrivate::SelectedText() const
{
    QStringList texts;
    for (int index = SelectionStart(); index < SelectionEnd(); ++index)
        texts << values[index].DisplayText;
    if (line->hasSelectedText()) {
        if (caret == SelectionEnd())
            texts.append(line->selectedText());
        else
            texts.prepend(line->selectedText());
    }
    return texts.join(separator.isNull() ? QChar(u'\n') : separator);
}

bool TAdvListEditorPer::TPrivate::Copy() const
{
    const bool selected = HasSelection() || line->hasSelectedText();
    if (selected)
        QGuiApplication::clipboard()->setText(SelectedText());
    return selected;
}

void TAdvListEditorPer::TPrivate::Cut()
{
    if (!CanChange())
        return;
    Copy();
    DeleteSelected();
}

void TAdvListEditorPer::TPrivate::DeleteSelected()
{
    if (!CanChange())
        return;
    if (HasSelection())
        RemoveAsDelete([this] { RemoveSelected(); });
    else if (line->hasSelectedText())
        line->del();
}

void TAdvListEditorPer::TPrivate::Paste(const QString& text)
{
    if (!CanChange() || text.isEmpty())
        return;
    const QString clean = CleanPaste(text);
    MoveCaret(caret, false);
    QString whole = line->text();
    if (line->hasSelectedText())
        whole.replace(line->selectionStart(), line->selectionLength(), clean);
    else
        whole.insert(line->cursorPosition(), clean);
    const bool hasParts = clean.contains(u'\n') || (!separator.isNull() && clean.contains(separator));
    if (!hasParts || !TakeParts(whole))
        PasteIntoLine(clean.trimmed().replace(u'\n', u' '));
}

void TAdvListEditorPer::TPrivate::PasteIntoLine(const QString& text)
{
    const qsizetype room = line->maxLength() - (line->text().size() - line->selectedText().size());
    const bool splitsPair = room > 0 && room < text.size() && text.at(room).isLowSurrogate();
    const QString fitting = text.left(qMax(qsizetype(0), splitsPair ? room - 1 : room));
    if (!fitting.isEmpty()) {
        line->insert(fitting);
        TextTyped();
    }
    if (fitting.size() < text.size())
        Balloon::Show(editor, QStringLiteral("این کادر تا %1 نویسه جا دارد؛ باقی متن چسبانده نشد.")
                                  .arg(PersianText::PersianDigits(QString::number(line->maxLength()))));
}

void TAdvListEditorPer::TPrivate::ShowMenu(const QPoint& position)
{
    if (popupMenu) {
        // An empty one would be an invisible window that takes the next key or click.
        if (!popupMenu->isEmpty())
            popupMenu->popup(position);
        return;
    }
    TEditCommands commands;
    commands.Undo = [this] { line->undo(); };
    commands.Redo = [this] { line->redo(); };
    commands.Cut = [this] { Cut(); };
    commands.Copy = [this] { Copy(); };
    commands.Paste = [this] { Paste(QGuiApplication::clipboard()->text()); };
    commands.Delete = [this] { DeleteSelected(); };
    commands.SelectAll = [this] { SelectAll(); };
    commands.CanUndo = line->isUndoAvailable();
    commands.CanRedo = line->isRedoAvailable();
    commands.CanChange = CanChange();
    commands.CanPaste = true;
    commands.HasSelection = HasSelection();
    EditMenu::Create(line, commands)->popup(position);
}
