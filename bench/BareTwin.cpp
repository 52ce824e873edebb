#include "BareTwin.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

TBareTwin::TBareTwin(const QWidget& form)
{
    Take(form, -1);
    for (size_t index = 0; index < taken_.size(); ++index) {
        const auto* label = qobject_cast<const QLabel*>(taken_[index]);
        if (label != nullptr && label->buddy() != label)
            controls_[index].Buddy = IndexOf(label->buddy());
        TakeLayout(*taken_[index], static_cast<int>(index));
    }
    taken_.clear();
}

int TBareTwin::ControlCount() const
{
    return static_cast<int>(std::count_if(controls_.begin(), controls_.end(),
                                          [](const TControl& control) { return control.Kind != Menu; }));
}

TBareTwin::TKind TBareTwin::KindOf(const QWidget& widget)
{
    const auto is = [&widget](const QMetaObject& kind) { return widget.metaObject()->inherits(&kind); };
    if (is(QMenu::staticMetaObject))
        return Menu;
    if (is(QLabel::staticMetaObject))
        return Label;
    if (is(QCheckBox::staticMetaObject))
        return Check;
    if (is(QAbstractButton::staticMetaObject))
        return Button;
    if (is(QComboBox::staticMetaObject))
        return Combo;
    if (is(QLineEdit::staticMetaObject))
        return Edit;
    if (is(QTabBar::staticMetaObject))
        return Tabs;
    if (is(QAbstractItemView::staticMetaObject))
        return Grid;
    return is(QFrame::staticMetaObject) ? Panel : Plain;
}

int TBareTwin::IndexOf(const QWidget* widget) const
{
    const auto found = std::find(taken_.begin(), taken_.end(), widget);
    return widget == nullptr || found == taken_.end() ? -1 : static_cast<int>(found - taken_.begin());
}

// What a control of the toolkit is made of is there again when it is made; a button that was put into an edit
// is not.
bool TBareTwin::StandsIn(const QWidget& part, const TControl& whole)
{
    const bool isMenu = qobject_cast<const QMenu*>(&part) != nullptr;
    if (part.isWindow() && !isMenu)
        return false;
    const bool isButton = qobject_cast<const QAbstractButton*>(&part) != nullptr &&
                          qobject_cast<const QToolButton*>(&part) == nullptr;
    return whole.Kind == Plain || whole.Kind == Panel || (whole.Kind == Edit && isButton);
}

void TBareTwin::Take(const QWidget& widget, int parent)
{
    TControl control;
    control.Kind = KindOf(widget);
    control.Parent = parent;
    control.Name = widget.objectName();
    control.Place = widget.geometry();
    control.Hidden = control.Kind != Menu && widget.isHidden() && parent >= 0;
    TakeTexts(widget, control);
    const std::unique_ptr<QWidget> plain(New(control.Kind, control.Text, nullptr));
    TakeLook(widget, *plain, control);
    const int index = static_cast<int>(controls_.size());
    controls_.push_back(control);
    taken_.push_back(&widget);
    for (const QObject* child : widget.children()) {
        const auto* part = qobject_cast<const QWidget*>(child);
        if (part != nullptr && StandsIn(*part, control))
            Take(*part, index);
    }
}

void TBareTwin::TakeTexts(const QWidget& widget, TControl& control)
{
    control.AccessibleName = widget.accessibleName();
    control.ToolTip = widget.toolTip();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        control.Text = label->text();
        control.WrapsWords = label->wordWrap();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        control.Text = button->text();
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        control.Text = edit->text();
        control.Placeholder = edit->placeholderText();
        const auto actions = edit->actions();
        for (const QAction* action : actions)
            control.Actions.append(action->icon());
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int index = 0; index < combo->count(); ++index)
            control.Entries.append(combo->itemText(index));
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            control.Entries.append(tabs->tabText(index));
    } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        const auto actions = menu->actions();
        for (const QAction* action : actions)
            control.Entries.append(action->text());
    }
}

