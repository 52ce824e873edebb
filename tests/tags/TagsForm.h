#pragma once

#include "AdvListEditorPer.h"
#include "ControlColumn.h"
#include "RecordingHost.h"
#include "tags_frame.h"
#include "TagStore.h"
#include "TagTables.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QPushButton>

/// A form with the tags frame and a button behind it, on a small database whose tags and goods the test adds.
struct TTagsForm
{
    static constexpr int Colors = 3;

    TRecordingHost Host;
    TTagTables Tables;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TTags* Frame = nullptr;
    QPushButton* Other = nullptr;

    explicit TTagsForm(const QString& file = QString()) : Tables(file)
    {
        Host.DM.Connection = &Tables.Connection;
        Host.DM.Query = &Tables.Query;
        Host.DM.Command = &Tables.Command;
        MakeColumn(*Form, Frame, Other);
        Other->setText(QStringLiteral("بستن"));
    }

    TAdvListEditorPer* Editor() const { return Frame->Tags_editor; }
    TSmartDBGrid_TRV* Grid() const { return Frame->Tags_grid; }

    /// Shows the form with the focus in the editor.
    bool Show() const
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Editor()->setFocus();
        return isActive;
    }
    /// Selects goods, as a host does: by their keys, in that order.
    void Select(const QList<int>& keys)
    {
        QStringList texts;
        for (const int key : keys)
            texts.append(QString::number(key));
        const QString list = texts.join(u',');
        Editor()->TableName = QStringLiteral("Goods");
        Editor()->KeyField = QStringLiteral("Id");
        Editor()->KeyList = u'(' + list + u')';
        Frame->ADOQuery2->SQL.SetText(Records(list));
        Frame->frame_load();
        Tables.Sent();
    }
    static QString Records(const QString& keys)
    {
        return QStringLiteral("select tags from Goods where Id in(%1) order by Id")
            .arg(keys.isEmpty() ? QStringLiteral("-1") : keys);
    }

    void Type(const QString& text) const { Typing::Type(Typed(), text); }
    void Press(Qt::Key key) const { Typing::Press(Typed(), key); }
    /// Types a name and Enter; what has been sent by Enter alone.
    QStringList Enter(const QString& name)
    {
        Type(name);
        Tables.Sent();
        Press(Qt::Key_Return);
        return Tables.Sent();
    }
    /// What has the focus: the box for typing of the editor, or the grid.
    static QWidget* Typed() { return QApplication::focusWidget(); }

    /// The items as "text=value:picture" with the pictures by name: "red" strong, "(red)" light.
    QStringList Items() const
    {
        static const QStringList names{QStringLiteral("red"),    QStringLiteral("blue"),
                                       QStringLiteral("green"),  QStringLiteral("(red)"),
                                       QStringLiteral("(blue)"), QStringLiteral("(green)")};
        QStringList result;
        for (int i = 0; i < Editor()->Values().Count(); ++i) {
            const TAdvListValueItem& item = Editor()->Values()[i];
            result.append(item.DisplayText + u'=' + item.Value + u':' +
                          names.value(item.ImageIndex, QStringLiteral("none")));
        }
        return result;
    }
    QStringList Suggested() const
    {
        QStringList result;
        const int name = Frame->Tags_qry->FieldByName(QStringLiteral("Name"))->Index();
        for (int row = 0; row < Frame->Tags_qry->RecordCount(); ++row)
            result.append(Frame->Tags_qry->ValueAt(row, name).toString());
        return result;
    }
};
