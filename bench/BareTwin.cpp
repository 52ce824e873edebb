#include "BareTwin.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

TBareTwin::TBareTwin(const QWidget& form)
{
    Take(form, -1);
}

TBareTwin::TKind TBareTwin::KindOf(const QWidget& widget)
{
    if (qobject_cast<const QLabel*>(&widget) != nullptr)
        return Label;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr)
        return Check;
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr)
        return Button;
    if (qobject_cast<const QComboBox*>(&widget) != nullptr)
        return Combo;
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr)
        return Edit;
    if (qobject_cast<const QAbstractItemView*>(&widget) != nullptr)
        return Grid;
    return Plain;
}

void TBareTwin::Take(const QWidget& widget, int parent)
{
    TControl control;
    control.Kind = KindOf(widget);
    control.Parent = parent;
    control.Place = widget.geometry();
    control.LaysOut = widget.layout() != nullptr;
    control.Hidden = widget.isHidden();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        control.Text = label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        control.Text = button->text();
    controls_.push_back(control);
    // What a control of the toolkit is made of is there again when it is made.
    if (control.Kind != Plain)
        return;
    const int index = ControlCount() - 1;
    for (const QObject* child : widget.children()) {
        const auto* part = qobject_cast<const QWidget*>(child);
        if (part != nullptr && !part->isWindow())
            Take(*part, index);
    }
}

QWidget* TBareTwin::New(TKind kind, const QString& text, QWidget* parent)
{
    switch (kind) {
    case Label:
        return new QLabel(text, parent);
    case Button:
        return new QPushButton(text, parent);
    case Check:
        return new QCheckBox(text, parent);
    case Combo:
        return new QComboBox(parent);
    case Edit:
        return new QLineEdit(parent);
    case Grid:
        return new QTableView(parent);
    case Plain:
        break;
    }
    return new QWidget(parent);
}

QWidget* TBareTwin::Make() const
{
    std::vector<QWidget*> made;
    made.reserve(controls_.size());
    for (const TControl& control : controls_) {
        QWidget* const parent = control.Parent < 0 ? nullptr : made[static_cast<size_t>(control.Parent)];
        QWidget* const widget = New(control.Kind, control.Text, parent);
        if (control.LaysOut)
            new QHBoxLayout(widget);
        if (parent != nullptr && parent->layout() != nullptr)
            parent->layout()->addWidget(widget);
        else
            widget->setGeometry(control.Place);
        if (control.Hidden && parent != nullptr)
            widget->hide();
        made.push_back(widget);
    }
    return made.front();
}
