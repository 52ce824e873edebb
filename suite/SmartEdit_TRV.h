#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <memory>
#include <QLineEdit>

/// `Text` is what is about to be pasted or dropped, as it came; what the handler leaves of it goes in.
using TPasteEvent = std::function<void(QObject* Sender, QString& Text)>;

/// One-line edit for text, whole numbers and money. Digits of all three scripts and both decimal and grouping
/// signs are taken and become ASCII as they are typed or pasted. Text(), Value and the statements made from
/// them hold ASCII digits; the font draws them as the user reads them.
class SUITE_EXPORT TSmartEdit_TRV : public QLineEdit, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(TEditType EditType READ EditType WRITE SetEditType)
    Q_PROPERTY(TValueType ValueType READ ValueType WRITE SetValueType)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE SetMaxLength)
    Q_PROPERTY(bool DigitsOnly READ DigitsOnly WRITE SetDigitsOnly)
    Q_PROPERTY(int DelayTimeCount READ DelayTimeCount WRITE SetDelayTimeCount)
    Q_PROPERTY(int Precision READ Precision WRITE SetPrecision)
    Q_PROPERTY(bool Calculator READ Calculator WRITE SetCalculator)
    Q_PROPERTY(bool MultiCurrency READ MultiCurrency WRITE SetMultiCurrency)
    Q_PROPERTY(bool ReverseCurrency READ ReverseCurrency WRITE SetReverseCurrency)
    Q_PROPERTY(double MinValue READ MinValue WRITE SetMinValue)
    Q_PROPERTY(double MaxValue READ MaxValue WRITE SetMaxValue)
    Q_PROPERTY(bool CanTakeFocus READ CanTakeFocus WRITE SetCanTakeFocus)

public:
    /// Text, a whole number, or an amount with grouping and decimals.
    enum TEditType { etString, etNumeric, etCurrency };
    Q_ENUM(TEditType)
    /// Whether an amount may have decimals.
    enum TValueType { vtFloat, vtInt };
    Q_ENUM(TValueType)

    explicit TSmartEdit_TRV(QWidget* parent = nullptr);
    ~TSmartEdit_TRV() override;

    /// etString at first. A text that stands already is read anew by the new type.
    TEditType EditType() const;
    void SetEditType(TEditType type);
    /// vtFloat at first; vtInt leaves an etCurrency edit no decimals, whatever Precision says.
    TValueType ValueType() const;
    void SetValueType(TValueType type);
    /// Longest text the user may type, grouping signs and minus not counted; 0 means no limit.
    int MaxLength() const;
    void SetMaxLength(int length);
    /// Whether the user can bring nothing but digits into a text edit: for codes, whose leading zeros count.
    /// What else he types is refused, and a pasted text that is no code, whole and with a sentence that says
    /// why. The program may still show any text. Number edits ignore it.
    bool DigitsOnly() const;
    void SetDigitsOnly(bool only);
    /// Milliseconds between the last change of the value and OnEditValueChange. 300 by default.
    int DelayTimeCount() const;
    void SetDelayTimeCount(int milliseconds);
    /// Digits behind the decimal point of an etCurrency edit. 0 by default.
    int Precision() const;
    void SetPrecision(int digits);
    /// Whether F4 or the button at the edit's left end opens a calculator under a number edit.
    bool Calculator() const;
    void SetCalculator(bool on);
    /// Whether the edit tells rate and currency in its hint. False by default.
    bool MultiCurrency() const;
    void SetMultiCurrency(bool on);
    /// Kept for the owner; the edit ignores it. False by default.
    bool ReverseCurrency() const;
    void SetReverseCurrency(bool on);
    /// Bounds that a value typed by the user may not leave; equal bounds mean none.
    double MinValue() const;
    void SetMinValue(double value);
    double MaxValue() const;
    void SetMaxValue(double value);
    /// The flag that frames consult before they name this edit as the one holding their criterion's value.
    /// True by default.
    bool CanTakeFocus() const;
    void SetCanTakeFocus(bool can);

    /// The text without grouping signs, as statements and getters use it.
    QString Text() const;
    /// Shows a text, of any length; a number edit groups it, rounds it to its precision and takes what is no
    /// number as 0. Raises OnChange when the text differs; OnEditValueChange is for what the user changes.
    void SetText(const QString& text);
    /// Empties a text edit; a number edit shows "0". What was typed just before is not announced any more.
    virtual void Clear();
    /// The value of a number edit, 0 where there is none; the text of a text edit read as a number.
    long double GetValue() const;
    void SetValue(long double value);
    void SetEnabled(bool enabled); ///< a disabled edit cannot be written by the user
    /// Rate and title that a MultiCurrency edit shows in its hint.
    void SetCurrencyRate(long double rate);
    void SetCurrencyTypeTitle(const QString& title);
    /// The place of the caret in the shown text, counted from 0; one outside is moved to the nearer end.
    int CaretPos() const;
    void SetCaretPos(int position);
    /// Shows the edit as wrong, with a balloon of one sentence, until the user types.
    void ShowError(const QString& sentence);
    bool HasError() const; ///< shown as wrong

    /// On every change of Text(), by the user or by code.
    TNotifyEvent OnChange;
    /// Once, DelayTimeCount after the user's last change of the value; at once when the edit is left.
    TNotifyEvent OnEditValueChange;
    /// The same as writing the event.
    void SetOnEditValueChange(TNotifyEvent handler) { OnEditValueChange = std::move(handler); }
    /// Raises OnEditValueChange now where it is still due.
    void AnnouncePendingValue();

    /// Before a text is pasted or dropped. The handler may change it, or put it in itself and leave nothing.
    TPasteEvent OnPaste;

Q_SIGNALS:
    void editValueChanged(); ///< with OnEditValueChange

protected:
    /// A key that a derived edit handles in its own way, asked after OnKeyDown and OnKeyPress; true where it
    /// has. The edit may be gone by then.
    virtual bool HandleOwnKey(QKeyEvent* event);
    /// What of a text that is typed in place of the selection a derived text edit takes; here all of it.
    virtual QString Admitted(const QString& text) { return text; }
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
