#include "CategoryCard.h"
#include "CategoryDetails.h"
#include "CategoryForm.h"
#include "MainWindow.h"
#include "MirroredTreeView.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "TourPlayer.h"
#include "TourSteps.h"

namespace {

TCategoryForm& Categories(TTourPlayer& player)
{
    return *qobject_cast<TCategoryForm*>(player.Window().CurrentPage());
}

void OpenCategories(TTourPlayer& player)
{
    player.Press(Qt::Key_6, Qt::ControlModifier);
    const bool open = qobject_cast<TCategoryForm*>(player.Window().CurrentPage()) != nullptr;
    if (!player.Check(open, QStringLiteral("فرم دسته‌ها باز نشد")))
        player.Window().OpenPage(QStringLiteral("Categories"));
    player.Check(Categories(player).Model().rowCount() > 0,
                 QStringLiteral("درخت دسته‌ها خالی است"));
    player.Type(QStringLiteral("برنج ایرانی"));
    player.Wait(300);
    player.Check(Categories(player).CurrentId() > 0, QStringLiteral("دستهٔ جستجو شده پیدا نشد"));
    player.Screenshot(QStringLiteral("categories-found"));
    player.Press(Qt::Key_Escape);
}

void AddSubcategory(TTourPlayer& player)
{
    TCategoryForm& form = Categories(player);
    const int parent = form.CurrentId();
    player.Press(Qt::Key_Insert);
    if (!player.Check(form.Card() != nullptr, QStringLiteral("کارت زیردستهٔ تازه باز نشد")))
        return;
    player.Type(QStringLiteral("برنج دودی, گیلانی"));
    player.Screenshot(QStringLiteral("category-new"));
    player.Press(Qt::Key_Return);
    player.WaitUntil([&form] { return form.Card() == nullptr; }, QStringLiteral("دسته ذخیره نشد"));
    const TCategoryOutline& outline = form.Model().Outline();
    const TCategoryRow row = outline.At(outline.Find(form.CurrentId()));
    player.Check(row.Name == u"برنج دودی، گیلانی", QStringLiteral("ویرگول نام فارسی نشد"));
    player.Check(row.ParentId == parent, QStringLiteral("دستهٔ تازه زیر دستهٔ جاری نیست"));
    player.Wait(300);
    player.Screenshot(QStringLiteral("category-added"));
}

void MoveCategory(TTourPlayer& player)
{
    TCategoryForm& form = Categories(player);
    const int id = form.CurrentId();
    player.Press(Qt::Key_X, Qt::ControlModifier);
    // To the category above, which closes, and on to the one above that.
    for (int presses = 0; presses < 3; ++presses)
        player.Press(Qt::Key_Right);
    player.Screenshot(QStringLiteral("category-picked-up"));
    player.WhenDialogOpens([&player] {
        player.Screenshot(QStringLiteral("category-move-question"));
        player.Press(Qt::Key_Return);
    });
    player.Press(Qt::Key_V, Qt::ControlModifier);
    player.CheckDialogCame(QStringLiteral("پرسش جابه‌جایی نیامد"));
    const TCategoryOutline& outline = form.Model().Outline();
    player.Check(
        outline.PathText(outline.Find(id)).count(u'›') == 3,
        QStringLiteral("دسته جابه‌جا نشد: %1").arg(outline.PathText(outline.Find(id))));
    player.WhenDialogOpens([&player] { player.Press(Qt::Key_Return); });
    player.Press(Qt::Key_Delete);
    player.CheckDialogCame(QStringLiteral("پرسش حذف نیامد"));
    player.Check(form.Model().Outline().Find(id) < 0, QStringLiteral("دسته حذف نشد"));
}

void RefuseUsedCategory(TTourPlayer& player)
{
    TCategoryForm& form = Categories(player);
    player.Type(QStringLiteral("برنج ایرانی"));
    const int id = form.CurrentId();
    player.WhenDialogOpens([&player] {
        player.WhenDialogOpens([&player] {
            player.Screenshot(QStringLiteral("category-in-use"));
            player.Press(Qt::Key_Return);
        });
        player.Press(Qt::Key_Return);
    });
    player.Press(Qt::Key_Delete);
    player.CheckDialogCame(QStringLiteral("پیام دستهٔ به کار رفته نیامد"));
    player.Check(form.Model().Outline().Find(id) >= 0, QStringLiteral("دستهٔ به کار رفته حذف شد"));
}

void ChooseDefault(TTourPlayer& player)
{
    TCategoryForm& form = Categories(player);
    player.Click(&form.Details().GoodsBox(), {form.Details().GoodsBox().width() - 10, 10});
    player.Check(form.Model().Defaults().Goods == form.CurrentId(),
                 QStringLiteral("پیش‌فرض نوشته نشد"));
    player.Screenshot(QStringLiteral("category-default"));
    player.Click(&form.Details().GoodsBox(), {form.Details().GoodsBox().width() - 10, 10});
    player.Check(form.Model().Defaults().Goods == 0, QStringLiteral("پیش‌فرض برداشته نشد"));
    player.Press(Qt::Key_Escape);
}

} // namespace

QVector<TTourStep> CategorySteps()
{
    return {
        {u"باز کردن و جستجوی دسته‌ها", OpenCategories},
        {u"ساختن زیردسته", AddSubcategory},
        {u"جابه‌جایی و حذف دسته", MoveCategory},
        {u"دستهٔ به کار رفته حذف نمی‌شود", RefuseUsedCategory},
        {u"دستهٔ پیش‌فرض کاربر", ChooseDefault},
    };
}
