#pragma once

#include "ControlColumn.h"
#include "RecordingHost.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "Typing.h"

#include <memory>
#include <QLineEdit>

/// A form with an entity selector between two other controls.
struct TEntityLine
{
    TRecordingHost Host;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    QLineEdit* Before = nullptr;
    TSelect_Entity_Frame* Frame = nullptr;
    QLineEdit* After = nullptr;
    QStringList Raised; ///< the code and the name at each OnCodeChanged

    TEntityLine()
    {
        MakeColumn(*Form, Before, Frame, After);
        Frame->SetOnCodeChanged([this](QObject*) { Raised.append(Code() + u'/' + Name()); });
    }

    /// Shown and active, the focus in the code box.
    bool Start()
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Frame->Code_EDT->setFocus();
        return isActive && Frame->Code_EDT->hasFocus();
    }

    /// Types a code into the box and leaves it with Tab.
    void Enter(const QString& code) const
    {
        Frame->Code_EDT->setFocus();
        Frame->Code_EDT->selectAll();
        Typing::Press(Frame->Code_EDT, Qt::Key_Delete);
        Typing::Type(Frame->Code_EDT, code);
        Typing::Press(Frame->Code_EDT, Qt::Key_Tab);
    }

    void SetType(TEntityType type) const { Frame->Code_EDT->SetEntityType(type); }
    void Know(LocateDBsOptions table, const QString& code, const QVariant& found)
    {
        Host.CommonLibrary.Lookups[{table, code}] = found;
    }
    void KnowPerson(const QString& code, const QString& name)
    {
        Know(LocateDBsOptions::ldPersonals, code, name);
    }
    QString Code() const { return Frame->Code_EDT->Text(); }
    QString Name() const { return Frame->Name_LBL->Caption(); }
    QStringList CallsOf(const QString& service) const { return Host.Log.Lines().filter(service); }
};
