#include "AdvListEditorPrivate.h"

namespace {

// A list that is pasted by mistake must not bury the editor; what is beyond stays as text.
constexpr int MostPastedItems = 10000;

QStringList PartsOf(const QString& text, QChar separator)
{
    QStringList parts;
    for (const QString& pastedLine : text.split(u'\n')) {
        const QStringList names = separator.isNull() ? QStringList(pastedLine) : pastedLine.split(separator);
        for (const QString& name : names) {
            if (const QString trimmed = name.trimmed(); !trimmed.isEmpty())
                parts << trimmed;
        }
    }
    return parts;
}

} // namespace

void TAdvListEditorPer::TPrivate::Remove(int first, int last)
{
    const TAdvListValueItem removed = values[first];
    if (stroke.RemovedIndex < 0 || first < stroke.RemovedIndex) {
        stroke.RemovedIndex = first;
        stroke.RemovedItem = removed.DisplayText + u',' + removed.Value;
        KeepStroke();
    }
    HideCompletion();
    values.DeleteRange(first, last);
}

// The owner looks for removals in OnKeyUp of Delete.
void TAdvListEditorPer::TPrivate::RemoveAsDelete(const std::function<void()>& removal)
{
    const QPointer<TAdvListEditorPer> alive = editor;
    const auto raise = [this](const TKeyEvent& handler) {
        quint16 key = VirtualKey::Delete;
        // A copy, because the handler may replace or clear itself, or destroy the editor.
        if (const TKeyEvent running = handler)
            running(editor, key, Qt::NoModifier);
        return key != 0;
    };
    strokeKey = NoKey;
    stroke = {values.Count(), -1, {}, false};
    const int before = revision;
    if (!raise(editor->OnKeyDown) || !alive || revision != before)
        return;
    removal();
    if (alive)
        raise(editor->OnKeyUp);
}

void TAdvListEditorPer::TPrivate::RemoveSelected()
{
    const int first = SelectionStart();
    const int last = SelectionEnd();
    if (line->hasSelectedText())
        line->del();
    if (first < last)
        Remove(first, last);
}

bool TAdvListEditorPer::TPrivate::BecomesItem(const QString& text) const
{
    return !text.isEmpty() && (freeItems || matches.Reading(text) >= 0);
}

bool TAdvListEditorPer::TPrivate::Commit(const QString& text)
{
    const QString name = text.trimmed();
    if (!BecomesItem(name))
        return freeItems;
    const int entry = matches.Reading(name);
    const TAdvListValueItem item = entry >= 0 ? lookup[entry] : TAdvListValueItem{name, {}, -1};
    line->clear();
    Insert(item);
    return true;
}

void TAdvListEditorPer::TPrivate::Choose(int entry)
{
    HideCompletion();
    if (!CanChange() || entry < 0 || entry >= lookup.Count())
        return;
    const TAdvListValueItem item = lookup[entry];
    line->clear();
    Insert(item);
}

void TAdvListEditorPer::TPrivate::Insert(const TAdvListValueItem& item)
{
    const QPointer<TAdvListEditorPer> alive = editor;
    const int place = caret;
    values.Insert(place, item);
    if (!alive)
        return;
    MoveCaret(place + 1, false);
    // A copy, because the handler may replace or clear itself, or destroy the editor.
    const TValueEditDoneEvent running = editor->OnValueEditDone;
    if (!running)
        return;
    const int before = revision;
    QString text = item.DisplayText;
    running(editor, place, text);
    if (alive && revision == before && text != item.DisplayText)
        values.SetDisplayText(place, text);
}

// What of the text's parts becomes items; the others stay typed. False where none does.
bool TAdvListEditorPer::TPrivate::TakeParts(const QString& text)
{
    const QStringList parts = PartsOf(text, separator);
    if (std::none_of(parts.cbegin(), parts.cend(), [this](const QString& part) { return BecomesItem(part); }))
        return false;
    const QPointer<TAdvListEditorPer> alive = editor;
    QStringList rest;
    int taken = 0;
    line->clear();
    for (const QString& part : parts) {
        if (taken < MostPastedItems && Commit(part))
            ++taken;
        else if (alive)
            rest << part;
        if (!alive)
            return true;
    }
    PasteIntoLine(rest.join(separator.isNull() ? QChar(u' ') : separator));
    return true;
}

void TAdvListEditorPer::TPrivate::Offer(const QString& beginning)
{
    const QVector<int> entries = CanChange() ? matches.BeginningWith(beginning) : QVector<int>();
    if (entries.isEmpty()) {
        HideCompletion();
        return;
    }
    if (!completion) {
        completion = new TAdvListCompletion(editor, lookup);
        completion->OnChosen = [this](int entry) { Choose(entry); };
    }
    completion->Offer(entries, images);
}

void TAdvListEditorPer::TPrivate::TextTyped()
{
    if (line->text().trimmed().isEmpty())
        HideCompletion();
    else
        Offer(line->text());
}

void TAdvListEditorPer::TPrivate::HideCompletion() const
{
    if (completion)
        completion->hide();
}
