#include "AdvListEditorPer.h"
#include "Category_Search_UNT.h"
#include "Category_SearchWithManager_UNT.h"
#include "ListFooter.h"
#include "ListForm.h"
#include "ListLabels.h"
#include "MainWindow.h"
#include "SmartCheckBox_TRV.h"
#include "tags_frame.h"
#include "TourPlayer.h"
#include "TourSteps.h"

namespace {

TListLabels& Labels(TTourPlayer& player)
{
    return *player.List().Labels();
}

TAdvListEditorPer& TagEditor(TTourPlayer& player)
{
    return *Labels(player).Panel().Tags().Tags_editor;
}

void MarkRows(TTourPlayer& player)
{
    player.Press(Qt::Key_1, Qt::ControlModifier);
    player.WaitForAnswer();
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Space);
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Down, Qt::ShiftModifier);
    player.Press(Qt::Key_Down, Qt::ShiftModifier);
    player.Check(Labels(player).Selection().MarkedCount() == 4, QStringLiteral("چهار ردیف برگزیده نشد"));
    player.Screenshot(QStringLiteral("rows-marked"));
}

void TagRows(TTourPlayer& player)
{
    const int before = TagEditor(player).Values().Count();
    player.Press(Qt::Key_F8);
    player.Check(TagEditor(player).hasFocus(), QStringLiteral("F8 به برچسب‌ها نرفت"));
    player.Wait(200);
    player.Screenshot(QStringLiteral("tagging-open"));
    player.Press(Qt::Key_Up);
    player.Press(Qt::Key_Return);
    player.WaitUntil([&player, before] { return TagEditor(player).Values().Count() > before; },
                     QStringLiteral("برچسب گذاشته نشد"));
    player.WaitForAnswer();
    player.Screenshot(QStringLiteral("tagging-done"));
    const int tagged = TagEditor(player).Values().Count();
    player.Press(Qt::Key_Backspace);
    player.WaitUntil([&player, tagged] { return TagEditor(player).Values().Count() < tagged; },
                     QStringLiteral("برچسب برداشته نشد"));
}

void AssignCategory(TTourPlayer& player)
{
    TListTagging& panel = Labels(player).Panel();
    panel.Category().Editor->setFocus();
    player.Type(QStringLiteral("برنج خارجی"));
    player.Press(Qt::Key_Return);
    player.Check(!panel.Category().Editor->Values().IsEmpty(), QStringLiteral("دسته برگزیده نشد"));
    player.WhenDialogOpens([&player] {
        player.Screenshot(QStringLiteral("category-assign-question"));
        player.Press(Qt::Key_Return);
    });
    panel.AssignCategory();
    player.CheckDialogCame(QStringLiteral("پرسش دسته نیامد"));
    player.WaitForAnswer();
    player.Press(Qt::Key_F8);
    player.Check(panel.isHidden(), QStringLiteral("F8 بخش برچسب‌ها را نبست"));
    player.Press(Qt::Key_Escape);
    player.Check(Labels(player).Selection().MarkedCount() == 0,
                 QStringLiteral("Escape برگزیده‌ها را برنداشت"));
}

void Filter(TTourPlayer& player)
{
    TListFilters& filters = Labels(player).Filters();
    const int all = player.List().DataSet().RecordCount();
    filters.Category->Editor->setFocus();
    player.Press(Qt::Key_Plus);
    player.Wait(200);
    player.Screenshot(QStringLiteral("category-menu"));
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Return);
    player.WaitForAnswer();
    player.Check(!filters.Category->Editor->Values().IsEmpty(), QStringLiteral("دسته از منو برگزیده نشد"));
    player.Screenshot(QStringLiteral("category-filter"));
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
    player.Check(player.List().DataSet().RecordCount() == all,
                 QStringLiteral("Escape فیلتر دسته را پاک نکرد"));
    filters.FocusTags();
    player.Type(QStringLiteral("پرفروش"));
    player.Press(Qt::Key_Return);
    player.WaitForAnswer();
    player.Check(player.List().DataSet().RecordCount() < all, QStringLiteral("فیلتر برچسب کاری نکرد"));
    player.Screenshot(QStringLiteral("tag-filter"));
    player.List().ClearSearch();
    player.WaitForAnswer();
    player.Click(filters.NoTag, {filters.NoTag->width() - 10, filters.NoTag->height() / 2});
    player.WaitForAnswer();
    const int without = player.List().DataSet().RecordCount();
    player.Check(without > 0 && without < all,
                 QStringLiteral("کالاهای بی‌برچسب پیدا نشدند"));
    player.Screenshot(QStringLiteral("without-tags"));
    player.List().ClearSearch();
    player.WaitForAnswer();
}

} // namespace

QVector<TTourStep> LabelSteps()
{
    return {
        {u"برگزیدن چند ردیف", MarkRows},
        {u"برچسب گذاشتن و برداشتن", TagRows},
        {u"گذاشتن کالاها در دسته", AssignCategory},
        {u"فیلتر دسته و برچسب", Filter},
    };
}
