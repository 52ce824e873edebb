#pragma once

#include "AdvListEditorPer.h"
#include "ControlColumn.h"
#include "PopupMenu.h"
#include "RecordingHost.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "Tags_search_UNT.h"
#include "TagTables.h"
#include "Typing.h"

#include <memory>
#include <QLineEdit>

/// A form with the tags search frame and an edit behind it, on a small database of three colours (1 red,
/// 2 blue, 3 green) and, unless the test adds more, the tags 3 «سه», 5 «پنج» and 7 «هفت».
struct TTagsSearchForm
{
    TRecordingHost Host;
    TTagTables Tables;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TTags_search_FRM* Frame = nullptr;
    QLineEdit* Other = nullptr;

    TTagsSearchForm()
    {
        Host.DM.Connection = &Tables.Connection;
        Host.DM.Query = &Tables.Query;
        Host.DM.Command = &Tables.Command;
        Tables.AddTag(3, QStringLiteral("سه"), 2);
        Tables.AddTag(5, QStringLiteral("پنج"), 1);
        Tables.AddTag(7, QStringLiteral("هفت"), 2);
        Tables.Sent();
        MakeColumn(*Form, Frame, Other);
    }

    TAdvListEditorPer& Editor() const { return *Frame->Tag_editor; }
    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_tags; }
    TPopupMenu& Menu() const { return *Frame->tags_list_pop; }

    /// Loads the frame and shows the form with the focus in the editor.
    bool Show(bool searchble)
    {
        Frame->SetSearchble(searchble);
        Frame->frame_load();
        const bool isActive = Typing::ShowActive(Form.get());
        Editor().setFocus();
        Tables.Sent();
        return isActive;
    }

    void Type(const QString& text) const { Typing::Type(&Editor(), text); }
    void Press(Qt::Key key) const { Typing::Press(&Editor(), key); }
    /// Types a name and presses Enter.
    void Enter(const QString& name) const
    {
        Type(name);
        Press(Qt::Key_Return);
    }
    /// The items as "text:value:picture".
    QStringList Items() const
    {
        QStringList result;
        for (int index = 0; index < Editor().Values().Count(); ++index) {
            const TAdvListValueItem& item = Editor().Values()[index];
            result.append(item.DisplayText + u':' + item.Value + u':' + QString::number(item.ImageIndex));
        }
        return result;
    }
    QString Value() const { return Criterion().Value1().toString(); }
};

/// The statements as the frame sends them.
namespace SentText {

inline QString Pictures()
{
    return QStringLiteral("select TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                          "TagS.color_code = colors.code ");
}

inline QString Menu()
{
    return QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                          "TagS.color_code = colors.code ");
}

inline QString AtButton()
{
    return QStringLiteral(
        " select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner  join colors on "
        "TagS.color_code = colors.code ");
}

inline QString Tag(const QString& quotedName)
{
    return QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                          "TagS.color_code = colors.code where tags.name =") +
           quotedName;
}

inline QString Count()
{
    return QStringLiteral("select count(code) from tags");
}

inline QString NewTag(int code)
{
    return QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code FROM TagS inner join colors on "
                          "TagS.color_code = colors.code where tags.code=%1")
        .arg(code);
}

} // namespace SentText
