#include "SmartDetailView_TRV.h"

#include "GridCellText.h"
#include "Look.h"
#include "PersianText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QActionGroup>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <stdexcept>

namespace {

constexpr int ArrowSide = 16;
constexpr int ViewPadding = 6;
constexpr int TwoLineHeight = 48;
constexpr int UsualWidth = 160;
constexpr int LeastWidth = 80;

class TAccessibleDetailView : public QAccessibleWidget
{
public:
    explicit TAccessibleDetailView(TSmartDetailView_TRV* view)
        : QAccessibleWidget(view, QAccessible::ButtonMenu), view_(view)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return view_->ShownCaption();
        case QAccessible::Value:
            return view_->ShownValue();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

private:
    TSmartDetailView_TRV* view_;
};

QAccessibleInterface* NewAccessibleView(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<TSmartDetailView_TRV*>(object);
    return view != nullptr ? new TAccessibleDetailView(view) : nullptr;
}

} // namespace

TSmartDetailView_TRV::TSmartDetailView_TRV(QWidget* parent) : QFrame(parent)
{
    static const bool known = (QAccessible::installFactory(&NewAccessibleView), true);
    Q_UNUSED(known)
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

TSmartDetailView_TRV::~TSmartDetailView_TRV() = default;

int TSmartDetailView_TRV::AddItem(const TDetailItem& item)
{
    items_.append(item);
    UpdateValue();
    return ItemCount() - 1;
}

void TSmartDetailView_TRV::ClearItems()
{
    items_.clear();
    UpdateValue();
}

const TDetailItem& TSmartDetailView_TRV::Item(int index) const
{
    if (index < 0 || index >= ItemCount())
        throw std::out_of_range("TSmartDetailView_TRV: there is no item " + std::to_string(index));
    return items_.at(index);
}

TDetailItem& TSmartDetailView_TRV::ItemAt(int index)
{
    static_cast<void>(Item(index));
    return items_[index];
}

void TSmartDetailView_TRV::SetValue(int index, const QVariant& value)
{
    ItemAt(index).Value = value;
    UpdateValue();
}

void TSmartDetailView_TRV::SetDenied(int index, bool denied)
{
    ItemAt(index).Denied = denied;
    UpdateValue();
}

QMenu* TSmartDetailView_TRV::PopupMenu()
{
    if (menu_ == nullptr)
        menu_ = new QMenu(this);
    return menu_;
}

void TSmartDetailView_TRV::Fill_PopMenu()
{
    QMenu* const menu = PopupMenu();
    menu->clear();
    delete menu->findChild<QActionGroup*>();
    auto* choices = new QActionGroup(menu);
    for (int index = 0; index < ItemCount(); ++index) {
        if (!items_.at(index).Selectable)
            continue;
        QAction* action = menu->addAction(items_.at(index).Caption);
        action->setCheckable(true);
        action->setData(index);
        choices->addAction(action);
        connect(action, &QAction::triggered, this, [this, index] { Choose(index); });
    }
    menu->addSeparator();
    QAction* copy = menu->addAction(QStringLiteral("کپی مقدار\tCtrl+C"));
    connect(copy, &QAction::triggered, this, &TSmartDetailView_TRV::CopyValue);
    const TDetailItem* shown = Current();
    SetItemIndex(shown != nullptr && shown->Selectable ? itemIndex_ : 0);
}

void TSmartDetailView_TRV::SetItemIndex(int index)
{
    itemIndex_ = qMax(0, index);
    const auto actions = menu_ != nullptr ? menu_->actions() : QList<QAction*>();
    for (QAction* action : actions) {
        if (action->isCheckable())
            action->setChecked(action->data().toInt() == itemIndex_);
    }
    UpdateValue();
}

void TSmartDetailView_TRV::SetAccessDeniedText(const QString& text)
{
    deniedText_ = text;
    UpdateValue();
}

void TSmartDetailView_TRV::SetOneLine(bool oneLine)
{
    oneLine_ = oneLine;
    updateGeometry();
    update();
}

void TSmartDetailView_TRV::SetDataSource(TDataSource* source)
{
    if (source_ != nullptr)
        source_->disconnect(this);
    source_ = source;
    if (source_ != nullptr) {
        connect(source_, &TDataSource::dataSetChanged, this, &TSmartDetailView_TRV::UpdateValue);
        connect(source_, &TDataSource::dataChanged, this, &TSmartDetailView_TRV::UpdateValue);
        connect(source_, &TDataSource::scrolled, this, &TSmartDetailView_TRV::UpdateValue);
    }
    UpdateValue();
}

void TSmartDetailView_TRV::UpdateValue()
{
    update();
    // Without anybody who listens the toolkit would make what it tells all the same.
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent change(this, ShownValue());
    QAccessible::updateAccessibility(&change);
}

const TDetailItem* TSmartDetailView_TRV::Current() const
{
    return itemIndex_ < ItemCount() ? &items_.at(itemIndex_) : nullptr;
}

QVariant TSmartDetailView_TRV::CurrentValue() const
{
    const TDetailItem* item = Current();
    if (item == nullptr)
        return {};
    if (item->FieldName.isEmpty())
        return item->Value;
    TDataSet* rows = source_ != nullptr ? source_->DataSet() : nullptr;
    if (rows == nullptr || !rows->Active() || rows->RecNo() == 0)
        return {};
    const TField* field = rows->FindField(item->FieldName);
    const QVariant value = field != nullptr ? field->Value() : QVariant();
    const bool isYesOrNo = field != nullptr && field->DataType() == TFieldType::ftBoolean && !value.isNull();
    return isYesOrNo ? QVariant(value.toBool()) : value;
}

QString TSmartDetailView_TRV::ShownCaption() const
{
    return Current() != nullptr ? Current()->Caption : QString();
}

QString TSmartDetailView_TRV::ShownValue() const
{
    const TDetailItem* item = Current();
    if (item == nullptr)
        return {};
    return item->Denied ? deniedText_ : GridCellText::Shown(CurrentValue(), item->Kind);
}

void TSmartDetailView_TRV::CopyValue() const
{
    const TDetailItem* item = Current();
    if (item != nullptr && !item->Denied)
        QGuiApplication::clipboard()->setText(GridCellText::Copied(CurrentValue(), item->Kind));
}

void TSmartDetailView_TRV::Choose(int index)
{
    if (index == itemIndex_)
        return;
    SetItemIndex(index);
    const QPointer<TSmartDetailView_TRV> alive(this);
    // A copy, because the handler may replace itself or destroy the view.
    if (const TNotifyEvent running = OnChange)
        running(this);
    if (alive)
        Q_EMIT itemChosen(index);
}

/// To the next or the previous item of the menu; from an item that is not in the menu to the first one.
void TSmartDetailView_TRV::Step(int step)
{
    const auto* choices = menu_ != nullptr ? menu_->findChild<QActionGroup*>() : nullptr;
    if (choices == nullptr || choices->actions().isEmpty())
        return;
    const auto actions = choices->actions();
    const auto shown = actions.indexOf(choices->checkedAction());
    const auto wanted = shown < 0 ? 0 : qBound<qsizetype>(0, shown + step, actions.size() - 1);
    Choose(actions.at(wanted)->data().toInt());
}

void TSmartDetailView_TRV::OpenMenu()
{
    if (menu_ == nullptr || menu_->isEmpty())
        return;
    const int x = isRightToLeft() ? width() - menu_->sizeHint().width() : 0;
    menu_->popup(mapToGlobal(QPoint(x, height())));
}

bool TSmartDetailView_TRV::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const QString value = ShownValue();
        if (fontMetrics().horizontalAdvance(value) > ValueRect().width()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), value, this);
            return true;
        }
    }
    return QFrame::event(event);
}

