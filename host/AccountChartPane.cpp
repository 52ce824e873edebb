#include "AccountChartPane.h"

#include "Look.h"
#include "MirroredTreeView.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TypeToFind.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

TAccountChartPane::TAccountChartPane(TAccountTree& tree, const QString& emptyText, QWidget* parent)
    : QWidget(parent), tree_(&tree), emptyText_(emptyText), model_(tree), view_(new TMirroredTreeView(this)),
      search_(new TSmartEdit_TRV(this))
{
    Lay();
    view_->setModel(&model_);
    view_->SetEmptyText(emptyText_);
    search_->OnChange = [this](QObject* /*Sender*/) { ApplySearch(); };
    const auto* keys = new TTypeToFind(search_, view_, this);
    connect(keys, &TTypeToFind::chosen, this, &TAccountChartPane::chosen);
    connect(view_, &TMirroredTreeView::rowChosen, this, &TAccountChartPane::chosen);
    connect(view_, &TMirroredTreeView::deeper, this, &TAccountChartPane::deeper);
    connect(view_, &TMirroredTreeView::currentMoved, this, &TAccountChartPane::currentMoved);
    OpenMatches();
}

void TAccountChartPane::Lay()
{
    const QString caption = QStringLiteral("حساب‌ها");
    search_->setObjectName(QStringLiteral("ChartSearch"));
    search_->setPlaceholderText(QStringLiteral("کد یا نام حساب"));
    search_->setAccessibleName(QStringLiteral("جستجوی حساب"));
    view_->setObjectName(QStringLiteral("Chart"));
    view_->setAccessibleName(caption);
    auto* label = new TSmartLabel_TRV(this);
    label->SetCaption(caption);
    label->SetFocusControl(search_);
    auto* line = new QHBoxLayout;
    line->setSpacing(Look::Margin);
    line->addWidget(label);
    line->addWidget(search_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::LineGap);
    column->addLayout(line);
    column->addWidget(view_, 1);
}

void TAccountChartPane::Show(int place)
{
    const QModelIndex index = model_.IndexOf(place);
    if (!index.isValid())
        return;
    view_->setCurrentIndex(index);
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        view_->expand(above);
    ScrollToCurrent();
}

/// As many of the accounts above the current one stay in view as there is room for.
void TAccountChartPane::ScrollToCurrent()
{
    const QModelIndex current = view_->currentIndex();
    view_->scrollTo(current);
    const int room = view_->viewport()->height();
    QModelIndex top = current.siblingAtColumn(TAccountTreeModel::CodeColumn);
    while (top.parent().isValid() &&
           view_->visualRect(current).bottom() - view_->visualRect(top.parent()).top() < room)
        top = top.parent();
    if (view_->visualRect(top).top() < 0)
        view_->scrollTo(top, QAbstractItemView::PositionAtTop);
}

void TAccountChartPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    ScrollToCurrent();
}

void TAccountChartPane::FocusList()
{
    view_->setFocus(Qt::OtherFocusReason);
}

int TAccountChartPane::Current() const
{
    return TAccountTreeModel::PlaceOf(view_->currentIndex());
}

void TAccountChartPane::ToggleCurrent()
{
    if (view_->currentIndex().isValid())
        view_->Toggle(view_->currentIndex().siblingAtColumn(TAccountTreeModel::CodeColumn));
}

void TAccountChartPane::ApplySearch()
{
    const int before = Current();
    const QString typed = search_->Text();
    model_.Filter(typed);
    view_->SetEmptyText(
        tree_->Count() == 0
            ? emptyText_
            : QStringLiteral(
                  "هیچ حسابی با «%1» جور نیست. متن جستجو را کوتاه‌تر کنید.")
                  .arg(typed.trimmed()));
    OpenMatches();
    Show(tree_->BestMatch() >= 0 ? tree_->BestMatch() : before);
    if (!view_->currentIndex().isValid())
        Q_EMIT currentMoved();
}

void TAccountChartPane::OpenMatches()
{
    for (int place = 0; place < tree_->Count(); ++place) {
        const TAccountNode& node = tree_->At(place);
        if (node.Level == TAccountNode::Group)
            view_->expand(model_.IndexOf(place));
        else if (node.Level == TAccountNode::Assistant && tree_->Matches(place))
            view_->expand(model_.IndexOf(node.Parent));
    }
}
