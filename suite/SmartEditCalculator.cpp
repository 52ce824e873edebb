#include "SmartEditPrivate.h"

#include "CalculatorPopup.h"
#include "DecimalText.h"
#include "DrawnIcon.h"
#include "Look.h"
#include "PersianText.h"
#include "SharedIcon.h"

#include <QAction>

namespace {

QPixmap CalculatorPicture(const QColor& color)
{
    return DrawnIcon(QPen(color, 4), [&color](QPainter& painter) {
        painter.drawRoundedRect(QRect(8, 3, 32, 42), 5, 5);
        painter.fillRect(QRect(15, 11, 18, 7), color);
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 3; ++column)
                painter.fillRect(QRect(15 + 7 * column, 24 + 8 * row, 4, 5), color);
        }
    });
}

} // namespace

void TSmartEdit_TRV::TPrivate::RefreshCalculatorButton()
{
    const bool wanted = calculator && IsNumber();
    if (!wanted) {
        delete std::exchange(calculatorButton, nullptr);
        return;
    }
    if (!calculatorButton) {
        calculatorButton = new QAction(QStringLiteral("&ماشین حساب"), edit);
        calculatorButton->setToolTip(QStringLiteral("ماشین حساب (F4)"));
        QObject::connect(calculatorButton, &QAction::triggered, edit, [this] { OpenCalculator(); });
        edit->addAction(calculatorButton, QLineEdit::TrailingPosition);
    }
    calculatorButton->setIcon(SharedIcon::Of(QStringLiteral("calculator"),
                                             Look::Color(Look::TRole::SecondaryText), CalculatorPicture));
}

void TSmartEdit_TRV::TPrivate::OpenCalculator()
{
    if (!CanChange() || edit->findChild<TCalculatorPopup*>())
        return;
    auto* popup = new TCalculatorPopup(edit, edit->Text(),
                                       [this](const QString& result) { return TakeResult(result); });
    popup->Open();
}

// The calculator's number in place of the edit's; a sentence where it does not fit.
QString TSmartEdit_TRV::TPrivate::TakeResult(const QString& result)
{
    const QString rounded = DecimalText::Rounded(result, Decimals());
    if (maxLength > 0 && DecimalText::DigitCount(rounded) > maxLength)
        return QStringLiteral(
                   "حاصل در این کادر جا نمی‌شود؛ تا %1 رقم جا دارد.")
            .arg(PersianText::PersianDigits(QString::number(maxLength)));
    const long double value = DecimalText::ToValue(rounded);
    if (IsBounded() && (value < minValue || value > maxValue))
        return QStringLiteral(
                   "این کادر عددی از %1 تا %2 می‌خواهد؛ حاصل بیرون از "
                   "آن "
                   "است.")
            .arg(DecimalText::Grouped(DecimalText::FromValue(minValue, Decimals())),
                 DecimalText::Grouped(DecimalText::FromValue(maxValue, Decimals())));
    Edit([&rounded](TNumberText& text) {
        text.Assign(rounded);
        return true;
    });
    return {};
}