void TSmartDetailView_TRV::keyPressEvent(QKeyEvent* event)
{
    const bool withAlt = event->modifiers().testFlag(Qt::AltModifier);
    if (event->matches(QKeySequence::Copy)) {
        CopyValue();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        OpenMenu();
        break;
    case Qt::Key_Down:
        if (withAlt)
            OpenMenu();
        else
            Step(1);
        break;
    case Qt::Key_Up:
        Step(-1);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void TSmartDetailView_TRV::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && ArrowRect().contains(event->position().toPoint()))
        OpenMenu();
    else
        QFrame::mousePressEvent(event);
}

void TSmartDetailView_TRV::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() != QContextMenuEvent::Mouse)
        OpenMenu();
    else if (menu_ != nullptr && !menu_->isEmpty())
        menu_->popup(event->globalPos());
}

void TSmartDetailView_TRV::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
    update();
}

void TSmartDetailView_TRV::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    update();
}

QSize TSmartDetailView_TRV::sizeHint() const
{
    return {UsualWidth, oneLine_ ? Look::ControlHeight : TwoLineHeight};
}

QSize TSmartDetailView_TRV::minimumSizeHint() const
{
    return {LeastWidth, sizeHint().height()};
}

QRect TSmartDetailView_TRV::ArrowRect() const
{
    const QRect atTheLeadingEnd(width() - ViewPadding - ArrowSide, 0, ArrowSide, height());
    return QStyle::visualRect(layoutDirection(), rect(), atTheLeadingEnd);
}

