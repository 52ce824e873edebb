#include "HelpWindow.h"

#include "Look.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct TKeyHelp
{
    const char16_t* Key;
    const char16_t* Meaning;
};

constexpr TKeyHelp keys[] = {
    {u"F10", u"رفتن به فیلد جستجو؛ با ↑ و ↓ فیلد را برگزینید و با Tab به جای نوشتن بروید"},
    {u"Enter", u"جستجوی بی‌درنگ و باز کردن کارت ردیف پیدا شده"},
    {u"↓ ↑", u"از جای نوشتن به فهرست؛ در فهرست، ردیف بعدی و قبلی"},
    {u"Escape", u"پاک کردن جستجو، بستن کارت"},
    {u"Alt+ن", u"وارونه کردن جستجو: ردیف‌هایی که چنین نیستند"},
    {u"F5", u"خواندن دوبارهٔ فهرست"},
    {u"F7",
     u"مرتب‌سازی؛ انتخاب دوبارهٔ همان ستون ترتیب را وارونه "
     u"می‌کند"},
    {u"PageDown PageUp", u"صفحهٔ بعدی و قبلی؛ در کارت، رکورد بعدی و قبلی"},
    {u"Ctrl+1  Ctrl+2", u"فهرست کالاها، فهرست اشخاص"},
    {u"Ctrl+Q", u"خروج"},
};

void AddLine(QGridLayout* grid, int row, const TKeyHelp& line, QWidget* parent)
{
    auto* key = new TSmartLabel_TRV(parent);
    key->setTextFormat(Qt::PlainText);
    key->setFont(RelativeFonts::Bold());
    key->SetCaption(PersianText::Isolated(QString::fromUtf16(line.Key)));
    auto* meaning = new TSmartLabel_TRV(parent);
    meaning->setTextFormat(Qt::PlainText);
    meaning->SetCaption(QString::fromUtf16(line.Meaning));
    grid->addWidget(key, row, 0);
    grid->addWidget(meaning, row, 1);
}

} // namespace

THelpWindow::THelpWindow(QWidget* parent) : QDialog(parent)
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("کلیدها"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Look::GroupGap);
    grid->setVerticalSpacing(Look::LineGap);
    int row = 0;
    for (const TKeyHelp& line : keys)
        AddLine(grid, row++, line, this);
    column->addLayout(grid);
    auto* close = new QPushButton(QStringLiteral("ب&ستن"), this);
    close->setMinimumHeight(Look::ControlHeight);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    // Mirrored: the left end, where every dialog has its buttons.
    column->addWidget(close, 0, Qt::AlignRight);
}

THelpWindow::~THelpWindow() = default;