void TBareTwin::TakeLook(const QWidget& widget, const QWidget& plain, TControl& control)
{
    control.Least = widget.minimumSize();
    control.Greatest = widget.maximumSize();
    control.Policy = widget.sizePolicy();
    control.HasPolicy = control.Policy != plain.sizePolicy();
    control.Focus = widget.focusPolicy();
    control.HasFocus = control.Focus != plain.focusPolicy();
    control.HasFont = widget.testAttribute(Qt::WA_SetFont);
    control.Font = widget.font();
    control.HasColors = widget.testAttribute(Qt::WA_SetPalette);
    control.Colors = widget.palette();
    control.IsRightToLeft = widget.testAttribute(Qt::WA_SetLayoutDirection) && widget.isRightToLeft();
    if (const auto* frame = qobject_cast<const QFrame*>(&widget); frame != nullptr && control.Kind == Panel)
        control.FrameStyle = frame->frameStyle();
    const QVariant alignment = widget.property("alignment");
    control.HasAlignment = alignment.isValid() && alignment != plain.property("alignment");
    control.Alignment = alignment.value<Qt::Alignment>();
    if (const auto* grid = qobject_cast<const QTableView*>(&widget))
        control.HidesRowHeader = grid->verticalHeader()->isHidden();
}

void TBareTwin::TakeLayout(const QWidget& owner, int index)
{
    QLayout* const layout = owner.layout();
    if (layout == nullptr || controls_[static_cast<size_t>(index)].Kind == Menu)
        return;
    const auto* cells = qobject_cast<const QGridLayout*>(layout);
    const auto* box = qobject_cast<const QBoxLayout*>(layout);
    const bool isColumn = box != nullptr && box->direction() == QBoxLayout::TopToBottom;
    TLines lines;
    lines.Owner = index;
    lines.Shape = cells != nullptr ? TLines::InCells : isColumn ? TLines::Vertical : TLines::Horizontal;
    lines.Margins = layout->contentsMargins();
    lines.Spacing = cells != nullptr ? cells->horizontalSpacing() : layout->spacing();
    for (int place = 0; place < layout->count(); ++place) {
        QLayoutItem* const laidOut = layout->itemAt(place);
        TItem item;
        item.Control = IndexOf(laidOut->widget());
        if (QSpacerItem* const space = laidOut->spacerItem()) {
            item.Space = space->sizeHint();
            item.SpacePolicy = space->sizePolicy();
        }
        int rows = 1;
        int columns = 1;
        if (cells != nullptr)
            cells->getItemPosition(place, &item.Row, &item.Column, &rows, &columns);
        item.Stretch = cells != nullptr ? cells->columnStretch(item.Column)
                       : box != nullptr ? box->stretch(place)
                                        : 0;
        lines.Items.append(item);
    }
    layouts_.push_back(lines);
}

QWidget* TBareTwin::New(TKind kind, const QString& text, QWidget* parent)
{
    switch (kind) {
    case Panel:
        return new QFrame(parent);
    case Label:
        return new QLabel(text, parent);
    case Button:
        return new QPushButton(text, parent);
    case Check:
        return new QCheckBox(text, parent);
    case Combo:
        return new QComboBox(parent);
    case Edit:
        return new QLineEdit(text, parent);
    case Tabs:
        return new QTabBar(parent);
    case Grid:
        return new QTableWidget(parent);
    case Menu:
        return new QMenu(parent);
    case Plain:
        break;
    }
    return new QWidget(parent);
}

void TBareTwin::Dress(const TControl& control, QWidget* widget)
{
    widget->setObjectName(control.Name);
    if (control.IsRightToLeft)
        widget->setLayoutDirection(Qt::RightToLeft);
    if (!control.Least.isNull())
        widget->setMinimumSize(control.Least);
    if (control.Greatest != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))
        widget->setMaximumSize(control.Greatest);
    if (control.HasPolicy)
        widget->setSizePolicy(control.Policy);
    if (control.HasFocus)
        widget->setFocusPolicy(control.Focus);
    if (control.HasFont)
        widget->setFont(control.Font);
    if (control.HasColors)
        widget->setPalette(control.Colors);
    if (!control.AccessibleName.isEmpty())
        widget->setAccessibleName(control.AccessibleName);
    if (!control.ToolTip.isEmpty())
        widget->setToolTip(control.ToolTip);
}