QRect TSmartDetailView_TRV::CaptionRect() const
{
    const int whole = width() - 3 * ViewPadding - ArrowSide;
    const int wanted = fontMetrics().horizontalAdvance(ShownCaption()) + ViewPadding;
    const QRect area = oneLine_ ? QRect(ViewPadding, 0, qMin(wanted, whole / 2), height())
                                : QRect(ViewPadding, Look::RingWidth, whole, height() / 2 - Look::RingWidth);
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

QRect TSmartDetailView_TRV::ValueRect() const
{
    const int end = width() - 2 * ViewPadding - ArrowSide;
    const int begin = oneLine_ ? 2 * ViewPadding + CaptionRect().width() : ViewPadding;
    const int top = oneLine_ ? 0 : height() / 2;
    const QRect area(begin, top, end - begin, height() - top - (oneLine_ ? 0 : Look::RingWidth));
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

void TSmartDetailView_TRV::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(Look::Color(Look::TRole::Grid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QString caption = ShownCaption();
    painter.setPen(Look::Color(Look::TRole::SecondaryText));
    PaintText(painter, CaptionRect(), oneLine_ && !caption.isEmpty() ? caption + u':' : caption,
              Qt::TextForceRightToLeft);
    PaintValue(painter);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = ArrowRect();
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
    if (hasFocus())
        Look::PaintRing(painter, rect(), Look::RingColor(palette()));
}

void TSmartDetailView_TRV::PaintValue(QPainter& painter) const
{
    const TDetailItem* item = Current();
    if (item == nullptr)
        return;
    const QString value = ShownValue();
    const bool isNumeric = !item->Denied && GridCellText::IsNumeric(item->Kind);
    const bool isNegative = isNumeric && item->Kind != TGridColumn::ckCode && value.startsWith(u'-');
    painter.setPen(Look::Color(item->Denied || isNegative ? Look::TRole::Wrong : Look::TRole::Text));
    // Numbers run from left to right, so that the minus stands before the first digit, at the left.
    if (isNumeric)
        PaintText(painter, ValueRect(), value, Qt::TextForceLeftToRight);
    else
        PaintText(painter, ValueRect(), PersianText::WithIsolatedNumbers(value), Qt::TextForceRightToLeft);
}

void TSmartDetailView_TRV::PaintText(QPainter& painter, const QRect& area, const QString& text,
                                     Qt::TextFlag direction) const
{
    const auto leading = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    painter.drawText(area, leading | Qt::AlignVCenter | Qt::TextSingleLine | direction,
                     fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}
