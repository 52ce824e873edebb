#include "CalculatorPopup.h"

#include "ControlEvents.h"
#include "Look.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int KeyWidth = 13 * Look::Unit;
constexpr int KeyHeight = 9 * Look::Unit;
constexpr int KeyFontSize = 16;
constexpr int NumberFontSize = 20;

QLabel* MakeLine(const QFont& font, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setFont(font);
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    label->setMinimumHeight(QFontMetrics(font).height());
    return label;
}

// A sum reads from left to right in every script.
void MakeLeftToRight(QWidget* widget)
{
    widget->setLayoutDirection(Qt::LeftToRight);
}

} // namespace

TCalculatorPopup::TCalculatorPopup(QWidget* edit, const QString& number, TTake take)
    : QFrame(edit, Qt::Popup), edit_(edit), take_(std::move(take))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("ماشین حساب"));
    calculator_.Start(number);

    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    lines->setSpacing(Look::Unit);
    lines->addWidget(MakeDisplay());
    auto* keys = new QWidget(this);
    MakeLeftToRight(keys);
    auto* grid = new QGridLayout(keys);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Look::Unit);
    AddKeys(*grid);
    lines->addWidget(keys);
    Refresh();
}

QWidget* TCalculatorPopup::MakeDisplay()
{
    auto* display = new QWidget(this);
    auto* lines = new QVBoxLayout(display);
    lines->setContentsMargins(Look::Unit, 0, Look::Unit, 0);
    lines->setSpacing(0);
    QFont large = Look::BoldFont();
    large.setPixelSize(NumberFontSize);
    pending_ = MakeLine(Look::SmallFont(), display);
    number_ = MakeLine(large, display);
    number_->setObjectName(QStringLiteral("Number"));
    MakeLeftToRight(pending_);
    MakeLeftToRight(number_);
    message_ = MakeLine(Look::SmallFont(), display);
    message_->setWordWrap(true);
    QPalette wrong = message_->palette();
    wrong.setColor(QPalette::WindowText, Look::Color(Look::TRole::Wrong));
    message_->setPalette(wrong);
    for (QLabel* line : {pending_, number_, message_})
        lines->addWidget(line);
    return display;
}

void TCalculatorPopup::AddKey(QGridLayout& grid, int row, int column, const QString& caption,
                              const QString& name, std::function<void()> press, int columns)
{
    auto* key = new QPushButton(caption, this);
    key->setFocusPolicy(Qt::NoFocus);
    key->setFixedHeight(KeyHeight);
    key->setMinimumWidth(KeyWidth);
    QFont font = Look::BodyFont();
    font.setPixelSize(KeyFontSize);
    key->setFont(font);
    key->setAccessibleName(name);
    key->setToolTip(name);
    connect(key, &QPushButton::clicked, this, std::move(press));
    grid.addWidget(key, row, column, 1, columns);
}

void TCalculatorPopup::AddCharacterKey(QGridLayout& grid, int row, int column, QChar key, const QString& name)
{
    AddKey(grid, row, column, QString(key), name, [this, key] { Press(key); });
}

void TCalculatorPopup::AddKeys(QGridLayout& grid)
{
    AddKey(grid, 0, 0, QStringLiteral("پاک"), QStringLiteral("پاک کردن همه (Delete)"), [this] {
        calculator_.Clear();
        Refresh();
    });
    AddKey(grid, 0, 1, QStringLiteral("⌫"), QStringLiteral("پاک کردن رقم آخر"), [this] { Press(u'\b'); });
    AddKey(grid, 0, 2, QStringLiteral("٪"), QStringLiteral("درصد"), [this] { Press(u'%'); });
    AddCharacterKey(grid, 0, 3, u'÷', QStringLiteral("تقسیم بر"));
    AddCharacterKey(grid, 1, 3, u'×', QStringLiteral("ضرب در"));
    AddCharacterKey(grid, 2, 3, u'−', QStringLiteral("منهای"));
    AddCharacterKey(grid, 3, 3, u'+', QStringLiteral("به‌علاوهٔ"));
    for (int digit = 1; digit <= 9; ++digit) {
        const QChar key(u'0' + digit);
        AddCharacterKey(grid, 3 - (digit - 1) / 3, (digit - 1) % 3, key, QString(key));
    }
    AddCharacterKey(grid, 4, 0, u'±', QStringLiteral("قرینه"));
    AddCharacterKey(grid, 4, 1, u'0', QStringLiteral("0"));
    AddKey(grid, 4, 2, QStringLiteral("٫"), QStringLiteral("ممیز"), [this] { Press(u'.'); });
    AddCharacterKey(grid, 4, 3, u'=', QStringLiteral("مساوی"));
    AddKey(
        grid, 5, 2, QStringLiteral("تأیید"), QStringLiteral("گذاشتن حاصل در کادر (Enter)"),
        [this] { Accept(); }, 2);
    AddKey(
        grid, 5, 0, QStringLiteral("انصراف"), QStringLiteral("بستن بدون تغییر (Esc)"), [this] { Leave(); },
        2);
}

void TCalculatorPopup::Open()
{
    adjustSize();
    const QRect screen = edit_->screen()->availableGeometry();
    const QPoint below = edit_->mapToGlobal(QPoint(0, edit_->height()));
    const bool fits = below.y() + height() <= screen.bottom();
    const int top = fits ? below.y() : edit_->mapToGlobal(QPoint(0, 0)).y() - height();
    move(qBound(screen.left(), below.x(), qMax(screen.left(), screen.right() - width())),
         qMax(screen.top(), top));
    show();
    setFocus(Qt::PopupFocusReason);
}

void TCalculatorPopup::keyPressEvent(QKeyEvent* event)
{
    switch (VirtualKeyOf(*event)) {
    case VirtualKey::Enter:
        Accept();
        return;
    case VirtualKey::Escape:
    case VirtualKey::F1 + 3:
        Leave();
        return;
    case VirtualKey::Delete:
        calculator_.Clear();
        Refresh();
        return;
    default:
        if (const QChar key = CharacterOf(*event); !key.isNull())
            Press(key);
    }
}

void TCalculatorPopup::Press(QChar key)
{
    refusal_.clear();
    calculator_.Press(key);
    Refresh();
}

void TCalculatorPopup::Accept()
{
    calculator_.Finish();
    const QString result = calculator_.Result();
    // The edit's handlers run in between and may destroy it, and this with it.
    const QPointer<TCalculatorPopup> alive = this;
    const QString refusal = result.isEmpty() ? QString() : take_(result);
    if (!alive)
        return;
    refusal_ = refusal;
    if (!result.isEmpty() && refusal_.isEmpty())
        Leave();
    else
        Refresh();
}

void TCalculatorPopup::Leave()
{
    // Some platforms make a popup the active window and forget which one was before.
    edit_->activateWindow();
    close();
}

void TCalculatorPopup::Refresh()
{
    pending_->setText(calculator_.Pending());
    number_->setText(calculator_.Display());
    message_->setText(calculator_.Error().isEmpty() ? refusal_ : calculator_.Error());
}
