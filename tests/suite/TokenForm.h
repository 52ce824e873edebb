#pragma once

#include "ActiveWindow.h"
#include "AdvListEditorPer.h"
#include "TypedKeys.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

/// A window with a token editor and an edit below it, to which the focus can go.
struct TTokenForm
{
    QWidget window;
    QVBoxLayout layout{&window};
    TAdvListEditorPer editor;
    QLineEdit other;

    TTokenForm()
    {
        window.setLayoutDirection(Qt::RightToLeft);
        layout.addWidget(&editor);
        layout.addWidget(&other);
        window.resize(500, 80);
        editor.setFocus();
    }

    bool Show() { return ShowWith(editor); }
    bool ShowWith(const QWidget& focus)
    {
        window.show();
        return ActiveWindow::Activate(&window) && QTest::qWaitFor([&] { return focus.hasFocus(); });
    }

    /// Shows the window with items named by the words of a text.
    bool Show(const QString& words)
    {
        Fill(words);
        return Show();
    }
    /// Items named by the words of a text, with the values 1, 2, 3 and so on; caret behind them.
    void Fill(const QString& words)
    {
        editor.Values().Clear();
        int value = 0;
        for (const QString& word : words.split(u' ', Qt::SkipEmptyParts))
            editor.Values().AddPair(word, QString::number(++value));
        editor.CorrectEditPos();
    }

    /// The texts of the items.
    QString Row() const
    {
        QStringList texts;
        for (int index = 0; index < editor.Values().Count(); ++index)
            texts << editor.Values()[index].DisplayText;
        return texts.join(u' ');
    }

    void Stroke(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {})
    {
        TypedKeys::Stroke(QApplication::focusWidget(), key, modifiers, text);
    }
    void Strokes(int key, int times)
    {
        for (int stroke = 0; stroke < times; ++stroke)
            Stroke(key);
    }
    void Type(const QString& text) { TypedKeys::Text(QApplication::focusWidget(), text); }

    /// What the editor is for a screen reader: the items, then the box for typing.
    QAccessibleInterface* Accessible() { return QAccessible::queryAccessibleInterface(&editor); }
    /// The place of an item in the editor's pixels, on the screen or scrolled out.
    QRect Bubble(int index)
    {
        const QRect onScreen = Accessible()->child(index)->rect();
        return {editor.mapFromGlobal(onScreen.topLeft()), onScreen.size()};
    }
    QPoint Mark(int index)
    {
        const QRect bubble = Bubble(index);
        constexpr int FromEdge = 11;
        const bool fromRight = editor.layoutDirection() == Qt::RightToLeft;
        return {fromRight ? bubble.left() + FromEdge : bubble.right() - FromEdge, bubble.center().y()};
    }
    bool IsSelected(int index) { return Accessible()->child(index)->state().selected; }
    QList<int> Selected()
    {
        QList<int> selected;
        for (int index = 0; index < editor.Values().Count(); ++index) {
            if (IsSelected(index))
                selected << index;
        }
        return selected;
    }
    /// How many items stand before the caret, as the place of its box tells.
    int Place()
    {
        QCoreApplication::sendPostedEvents(&editor, QEvent::LayoutRequest);
        const QRect box = editor.focusProxy()->geometry();
        int place = 0;
        while (place < editor.Values().Count() && Bubble(place).center().x() > box.center().x())
            ++place;
        return place;
    }
};
