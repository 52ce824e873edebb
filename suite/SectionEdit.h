#pragma once

#include "ControlEvents.h"
#include "SectionText.h"
#include "SuiteExport.h"

#include <functional>
#include <QLineEdit>
#include <QTimer>

class QMenu;

/// What edits typed by section share: the text, its events, pasting, the error sign. A date edit and a time
/// edit say what their text means.
class SUITE_EXPORT TSectionEdit : public QLineEdit, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(int MaxLength READ MaxLength)
    Q_PROPERTY(int DelayTimeCount READ DelayTimeCount WRITE SetDelayTimeCount)
    Q_PROPERTY(bool CanTakeFocus READ CanTakeFocus WRITE SetCanTakeFocus)

public:
    /// The sections in the order in which they are typed, and the sign between them.
    TSectionEdit(const QList<TSectionText::TSection>& sections, QChar separator, QWidget* parent);
    ~TSectionEdit() override;

    /// The longest text, which the sections give.
    int MaxLength() const { return static_cast<int>(typed_.MaxLength()); }
    /// Milliseconds between the last change of the value and OnEditValueChange. 300 by default.
    int DelayTimeCount() const { return delay_.interval(); }
    void SetDelayTimeCount(int milliseconds) { delay_.setInterval(qMax(0, milliseconds)); }
    /// The flag that frames consult before they name this edit as the one holding their criterion's value.
    bool CanTakeFocus() const { return canTakeFocus_; }
    void SetCanTakeFocus(bool can) { canTakeFocus_ = can; }

    /// Empties the edit, without an event for the owner's value.
    void Init();
    /// The text as far as it is typed, in ASCII digits.
    QString Text() const { return typed_.Text(); }
    /// Shows a text; one that makes no value is shown too, marked as wrong. Raises OnChange where the text
    /// differs; OnEditValueChange is for what the user changes.
    virtual void SetText(const QString& text);
    void SetEnabled(bool enabled) { setEnabled(enabled); } ///< a disabled edit shows its text in grey
    /// Shows the edit as wrong, with a balloon of one sentence, until the user types.
    void ShowError(const QString& sentence);
    bool HasError() const { return error_; } ///< shown as wrong, by ShowError or by its own text

    /// On every change of Text(), by the user or by code.
    TNotifyEvent OnChange;
    /// Once, DelayTimeCount after the user's last change that makes another value; at once when the edit is
    /// left. What is still half typed waits.
    TNotifyEvent OnEditValueChange;

Q_SIGNALS:
    void editValueChanged(); ///< with OnEditValueChange

protected:
    /// What a complete text means; empty where it means nothing.
    virtual QString ValueOf(const QString& text) const = 0;
    /// Why a text is no value, as a sentence for the user.
    virtual QString ProblemOf(const QString& text) const = 0;
    /// The edit's own text for one that is pasted; empty where it is refused.
    virtual QString Pasted(const QString& text) const = 0;
    virtual QString PasteRefusal() const = 0;
    virtual bool HandleOwnKey(QKeyEvent* event) = 0;
    virtual void AddToMenu(QMenu* menu);
    /// Runs after each change of the text; may change it further.
    virtual void TextChanged(const QString& /*before*/) {}

    TSectionText& Typed() { return typed_; }
    const TSectionText& Typed() const { return typed_; }
    bool CanChange() const { return isEnabled() && !isReadOnly(); }
    /// A step of the user's: undone as one, told like typing.
    void Assign(const QString& text);
    void ShowTyped();
    void Refuse(const QString& sentence);

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool HandleKey(QKeyEvent* event);
    bool HandleEditKey(const QKeyEvent* event);
    void Type(const QString& text);
    void Edit(const std::function<bool(TSectionText&)>& change);
    bool Paste(const QString& text);
    void TextMayHaveChanged(bool byUser);
    void AnnounceValue();
    void Settle();
    void ClearError();

    TSectionText typed_;
    QTimer delay_;
    QString toldText_;
    QString toldValue_;
    bool canTakeFocus_ = true;
    bool error_ = false;
    bool showing_ = false; // the line is being written from here
};
