#include "ListFooter.h"

#include "BusySign.h"
#include "DisplayText.h"
#include "Look.h"
#include "PagedDataSet.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {

constexpr int busySignAfter = 300;
constexpr int patienceTextAfter = 2000;

TSmartLabel_TRV* NewLabel(QWidget* parent, const QString& name)
{
    auto* label = new TSmartLabel_TRV(parent);
    label->setObjectName(name);
    label->setFont(RelativeFonts::Small());
    label->setTextFormat(Qt::PlainText);
    return label;
}

void PrepareDelay(QTimer& timer, int milliseconds)
{
    timer.setSingleShot(true);
    timer.setInterval(milliseconds);
}

} // namespace

TListFooter::TListFooter(TPagedDataSet& dataSet, QWidget* parent)
    : QWidget(parent), dataSet_(&dataSet), words_(NewLabel(this, QStringLiteral("ConditionInWords"))),
      patience_(NewLabel(this, QStringLiteral("Patience"))),
      marked_(NewLabel(this, QStringLiteral("MarkedCount"))),
      count_(NewLabel(this, QStringLiteral("RowCount"))), sign_(new TBusySign(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, Look::Unit, Look::Margin, Look::Unit);
    row->setSpacing(Look::Margin);
    row->addWidget(words_, 1);
    row->addWidget(patience_);
    row->addWidget(sign_);
    row->addWidget(marked_);
    row->addWidget(count_);
    marked_->setFont(RelativeFonts::SmallBold());
    marked_->hide();
    words_->setForegroundRole(QPalette::Link);
    words_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    patience_->SetCaption(QStringLiteral("کلید %1 این جستجو را رها می‌کند")
                              .arg(PersianText::Isolated(QStringLiteral("Escape"))));
    patience_->hide();
    sign_->hide();
    PrepareDelay(signDelay_, busySignAfter);
    PrepareDelay(patienceDelay_, patienceTextAfter);
    connect(&signDelay_, &QTimer::timeout, sign_, &QWidget::show);
    connect(&patienceDelay_, &QTimer::timeout, patience_, &QWidget::show);
    connect(dataSet_, &TPagedDataSet::countChanged, this, &TListFooter::ShowCount);
    connect(dataSet_, &TPagedDataSet::dataChanged, this, &TListFooter::ShowCount);
    connect(dataSet_, &TPagedDataSet::busyChanged, this, &TListFooter::FollowBusy);
    ShowCount();
}

TListFooter::~TListFooter() = default;

void TListFooter::SetConditionInWords(const QString& words)
{
    words_->SetCaption(words);
    words_->setToolTip(words);
}

QString TListFooter::ConditionInWords() const
{
    return words_->Caption();
}

QString TListFooter::CountText() const
{
    return count_->Caption();
}

void TListFooter::SetMarkedCount(qsizetype count)
{
    marked_->setVisible(count > 0);
    marked_->SetCaption(QStringLiteral("%1 ردیف برگزیده").arg(count));
}

QString TListFooter::MarkedText() const
{
    return marked_->isHidden() ? QString() : marked_->Caption();
}

bool TListFooter::ShowsBusy() const
{
    return !sign_->isHidden();
}

void TListFooter::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The grouping sign goes with the digits.
    if (event->type() == QEvent::FontChange)
        ShowCount();
}

void TListFooter::ShowCount()
{
    if (!dataSet_->Active())
        count_->Clear();
    else if (dataSet_->CountIsExact())
        count_->SetCaption(DisplayText::RowCount(dataSet_->RecordCount()));
    else
        count_->SetCaption(QStringLiteral("در حال شمارش…"));
}

void TListFooter::FollowBusy(bool busy)
{
    if (busy) {
        signDelay_.start();
        patienceDelay_.start();
        return;
    }
    signDelay_.stop();
    patienceDelay_.stop();
    sign_->hide();
    patience_->hide();
}
