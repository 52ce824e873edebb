#include "CategoryDetails.h"

#include "Look.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartCheckBox_TRV.h"
#include "SmartLabel_TRV.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int detailsWidth = 280;

QLabel* NewParagraph(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignTop);
    return label;
}

} // namespace

TCategoryDetails::TCategoryDetails(QWidget* parent)
    : QWidget(parent), name_(new TSmartLabel_TRV(this)), path_(NewParagraph(this)), use_(NewParagraph(this)),
      namesakes_(NewParagraph(this)), goods_(new TSmartCheckBox_TRV(this)),
      persons_(new TSmartCheckBox_TRV(this))
{
    setFixedWidth(detailsWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::Margin, 0, Look::Margin, Look::Margin);
    column->setSpacing(Look::Margin);
    AddLabels(column);
    AddBoxes(column);
    column->addStretch(1);
}

TCategoryDetails::~TCategoryDetails() = default;

void TCategoryDetails::AddLabels(QVBoxLayout* column)
{
    name_->SetShowAccelChar(false);
    name_->setFont(RelativeFonts::Bold());
    column->addWidget(name_);
    column->addWidget(path_);
    column->addWidget(use_);
    column->addWidget(namesakes_);
    use_->setObjectName(QStringLiteral("CategoryUse"));
    namesakes_->setObjectName(QStringLiteral("CategoryNamesakes"));
}

void TCategoryDetails::AddBoxes(QVBoxLayout* column)
{
    column->addSpacing(Look::Margin);
    auto* heading = new TSmartLabel_TRV(this);
    heading->setFont(RelativeFonts::Bold());
    heading->SetCaption(QStringLiteral("پیش‌فرض من"));
    column->addWidget(heading);
    goods_->setText(QStringLiteral("برای فهرست &کالاها"));
    goods_->setObjectName(QStringLiteral("DefaultForGoods_CHK"));
    persons_->setText(QStringLiteral("برای فهرست &اشخاص"));
    persons_->setObjectName(QStringLiteral("DefaultForPersons_CHK"));
    column->addWidget(goods_);
    column->addWidget(persons_);
    // Only what the user does is written; showing a category switches the boxes too.
    connect(goods_, &QAbstractButton::clicked, this,
            [this](bool on) { Q_EMIT defaultWanted(TCategoryStore::TListKind::Goods, on); });
    connect(persons_, &QAbstractButton::clicked, this,
            [this](bool on) { Q_EMIT defaultWanted(TCategoryStore::TListKind::Persons, on); });
}

void TCategoryDetails::Show(const TCategoryOutline& outline, int place, const TCategoryUse& use,
                            const TDefaultCategories& defaults)
{
    const bool any = place >= 0;
    const int id = any ? outline.At(place).Id : 0;
    name_->SetCaption(any ? outline.At(place).Name : QString());
    path_->setText(any ? outline.PathText(place) : QString());
    use_->setText(
        any ? PersianText::WithIsolatedCodes(
                  QStringLiteral(
                      "زیردسته‌ها: %1 (در همهٔ سطح‌ها %2)\nکالاها: %3\nاشخاص: %4")
                      .arg(use.Children)
                      .arg(outline.CountUnder(place))
                      .arg(use.Goods)
                      .arg(use.Persons))
            : QString());
    const int namesakes = any ? outline.NamesakesOf(place) : 0;
    namesakes_->setVisible(namesakes > 0);
    namesakes_->setText(
        QStringLiteral(
            "%1 دستهٔ دیگر نیز همین نام را دارد. در نوار دسته، دسته‌های همنام یکی دیده می‌شوند: آن "
            "که کدش کوچک‌تر است.")
            .arg(namesakes));
    goods_->setEnabled(any);
    persons_->setEnabled(any);
    goods_->SetChecked(any && id == defaults.Goods);
    persons_->SetChecked(any && id == defaults.Persons);
}

QString TCategoryDetails::UseText() const
{
    return use_->text();
}

QString TCategoryDetails::NamesakeText() const
{
    return namesakes_->isHidden() ? QString() : namesakes_->text();
}
