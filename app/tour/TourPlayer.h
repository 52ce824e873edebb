#pragma once

#include <functional>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <Qt>

class QPixmap;
class QWidget;
class TListForm;
class TMainWindow;

/// Plays the guided tour: real key and mouse events into the window, checks of what it then shows,
/// screenshots.
class TTourPlayer
{
public:
    /// The window must outlive the player; the folder exists.
    TTourPlayer(TMainWindow& window, const QString& folder);

    TMainWindow& Window() { return *window_; }
    /// The list in front.
    TListForm& List();

    /// Begins a step; what fails from here on is reported under its name.
    void BeginStep(const QString& name);
    /// Prints what fails and remembers it. Returns `holds`.
    bool Check(bool holds, const QString& what);
    QStringList Failures() const { return failures_; }

    /// Lets the program work until the condition holds; one that does not come to hold is a failed check.
    bool WaitUntil(const std::function<bool()>& condition, const QString& what, int milliseconds = 60000);
    static void Wait(int milliseconds);
    /// Waits until what was typed has been applied and the first rows of the answer are here.
    void WaitForAnswer();

    /// A key stroke into whatever has the focus: a menu, the open card, the window.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// A text of any script, one stroke for each character.
    void Type(const QString& text);
    void Click(QWidget* widget, const QPoint& position);
    /// What to do with the dialog that the next stroke opens: it is played while the stroke still waits for
    /// the dialog to be closed. The dialog must be closed by it.
    void WhenDialogOpens(std::function<void()> play);
    /// No dialog is awaited any more; one that has not come is a failed check.
    void CheckDialogCame(const QString& what);

    /// Writes the window, with the dialogs and menus over it, as the next numbered PNG; an unnumbered one
    /// stands under its name alone.
    void Screenshot(const QString& name, bool numbered = true);
    /// Writes a single widget into the folder `frames`.
    void Picture(QWidget& widget, const QString& name);

private:
    QWidget* KeyReceiver() const;
    void Activate(QWidget* window) const;
    void PlayDialog();
    void Save(const QPixmap& picture, const QString& file);

    TMainWindow* window_;
    QString folder_;
    QString step_;
    QStringList failures_;
    int pictures_ = 0;
    std::function<void()> dialog_; ///< awaited
};
