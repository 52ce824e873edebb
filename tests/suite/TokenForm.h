#pragma once

#include "ActiveWindow.h"
#include "AdvListEditorPer.h"
#include "TypedKeys.h"

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
        layout.addWidget(&editor);
        layout.addWidget(&other);
        window.resize(500, 80);
        editor.setFocus();
    }

    bool Show()
    {
        window.show();
        return ActiveWindow::Activate(&window) && QTest::qWaitFor([this] { return editor.hasFocus(); });
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

    /// The texts of the items, with the box for typing as a bar where it stands.
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
};
