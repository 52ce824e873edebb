#include "GalleryForm.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "FormParts.h"
#include "GalleryInspector.h"
#include "HostApplication.h"
#include "Look.h"
#include "PersianText.h"
#include "ReferenceHost.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int listWidth = 220;

/// The first or last control of a frame that Tab reaches, in the order of Tab; null where there is none.
QWidget* TabStop(const QWidget* frame, bool last)
{
    QWidget* found = nullptr;
    for (QWidget* widget = frame->nextInFocusChain(); frame->isAncestorOf(widget);
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        if (!last && widget->isVisible() && widget->isEnabled())
            return widget;
        if (last)
            found = widget;
    }
    return found;
}

} // namespace

TGalleryForm::TGalleryForm(TReferenceHost& host, QWidget* parent)
    : TPage(parent), host_(&host), entries_(GalleryEntries::All()), frames_(entries_.size(), nullptr)
{
    setObjectName(QStringLiteral("GalleryForm"));
    setWindowTitle(QStringLiteral("نمایشگاه قاب‌ها"));
    Lay();
    FillList();
    ConnectKeys();
    connect(&host.Connection(), &TADOConnection::willExecute, this, [this](const QString& text) {
        if (isVisible())
            inspector_->TellStatement(text);
    });
}

TGalleryForm::~TGalleryForm() = default;

void TGalleryForm::Lay()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    row->setSpacing(Look::Margin);
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("Frames_LST"));
    list_->setAccessibleName(QStringLiteral("قاب‌ها"));
    list_->setFixedWidth(listWidth);
    row->addWidget(list_);
    auto* column = new QVBoxLayout;
    column->setSpacing(Look::Margin);
    title_ = new QLabel(this);
    title_->setTextFormat(Qt::PlainText);
    column->addWidget(title_);
    column->addWidget(NewStage(), 2);
    inspector_ = new TGalleryInspector(this);
    column->addWidget(inspector_, 3);
    row->addLayout(column, 1);
}

QWidget* TGalleryForm::NewStage()
{
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    stack_ = new QStackedWidget(area);
    area->setWidget(stack_);
    return area;
}

void TGalleryForm::FillList()
{
    for (const TGalleryEntry& entry : qAsConst(entries_)) {
        auto* item = new QListWidgetItem(entry.Purpose, list_);
        item->setToolTip(entry.ClassName);
        // Filled when it is chosen.
        auto* page = new QWidget(stack_);
        auto* column = new QVBoxLayout(page);
        column->setContentsMargins(0, 0, 0, 0);
        stack_->addWidget(page);
    }
    connect(list_, &QListWidget::currentRowChanged, this, &TGalleryForm::ShowChosen);
    connect(list_, &QListWidget::itemActivated, this, &TGalleryForm::FocusFrame);
}

void TGalleryForm::ConnectKeys()
{
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_Tab, [this] { Step(1); });
    FormParts::OnKey(this, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { Step(-1); });
    // With Shift held, X11 sends another key for Tab.
    FormParts::OnKey(this, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, [this] { Step(-1); });
    FormParts::OnKey(this, Qt::Key_F6, [this] { SwitchBetweenListAndFrame(); });
}

QVector<TKeyHelp> TGalleryForm::Keys() const
{
    return {
        {QStringLiteral("↑  ↓"), QStringLiteral("در فهرست: قاب دیگر")},
        {QStringLiteral("Ctrl+Tab"), QStringLiteral("قاب بعدی؛ با Shift قاب پیشین")},
        {QStringLiteral("Enter"), QStringLiteral("در فهرست: رفتن به قاب")},
        {QStringLiteral("F6"), QStringLiteral("رفت و برگشت میان فهرست و قاب")},
        {QStringLiteral("Tab"), QStringLiteral("درون قاب و سپس شرط‌ها و دستورها")},
    };
}

void TGalleryForm::Enter()
{
    // Whoever gives the list the focus makes its first row current, but not chosen.
    if (list_->selectedItems().isEmpty())
        Choose(qMax(Chosen(), 0));
    if (focusWidget() == nullptr)
        list_->setFocus(Qt::OtherFocusReason);
    else
        focusWidget()->setFocus(Qt::OtherFocusReason);
}

void TGalleryForm::Choose(int index) const
{
    list_->setCurrentRow(index);
}

int TGalleryForm::Chosen() const
{
    return list_->currentRow();
}

TFrame* TGalleryForm::ShownFrame() const
{
    return frames_.value(Chosen());
}

void TGalleryForm::ShowChosen(int index)
{
    if (index < 0)
        return;
    const TGalleryEntry& entry = entries_.at(index);
    title_->setText(
        QStringLiteral("%1 — %2 (%3)")
            .arg(entry.Purpose, PersianText::Isolated(entry.ClassName), PersianText::Isolated(entry.Unit)));
    stack_->setCurrentIndex(index);
    if (frames_.at(index) == nullptr)
        MakeFrame(index);
    inspector_->Watch(frames_.at(index), entry);
}

void TGalleryForm::MakeFrame(int index)
{
    const TGalleryStage stage{*host_, [this](const QString& event) { inspector_->TellEvent(event); },
                              [this](const QString& text) { inspector_->TellStatement(text); }};
    QWidget* page = stack_->widget(index);
    try {
        TFrame* frame = entries_.at(index).Create(stage, page);
        frames_[index] = frame;
        auto* column = static_cast<QVBoxLayout*>(page->layout());
        column->addWidget(frame);
        // Bars that owners show when there is something to say are to be seen here in any case.
        frame->show();
        column->addStretch(1);
        PutIntoTabOrder(frame);
    } catch (const EADOError& error) {
        if (auto* application = qobject_cast<THostApplication*>(qApp))
            application->Report({error.Message(), error.ServerMessage()});
    }
}

/// New controls come last in the order of Tab; what is beside the frame follows it.
void TGalleryForm::PutIntoTabOrder(TFrame* frame) const
{
    QWidget* last = TabStop(frame, true);
    if (last == nullptr)
        return;
    setTabOrder(last, &inspector_->State());
    setTabOrder(&inspector_->State(), &inspector_->Journal());
}

void TGalleryForm::Step(int step)
{
    const TFrame* frame = ShownFrame();
    const bool inFrame = frame != nullptr && frame->isAncestorOf(QApplication::focusWidget());
    const int count = list_->count();
    // What is left may move the focus itself, so it is left first.
    list_->setFocus(Qt::ShortcutFocusReason);
    Choose((Chosen() + step + count) % count);
    if (inFrame)
        FocusFrame();
}

void TGalleryForm::FocusFrame() const
{
    const TFrame* frame = ShownFrame();
    QWidget* first = frame == nullptr ? nullptr : TabStop(frame, false);
    if (first != nullptr)
        first->setFocus(Qt::TabFocusReason);
}

void TGalleryForm::SwitchBetweenListAndFrame() const
{
    if (list_->hasFocus())
        FocusFrame();
    else
        list_->setFocus(Qt::ShortcutFocusReason);
}
