#pragma once

#include "HostExport.h"

#include <QDialog>
#include <QString>
#include <QVector>

class QHBoxLayout;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

/// A button of a message box and what Ask() returns for it, above 0.
struct TDialogButton
{
    QString Caption; ///< may mark its key by an ampersand
    int Result = 0;  ///< what Ask() returns for it
};

/// Right-to-left message box with Persian buttons, the first at the right. Enter presses the default button,
/// which is the first one unless told otherwise; Escape and the window's close button mean the last one.
class HOST_EXPORT TMessageDialog : public QDialog
{
    Q_OBJECT

public:
    /// Which sign stands beside the text.
    enum class TKind { Information, Warning, Error, Question };

    /// `buttons` is not empty; the box stands over `parent`, or alone.
    TMessageDialog(TKind kind, const QString& text, QVector<TDialogButton> buttons, QWidget* parent);
    ~TMessageDialog() override;

    QString Text() const { return text_; } ///< as it was given
    void SetDefaultButton(int index);      ///< counted from 0; without such a button nothing happens
    /// Technical words for whoever looks after the program, left to right, hidden until the user asks for
    /// them.
    void SetDetails(const QString& details);
    /// Shows the box, waits for the answer and returns the Result of its button.
    int Ask();

    /// The usual buttons, with the numbers of TMessageResult.
    static TDialogButton OkButton();
    static TDialogButton YesButton();
    static TDialogButton NoButton();
    static TDialogButton CancelButton();

private:
    void AddText(QVBoxLayout* column, TKind kind);
    void AddButtons(QVBoxLayout* column);

    QString text_;
    QVector<TDialogButton> buttons_;
    QVector<QPushButton*> pushButtons_;
    QHBoxLayout* buttonRow_ = nullptr;
    QPlainTextEdit* details_ = nullptr;
};