void TBareTwin::Fill(const TControl& control, QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        if (control.HasAlignment)
            label->setAlignment(control.Alignment);
        if (control.WrapsWords)
            label->setWordWrap(true);
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        if (control.HasAlignment)
            edit->setAlignment(control.Alignment);
        if (!control.Placeholder.isEmpty())
            edit->setPlaceholderText(control.Placeholder);
        for (const QIcon& action : control.Actions)
            edit->addAction(action, QLineEdit::LeadingPosition);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        for (const QString& entry : control.Entries)
            combo->addItem(entry);
    } else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
        for (const QString& entry : control.Entries)
            tabs->addTab(entry);
    } else if (auto* menu = qobject_cast<QMenu*>(widget)) {
        for (const QString& entry : control.Entries)
            menu->addAction(entry);
    } else if (auto* grid = qobject_cast<QTableView*>(widget)) {
        if (control.HidesRowHeader)
            grid->verticalHeader()->hide();
    } else if (auto* panel = qobject_cast<QFrame*>(widget); panel != nullptr && control.FrameStyle != 0) {
        panel->setFrameStyle(control.FrameStyle);
    }
}

void TBareTwin::LayOut(const TLines& lines, const std::vector<QWidget*>& made)
{
    QWidget* const owner = made[static_cast<size_t>(lines.Owner)];
    auto* const cells = lines.Shape == TLines::InCells ? new QGridLayout(owner) : nullptr;
    QBoxLayout* box = nullptr;
    if (lines.Shape == TLines::Horizontal)
        box = new QHBoxLayout(owner);
    else if (lines.Shape == TLines::Vertical)
        box = new QVBoxLayout(owner);
    owner->layout()->setContentsMargins(lines.Margins);
    owner->layout()->setSpacing(lines.Spacing);
    for (const TItem& item : lines.Items) {
        QWidget* const widget = item.Control < 0 ? nullptr : made[static_cast<size_t>(item.Control)];
        if (cells != nullptr && widget != nullptr) {
            cells->addWidget(widget, item.Row, item.Column);
            cells->setColumnStretch(item.Column, item.Stretch);
        } else if (box != nullptr && widget != nullptr) {
            box->addWidget(widget, item.Stretch);
        } else if (box != nullptr) {
            box->addSpacerItem(new QSpacerItem(item.Space.width(), item.Space.height(),
                                               item.SpacePolicy.horizontalPolicy(),
                                               item.SpacePolicy.verticalPolicy()));
        }
    }
}

QWidget* TBareTwin::Make() const
{
    std::vector<QWidget*> made;
    made.reserve(controls_.size());
    for (const TControl& control : controls_) {
        QWidget* const parent = control.Parent < 0 ? nullptr : made[static_cast<size_t>(control.Parent)];
        QWidget* const widget = New(control.Kind, control.Text, parent);
        Dress(control, widget);
        Fill(control, widget);
        made.push_back(widget);
    }
    for (const TLines& lines : layouts_)
        LayOut(lines, made);
    for (size_t index = 0; index < controls_.size(); ++index) {
        const TControl& control = controls_[index];
        const bool isPlaced = control.Parent < 0 || made[index]->parentWidget()->layout() == nullptr;
        if (isPlaced && control.Kind != Menu)
            made[index]->setGeometry(control.Place);
        if (control.Buddy >= 0)
            static_cast<QLabel*>(made[index])->setBuddy(made[static_cast<size_t>(control.Buddy)]);
        if (control.Hidden)
            made[index]->hide();
    }
    return made.front();
}
