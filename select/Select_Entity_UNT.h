#pragma once

#include "ControlEvents.h"
#include "EntityTypes.h"
#include "Frame.h"

#include <QVariant>

class TSmartButtonEdit_TRV;
class TSmartLabel_TRV;
struct TEntitySelection;

/// Picks a coded entity on one line: a box for its code with a button that opens the list, and the name of
/// what the code stands for. Which kind of entity that is, Code_EDT's EntityType says; the owner sets it (and
/// Code_EDT's SelectParams and OtherParams where the list wants them) and reads the code.
///
/// The name is always that of the code in the box, or empty. Nothing but a code that exists stays in the box
/// when it is left.
class BASEFRAME_EXPORT TSelect_Entity_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TSelect_Entity_Frame(QWidget* owner = nullptr);
    ~TSelect_Entity_Frame() override;

    /// Empties the code and the name; raises nothing.
    void Clear() const;
    /// Enables or disables the code box (the frame's own state stays); when disabling, `clear` empties first.
    void Enabled(bool enable, bool clear = false) const;
    /// The code as an int; 0 where there is none. Never throws.
    QVariant GetCodeValue() const;
    /// Shows a code and runs what leaving the box runs. What is not above 0, null and an empty text empty the
    /// box. Throws std::invalid_argument, before anything has changed, where the value is no whole number.
    void SetCodeValue(const QVariant& value) const;
    /// The code; 0 for an empty box. Throws std::invalid_argument where the program has put a text into the
    /// box that is no whole number; the user cannot.
    int CodeAsInt() const;

    /// Looks a code up and shows its name, upon which OnCodeChanged is raised. Where it does not exist, box
    /// and name are emptied and the focus goes back to the box, silently.
    void CodeInfo(TEntityType entityType, const QString& code);
    /// What leaving the box runs: 0 is refused with a balloon, an empty box shows no name, any other code is
    /// looked up as it was typed and then completed to its kind's length.
    void Code_EDTExit(QObject* sender);
    /// Opens the list of the box's kind. A picked code is shown like a typed one and the focus moves on.
    void Code_EDTPropertiesButtonClick(QObject* sender);

    /// When a code is accepted, when the box is left empty and when 0 is refused; not when an unknown code is
    /// emptied. May destroy the frame, but not the control that is about to get the focus: an owner who
    /// closes the whole form here does it with deleteLater().
    TNotifyEvent OnCodeChanged;
    /// The same as writing the event.
    void SetOnCodeChanged(TNotifyEvent handler) { OnCodeChanged = std::move(handler); }

    /// For the list of goods only: the host's parameters before the box's own.
    QString OtherParams;

    TSmartButtonEdit_TRV* Code_EDT = nullptr;
    TSmartLabel_TRV* Name_LBL = nullptr;

Q_SIGNALS:
    void codeChanged(); ///< with OnCodeChanged

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void CompleteShownCode() const;
    void RefuseZero();
    void RaiseCodeChanged();
    int Pick(const TEntitySelection& selection) const;
    QString PickArgument(const TEntitySelection& selection) const;
    static int PickExpenseCenter(const QString& argument);
    void TakePicked(int code, const TEntitySelection& selection);
    void MoveOn();
    void SendTabWhenActive();

    /// The window was hidden while a code was picked: the focus moves on whenever the frame is shown, until
    /// the next pick.
    bool Go_To_NJext = false;
    bool tabAwaitsActivation_ = false;
};
