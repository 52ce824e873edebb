#include "NxExpandPanel.h"

#include "ExpandHeader.h"

#include <QLayout>

TNxExpandPanel::TNxExpandPanel(QWidget* parent) : QWidget(parent), header_(new TExpandHeader(this))
{
    // Whatever layout the form gives the panel begins below the header.
    setContentsMargins(0, header_->sizeHint().height(), 0, 0);
    connect(header_, &TExpandHeader::wanted, this, &TNxExpandPanel::SetExpanded);
}

TNxExpandPanel::~TNxExpandPanel() = default;

void TNxExpandPanel::SetCollapsedText(const QString& text)
{
    collapsedText_ = text;
    ShowState();
}

void TNxExpandPanel::SetExpandedText(const QString& text)
{
    expandedText_ = text;
    ShowState();
}

void TNxExpandPanel::SetExpanded(bool expanded)
{
    if (expanded == expanded_)
        return;
    expanded_ = expanded;
    ShowState();
    const QPointer<TNxExpandPanel> alive(this);
    // A copy, because the handler may replace itself or destroy the panel.
    if (const TNotifyEvent running = OnExpandedChange)
        running(this);
    if (alive)
        Q_EMIT expandedChanged(expanded);
}

void TNxExpandPanel::SetBody(QWidget* body)
{
    body_ = body;
    ShowState();
}

void TNxExpandPanel::ShowState()
{
    header_->ShowState(expanded_, expanded_ ? expandedText_ : collapsedText_);
    if (body_ == nullptr)
        return;
    const QWidget* focused = focusWidget();
    if (!expanded_ && focused != nullptr && (focused == body_ || body_->isAncestorOf(focused)))
        header_->setFocus();
    body_->setVisible(expanded_);
    updateGeometry();
}

QSize TNxExpandPanel::sizeHint() const
{
    const int top = contentsMargins().top();
    return layout() != nullptr ? QWidget::sizeHint() : header_->sizeHint().expandedTo({0, top});
}

QSize TNxExpandPanel::minimumSizeHint() const
{
    return layout() != nullptr ? QWidget::minimumSizeHint() : QSize(0, contentsMargins().top());
}

void TNxExpandPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    header_->setGeometry(0, 0, width(), contentsMargins().top());
}
