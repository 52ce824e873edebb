#pragma once

#include "ActiveWindow.h"
#include "Look.h"
#include "SmartDateEdit_TRV.h"
#include "TypedKeys.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QVBoxLayout>

/// A window with an edit and a control for the focus to go to. Today is a day of the test's choice.
template <typename TEdit> struct TEditForm
{
    TEditForm()
    {
        Window.resize(360, 420);
        auto* lines = new QVBoxLayout(&Window);
        Edit = new TEdit(&Window);
        Other = new QLineEdit(&Window);
        lines->addWidget(Edit);
        lines->addWidget(Other);
        lines->addStretch();
        Edit->OnChange = [this](QObject*) { Changes << Edit->Text(); };
        Edit->OnEditValueChange = [this](QObject*) { ++Announced; };
    }

    bool Show()
    {
        Window.show();
        const bool active = ActiveWindow::Activate(&Window);
        Edit->setFocus();
        return active && Edit->hasFocus();
    }
    void Type(const QString& text) { TypedKeys::Script(Edit, text); }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        TypedKeys::Stroke(Edit, key, modifiers);
    }
    void Paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        Press(Qt::Key_V, Qt::ControlModifier);
    }

    QWidget Window;
    TEdit* Edit = nullptr;
    QLineEdit* Other = nullptr;
    QStringList Changes;
    int Announced = 0;
};

struct TDateForm : TEditForm<TSmartDateEdit_TRV>
{
    explicit TDateForm(TSmartDateEdit_TRV::TCalendarType type = TSmartDateEdit_TRV::ctSolar)
    {
        Edit->SetCalendarType(type);
        Edit->SetCalendarResultType(type);
        Edit->SetToday([this] { return Today; });
    }

    QDate Today{2024, 9, 23}; // 1403/07/02, a Monday
};
