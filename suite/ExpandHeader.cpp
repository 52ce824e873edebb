#include "ExpandHeader.h"

#include "Look.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int ArrowSize = 16;

class TAccessibleExpandHeader : public QAccessibleWidget
{
public:
    explicit TAccessibleExpandHeader(TExpandHeader* header)
        : QAccessibleWidget(header, QAccessible::Button), header_(header)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? header_->text() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = header_->IsExpanded();
        state.collapsed = !header_->IsExpanded();
        return state;
    }
    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            header_->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    TExpandHeader* header_;
};

QAccessibleInterface* NewAccessibleHeader(const QString& /*className*/, QObject* object)
{
    auto* header = qobject_cast<TExpandHeader*>(object);
    return header != nullptr ? new TAccessibleExpandHeader(header) : nullptr;
}

} // namespace

TExpandHeader::TExpandHeader(QWidget* parent) : QAbstractButton(parent)
{
    static const bool known = (QAccessible::installFactory(&NewAccessibleHeader), true);
    Q_UNUSED(known)
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT wanted(!expanded_); });
}

TExpandHeader::~TExpandHeader() = default;

void TExpandHeader::ShowState(bool expanded, const QString& text)
{
    const bool turned = expanded != expanded_;
    expanded_ = expanded;
    setText(text);
    if (!turned)
        return;
    update();
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
}

QSize TExpandHeader::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + ArrowSize + 3 * Look::Margin, Look::ControlHeight};
}

void TExpandHeader::keyPressEvent(QKeyEvent* event)
{
    const int closing = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    const int opening = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        Q_EMIT wanted(!expanded_);
    else if (key == opening || key == Qt::Key_Down)
        Q_EMIT wanted(true);
    else if (key == closing || key == Qt::Key_Up)
        Q_EMIT wanted(false);
    else
        QAbstractButton::keyPressEvent(event);
}

void TExpandHeader::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(underMouse() ? QPalette::AlternateBase : QPalette::Window));
    painter.setPen(Look::Color(Look::TRole::Grid));
    painter.drawLine(rect().bottomLeft(), rect().bottomRight());
    const QRect area = rect().adjusted(Look::Margin, 0, -Look::Margin, 0);
    const auto mirrored = [&](const QRect& part) {
        return QStyle::visualRect(layoutDirection(), area, part);
    };
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = mirrored({area.left(), (height() - ArrowSize) / 2, ArrowSize, ArrowSize});
    style()->drawPrimitive(expanded_ ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &arrow,
                           &painter, this);
    const int beside = ArrowSize + Look::Margin;
    style()->drawItemText(&painter, mirrored(area.adjusted(beside, 0, 0, 0)),
                          static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                              Qt::AlignVCenter | Qt::TextForceRightToLeft,
                          palette(), isEnabled(), text(), QPalette::WindowText);
    if (hasFocus())
        Look::PaintRing(painter, rect(), Look::RingColor(palette()));
}
