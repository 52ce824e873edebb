#pragma once

#include "AdvListEditorPer.h"
#include "CategoryTables.h"
#include "ControlColumn.h"
#include "PopupMenu.h"
#include "RecordingHost.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

/// A form with a category frame between two other controls.
template <typename TCategoryFrame> struct TCategoryForm
{
    TRecordingHost Host;
    TCategoryTables Tables;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    QLineEdit* Before = nullptr;
    TCategoryFrame* Frame = nullptr;
    QLineEdit* After = nullptr;

    TCategoryForm()
    {
        Host.DM.Connection = &Tables.Connection;
        MakeColumn(*Form, Before, Frame, After);
        Form->resize(520, 140);
    }

    TAdvListEditorPer& Editor() const { return *Frame->Editor; }
    TPopupMenu& Menu() const { return *Frame->PopupMenu1; }

    /// Shown, the focus in the editor; nothing recorded yet.
    bool Start()
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Editor().setFocus();
        Forget();
        return isActive && HasFocus();
    }

    bool HasFocus() const
    {
        const QWidget* const focus = QApplication::focusWidget();
        return focus == &Editor() || Editor().isAncestorOf(focus);
    }

    void Forget() { Tables.Statements.clear(); }

    /// A key stroke as the user makes it, in whatever has the focus.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Typing::Press(QApplication::focusWidget(), key, modifiers);
    }

    static void Type(const QString& text)
    {
        for (const QString& character : Characters(text))
            Typing::Type(QApplication::focusWidget(), character);
    }

    /// Opens the menu and clicks the entry; false where it offers none of the caption.
    bool Choose(const QString& caption)
    {
        Menu().Popup(Form->mapToGlobal(QPoint(200, 60)));
        for (int index = 0; index < Menu().Count(); ++index) {
            TMenuItem* const item = Menu().Item(index);
            if (item->Caption() != caption)
                continue;
            QTest::mouseClick(&Menu(), Qt::LeftButton, Qt::NoModifier, Menu().actionGeometry(item).center());
            return true;
        }
        Menu().close();
        return false;
    }

    /// "name|id|parent" for each bubble.
    QStringList Bubbles() const
    {
        QStringList result;
        for (int index = 0; index < Editor().Values().Count(); ++index) {
            const TAdvListValueItem& item = Editor().Values()[index];
            result.append(QStringLiteral("%1|%2|%3").arg(item.DisplayText, item.Value).arg(item.ImageIndex));
        }
        return result;
    }

    /// "caption|id|parent" for each entry.
    QStringList Offered() const
    {
        QStringList result;
        for (int index = 0; index < Menu().Count(); ++index) {
            const TMenuItem* const item = Menu().Item(index);
            result.append(
                QStringLiteral("%1|%2|%3").arg(item->Caption()).arg(item->Tag).arg(item->ImageIndex));
        }
        return result;
    }

private:
    static QStringList Characters(const QString& text)
    {
        QStringList result;
        for (qsizetype position = 0; position < text.size(); position += result.last().size())
            result.append(text.mid(position, text.at(position).isHighSurrogate() ? 2 : 1));
        return result;
    }
};

/// What a whole path costs: the category, its ancestors from below, one statement for each bubble.
namespace CategoryTexts {

inline QStringList Path(const QVector<int>& idsFromBelow)
{
    QStringList result;
    for (const int id : idsFromBelow)
        result.append(Category(id));
    if (idsFromBelow.size() > 1) {
        for (qsizetype bubble = 0; bubble < idsFromBelow.size(); ++bubble)
            result.append(Category(0));
    }
    return result;
}

} // namespace CategoryTexts
