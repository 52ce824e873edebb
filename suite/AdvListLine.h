#pragma once

#include <QLineEdit>

class TAdvListEditorPer;

/// The box for typing of a token editor. It has the focus in the editor's place; keys go to the editor, which
/// hands back those that are the text's.
class TAdvListLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit TAdvListLine(TAdvListEditorPer* editor);

    /// What the toolkit's own line does with a key; false where the key means nothing to the text.
    bool TakeKey(QKeyEvent* event);
    void TakeInputMethod(QInputMethodEvent* event);
    /// The width that the text needs, with what is being composed and room for the caret.
    int NeededWidth() const;
    /// Whether an input method is at work on a character.
    bool IsComposing() const { return !composed_.isEmpty(); }

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// Without this the line follows its content: Latin letters jump to the other end of the row.
    void StandAtBeginning();

    TAdvListEditorPer* editor_;
    QString composed_;
};
