#pragma once

#include "MessageTypes.h"

#include <QPoint>
#include <QString>
#include <QtGlobal>

class QWidget;

/// The host's message boxes and balloons: the only way in which frames tell a user that something is wrong.
/// Boxes are modal. `control` is the control at fault, which gets the focus when the box is closed (null:
/// nobody does); `form` is the window above which the box stands (null: the control's window, or the active
/// one).
class IMessages
{
public:
    virtual ~IMessages() = default;

    /// `subject` is what the code names (a person, an account): there is none with the code that was typed.
    virtual void MsgCodeNotAvailable(const QString& subject, QWidget* control, QWidget* form) = 0;
    /// Nothing is chosen for `subject`, which needs a choice.
    virtual void MsgNotSelected(const QString& subject, QWidget* control, QWidget* form) = 0;
    /// The code of `subject` is taken already.
    virtual void MsgRepeatedCode(const QString& subject, QWidget* control, QWidget* form) = 0;
    /// `subject` is empty and must not be.
    virtual void MsgRequiredField(const QString& subject, QWidget* control, QWidget* form) = 0;
    /// `subject` cannot be removed: others belong to it.
    virtual void MsgHasSubRecords(const QString& subject) = 0;
    /// `subject` cannot be changed: it is in use.
    virtual void MSGInUse(const QString& subject) = 0;

    /// Asks the user; `defaultButton` is the index of the button that Enter presses, counted from 0.
    virtual TMessageResult ShowSmartMessage(TConfirmationMessage message, TMessageButtons buttons,
                                            int defaultButton) = 0;
    /// Tells the user; `arguments` fill the message's placeholders.
    virtual void ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments,
                                  QWidget* control, QWidget* form) = 0;

    /// A balloon over a control, for a time. Does not take the focus and returns at once. An empty title
    /// shows none; a null control shows nothing.
    struct TTooltip
    {
        QString Title; ///< bold, above the text; empty for none
        QString Text;  ///< may have several lines
        QWidget* Control = nullptr;
        int Milliseconds = 5000; ///< until it goes by itself
        int Kind = 4;            ///< passed along as frames give it (1 or 4); a host may choose an icon by it
        quint32 Color = 0xC0C0C0; ///< ground, 0x00BBGGRR
        int Reserved = 0;         ///< frames pass 0
        int Width = 250;          ///< widest text line in pixels
        QPoint ScreenPosition;    ///< top left corner of the control on the screen
    };
    /// Shows a balloon.
    virtual void ShowTooltipMessage(const TTooltip& tooltip) = 0;

    /// A plain box with one text.
    virtual void ShowMessage(const QString& text) = 0;
};
