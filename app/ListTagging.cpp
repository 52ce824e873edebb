#include "ListTagging.h"

#include "AdvListEditorPer.h"
#include "Balloon.h"
#include "Category_Search_UNT.h"
#include "FormParts.h"
#include "KeyTip.h"
#include "ListSelection.h"
#include "Look.h"
#include "MessageDialog.h"
#include "PersianText.h"
#include "PopupMenu.h"
#include "RecordCategories.h"
#include "ReferenceHost.h"
#include "RelativeFonts.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "tags_frame.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int taggingWidth = 340;

} // namespace

TListTagging::TListTagging(const TListDescription& list, TListSelection& selection, TReferenceHost& host,
                           QWidget* parent)
    : QWidget(parent), list_(list), selection_(&selection), host_(&host), heading_(new TSmartLabel_TRV(this)),
      tags_(new TTags(this)), category_(new TCategory_frame(this))
{
    setFixedWidth(taggingWidth);
    Lay();
    tags_->Tags_editor->TableName = list_.Labels->Table;
    tags_->Tags_editor->KeyField = list_.Source.KeyField;
    connect(tags_, &TTags::tagsChanged, this, [this] {
        // The frame leaves the codes of what was put on from its grid to the next reading.
        QMetaObject::invokeMethod(this, &TListTagging::Load, Qt::QueuedConnection);
        Q_EMIT written();
    });
    category_->Select_btn->OnClick = [this](QObject*) {
        const TSmartButton_TRV& button = *category_->Select_btn;
        category_->PopupMenu1->Popup(button.mapToGlobal(button.rect().bottomRight()));
    };
    connect(selection_, &TListSelection::settled, this, &TListTagging::Follow);
}

TListTagging::~TListTagging() = default;

void TListTagging::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    column->setSpacing(Look::Margin);
    column->addWidget(NewHead());
    column->addWidget(tags_);
    // The tags grow and shrink with their suggestions; the category keeps its place.
    column->addStretch(1);
    column->addWidget(NewCategoryLines());
}

QWidget* TListTagging::NewHead()
{
    auto* head = new QWidget(this);
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    heading_->SetShowAccelChar(false);
    heading_->setFont(RelativeFonts::Bold());
    row->addWidget(heading_, 1);
    auto* close = FormParts::NewBarButton(head, QStringLiteral("CloseTagging_BTN"), QStringLiteral("بستن"));
    close->setFocusPolicy(Qt::NoFocus);
    close->setToolTip(KeyTip::Of(close->text(), QStringLiteral("F8")));
    close->OnClick = [this](QObject*) { Q_EMIT closed(); };
    row->addWidget(close);
    return head;
}

QWidget* TListTagging::NewCategoryLines()
{
    auto* lines = new QWidget(this);
    auto* column = new QVBoxLayout(lines);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::LineGap);
    column->addWidget(category_);
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::Margin);
    auto* assign = FormParts::NewBarButton(lines, QStringLiteral("AssignCategory_BTN"),
                                           QStringLiteral("&گذاشتن در این دسته"));
    assign->OnClick = [this](QObject*) { AssignCategory(); };
    auto* takeAway =
        FormParts::NewBarButton(lines, QStringLiteral("TakeCategory_BTN"), QStringLiteral("&برداشتن دسته"));
    takeAway->OnClick = [this](QObject*) { TakeCategoryAway(); };
    row->addWidget(assign);
    row->addWidget(takeAway);
    row->addStretch(1);
    column->addLayout(row);
    return lines;
}

void TListTagging::Open()
{
    if (isHidden()) {
        show();
        category_->open(true);
        Load();
    }
    tags_->Tags_editor->setFocus(Qt::ShortcutFocusReason);
}

void TListTagging::Follow()
{
    if (!isHidden() && selection_->Keys() != loaded_)
        Load();
}

void TListTagging::Load()
{
    loaded_ = selection_->Keys();
    const QString keys = loaded_.join(u',');
    tags_->Tags_editor->KeyList = u'(' + keys + u')';
    const QString key = list_.Source.KeyField;
    const QString condition =
        loaded_.isEmpty() ? QStringLiteral("1 = 0") : QStringLiteral("%1 IN (%2)").arg(key, keys);
    tags_->ADOQuery2->Close();
    tags_->ADOQuery2->SQL.SetText(QStringLiteral("SELECT tags AS TAGS FROM %1 WHERE %2 ORDER BY %3")
                                      .arg(list_.Labels->Table, condition, key));
    heading_->SetCaption(
        loaded_.size() == 1
            ? QStringLiteral("برچسب و دستهٔ %1 با کد %2").arg(list_.RecordName, loaded_.constFirst())
            : QStringLiteral("برچسب و دستهٔ %1 %2").arg(loaded_.size()).arg(list_.RecordName));
    tags_->setEnabled(!loaded_.isEmpty());
    tags_->frame_load();
}

QString TListTagging::HeadingText() const
{
    return heading_->Caption();
}

int TListTagging::ChosenCategory() const
{
    return category_->ChosenCategory();
}

void TListTagging::AssignCategory()
{
    const int category = ChosenCategory();
    if (category == 0) {
        category_->Editor->setFocus(Qt::OtherFocusReason);
        Balloon::Show(category_->Editor,
                      QStringLiteral("نخست دسته را برگزینید: نامش را بنویسید یا دکمهٔ کنار آن را بزنید."));
        return;
    }
    SpreadCategory(
        QStringLiteral("%1 %2 در دستهٔ «%3» گذاشته شود؟")
            .arg(selection_->Keys().size())
            .arg(list_.RecordName, PersianText::Isolated(category_->Editor->Values().Last().DisplayText)),
        [this, category](const QStringList& keys) {
            TRecordCategories(host_->Connection(), *list_.Labels, list_.Source.KeyField)
                .Assign(keys, category);
        });
}

void TListTagging::TakeCategoryAway()
{
    SpreadCategory(
        QStringLiteral("دستهٔ %1 %2 برداشته شود؟").arg(selection_->Keys().size()).arg(list_.RecordName),
        [this](const QStringList& keys) {
            TRecordCategories(host_->Connection(), *list_.Labels, list_.Source.KeyField).TakeAway(keys);
        });
}

void TListTagging::SpreadCategory(const QString& question,
                                  const std::function<void(const QStringList& keys)>& write)
{
    const QStringList keys = selection_->Keys();
    if (keys.isEmpty())
        return;
    TMessageDialog box(TMessageDialog::TKind::Question, question,
                       {TMessageDialog::YesButton(), TMessageDialog::NoButton()}, this);
    if (box.Ask() != TMessageDialog::YesButton().Result)
        return;
    write(keys);
    Q_EMIT written();
}
