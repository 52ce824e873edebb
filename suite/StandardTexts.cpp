#include "StandardTexts.h"

#include <QHash>

namespace {

using TTexts = QHash<QByteArray, QString>;

const TTexts& ButtonTexts()
{
    static const TTexts texts{
        {"OK", QStringLiteral("تأیید")},
        {"Cancel", QStringLiteral("انصراف")},
        {"Yes", QStringLiteral("&بله")},
        {"No", QStringLiteral("&خیر")},
        {"Yes to All", QStringLiteral("بله برای همه")},
        {"No to All", QStringLiteral("خیر برای همه")},
        {"Save", QStringLiteral("ذخیره")},
        {"Save All", QStringLiteral("ذخیرهٔ همه")},
        {"Open", QStringLiteral("باز کردن")},
        {"Close", QStringLiteral("بستن")},
        {"Apply", QStringLiteral("اعمال")},
        {"Reset", QStringLiteral("بازنشانی")},
        {"Restore Defaults", QStringLiteral("بازگشت به پیش‌فرض")},
        {"Help", QStringLiteral("راهنما")},
        {"Abort", QStringLiteral("قطع")},
        {"Retry", QStringLiteral("تلاش دوباره")},
        {"Ignore", QStringLiteral("نادیده گرفتن")},
        {"Discard", QStringLiteral("دور ریختن")},
        {"Close without Saving", QStringLiteral("بستن بدون ذخیره")},
        {"Don't Save", QStringLiteral("ذخیره نشود")},
        {"Show Details...", QStringLiteral("نمایش جزئیات…")},
        {"Hide Details...", QStringLiteral("پنهان کردن جزئیات…")},
    };
    return texts;
}

const TTexts& MenuTexts()
{
    static const TTexts texts{
        {"Undo", QStringLiteral("&واگرد")},
        {"Redo", QStringLiteral("&ازنو")},
        {"Cut", QStringLiteral("&برش")},
        {"Copy", QStringLiteral("&رونوشت")},
        {"Paste", QStringLiteral("&چسباندن")},
        {"Delete", QStringLiteral("حذف")},
        {"Select All", QStringLiteral("انتخاب &همه")},
        {"Copy Link Location", QStringLiteral("رونوشت نشانی پیوند")},
        {"Step up", QStringLiteral("یک پله بالا")},
        {"Step down", QStringLiteral("یک پله پایین")},
        {"Scroll here", QStringLiteral("پیمایش تا اینجا")},
        {"Top", QStringLiteral("بالا")},
        {"Bottom", QStringLiteral("پایین")},
        {"Left edge", QStringLiteral("لبهٔ چپ")},
        {"Right edge", QStringLiteral("لبهٔ راست")},
        {"Page up", QStringLiteral("صفحهٔ بالا")},
        {"Page down", QStringLiteral("صفحهٔ پایین")},
        {"Page left", QStringLiteral("صفحهٔ چپ")},
        {"Page right", QStringLiteral("صفحهٔ راست")},
        {"Scroll up", QStringLiteral("پیمایش به بالا")},
        {"Scroll down", QStringLiteral("پیمایش به پایین")},
        {"Scroll left", QStringLiteral("پیمایش به چپ")},
        {"Scroll right", QStringLiteral("پیمایش به راست")},
        {"Insert Unicode control character",
         QStringLiteral("درج نویسهٔ کنترلی یونی‌کد")},
    };
    return texts;
}

const TTexts& FileDialogTexts()
{
    static const TTexts texts{
        {"Look in:", QStringLiteral("جستجو در:")},
        {"File name:", QStringLiteral("نام پرونده:")},
        {"Files of type:", QStringLiteral("نوع پرونده:")},
        {"Choose", QStringLiteral("برگزیدن")},
        {"Directory:", QStringLiteral("پوشه:")},
        {"Find Directory", QStringLiteral("یافتن پوشه")},
        {"Back", QStringLiteral("پس")},
        {"Go back", QStringLiteral("رفتن به پس")},
        {"Forward", QStringLiteral("پیش")},
        {"Go forward", QStringLiteral("رفتن به پیش")},
        {"Parent Directory", QStringLiteral("پوشهٔ بالاتر")},
        {"Create New Folder", QStringLiteral("ساختن پوشهٔ تازه")},
        {"New Folder", QStringLiteral("پوشهٔ تازه")},
        {"List View", QStringLiteral("نمای فهرست")},
        {"Detail View", QStringLiteral("نمای جزئیات")},
        {"Rename", QStringLiteral("تغییر نام")},
        {"Show hidden files", QStringLiteral("نمایش پرونده‌های پنهان")},
        {"All Files (*)", QStringLiteral("همهٔ پرونده‌ها (*)")},
        {"Name", QStringLiteral("نام")},
        {"Size", QStringLiteral("اندازه")},
        {"Type", QStringLiteral("نوع")},
        {"Date Modified", QStringLiteral("تاریخ تغییر")},
        {"Computer", QStringLiteral("رایانه")},
        {"%1 already exists.\nDo you want to replace it?",
         QStringLiteral("%1 از پیش هست.\nجای آن نوشته شود؟")},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         QStringLiteral("%1\nپرونده پیدا نشد.\nنام پرونده را بررسی کنید.")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\nپوشه پیدا نشد.\nنام پوشه را بررسی کنید.")},
        {"Are you sure you want to delete '%1'?", QStringLiteral("آیا «%1» حذف شود؟")},
    };
    return texts;
}

/// The text without its mnemonic marks: the same words stand with and without one in different places.
QByteArray WithoutMnemonic(const char* text)
{
    QByteArray plain(text);
    plain.replace('&', QByteArray());
    return plain;
}

} // namespace

QString TStandardTexts::translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                                  int /*n*/) const
{
    // Texts of the application itself are Persian already; only classes of the toolkit are asked for here.
    if (context == nullptr || context[0] != 'Q' || sourceText == nullptr)
        return {};
    const QByteArray text = WithoutMnemonic(sourceText);
    if (text == "QT_LAYOUT_DIRECTION")
        return QStringLiteral("RTL");
    for (const TTexts* texts : {&ButtonTexts(), &MenuTexts(), &FileDialogTexts()}) {
        const auto found = texts->constFind(text);
        if (found != texts->constEnd())
            return *found;
    }
    return {};
}
