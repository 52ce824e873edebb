#include "AccountCodeBox.h"

#include "CodeKeys.h"
#include "Look.h"
#include "PersianText.h"

#include <algorithm>
#include <QPointer>

namespace {

constexpr quint32 PlaceholderColor = 0xA4A0A0;
constexpr int PlaceholderSize = 10;
constexpr int CodeSize = 11;

bool IsAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Black vanishes on the ground of the dark scheme; the grey is readable on both.
QColor CodeColor()
{
    return Look::IsDark() ? Look::Color(Look::TRole::Text) : QColor(Qt::black);
}

void SetColor(TSmartEdit_TRV& box, const QColor& color)
{
    QPalette palette; // knows of one colour, so that the others go on following the scheme
    palette.setColor(QPalette::Active, QPalette::Text, color);
    palette.setColor(QPalette::Inactive, QPalette::Text, color);
    box.setPalette(palette);
}

void SetSize(TSmartEdit_TRV& box, int size)
{
    QFont font = box.font();
    font.setPointSize(size);
    box.setFont(font);
}

qsizetype Room(const TSmartEdit_TRV& box)
{
    return std::max<qsizetype>(0, box.MaxLength() - (box.text().size() - box.selectedText().size()));
}

QString Refusal(bool hasOthers, qsizetype digits, const TSmartEdit_TRV& box)
{
    if (digits == 0)
        return QStringLiteral(
            "در متن چسبانده‌شده رقمی نیست؛ کد را رونوشت کنید و دوباره بچسبانید.");
    if (hasOthers)
        return QStringLiteral(
            "کد فقط رقم دارد؛ رقم‌ها چسبانده شد و باقی متن کنار گذاشته شد.");
    return QStringLiteral(
               "این کادر تا %1 رقم جا دارد؛ باقی رقم‌ها چسبانده نشد.")
        .arg(PersianText::PersianDigits(QString::number(box.MaxLength())));
}

} // namespace

int AccountCodeBox::Code(const TSmartEdit_TRV& box)
{
    const QString text = box.Text();
    return std::all_of(text.begin(), text.end(), IsAsciiDigit) ? text.toInt() : 0;
}

bool AccountCodeBox::ShowsPlaceholder(const TSmartEdit_TRV& box)
{
    const QString text = box.Text();
    return !text.isEmpty() && CodeKeys::IsCharacter(text.front());
}

void AccountCodeBox::ShowPlaceholder(TSmartEdit_TRV& box, QStringView levelName)
{
    SetColor(box, Look::FromColorValue(PlaceholderColor));
    SetSize(box, PlaceholderSize);
    box.SetText(levelName.toString());
}

void AccountCodeBox::StyleAsCode(TSmartEdit_TRV& box)
{
    SetColor(box, CodeColor());
    SetSize(box, CodeSize);
}

void AccountCodeBox::RemovePlaceholder(TSmartEdit_TRV& box)
{
    if (!ShowsPlaceholder(box))
        return;
    StyleAsCode(box);
    box.SetText(QString());
}

void AccountCodeBox::Restyle(TSmartEdit_TRV& box)
{
    SetColor(box, ShowsPlaceholder(box) ? Look::FromColorValue(PlaceholderColor) : CodeColor());
}

void AccountCodeBox::TakeDigits(TSmartEdit_TRV& box, const QString& pasted)
{
    RemovePlaceholder(box);
    const QString text = PersianText::AsciiDigits(pasted.trimmed());
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), IsAsciiDigit);
    const QString fitting = digits.left(Room(box));
    const QPointer<TSmartEdit_TRV> alive = &box;
    if (!fitting.isEmpty())
        box.insert(fitting);
    if (alive && fitting.size() < text.size())
        box.ShowError(Refusal(digits.size() < text.size(), digits.size(), box));
}
