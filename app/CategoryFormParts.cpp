#include "CategoryCard.h"
#include "CategoryDetails.h"
#include "CategoryForm.h"
#include "FormParts.h"
#include "KeyTip.h"
#include "Look.h"
#include "MirroredTreeView.h"
#include "ReferenceHost.h"
#include "SmartButton_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TypeToFind.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace {

constexpr int categorySearchWidth = 260;
constexpr int categoryIdColumn = 90;
constexpr int categoryDefaultColumn = 150;
constexpr int detailsPause = 150; // milliseconds on a category before it is looked up

} // namespace

TCategoryForm::TCategoryForm(TReferenceHost& host, QWidget* parent)
    : TPage(parent), host_(&host), store_(host.Connection()), search_(new TSmartEdit_TRV(this)),
      tree_(new TMirroredTreeView(this)), details_(new TCategoryDetails(this)),
      hint_(new TSmartLabel_TRV(this))
{
    setObjectName(QStringLiteral("CategoryForm"));
    Lay();
    SetUpTree();
    ConnectKeys();
    detailsDelay_.setSingleShot(true);
    detailsDelay_.setInterval(detailsPause);
    connect(&detailsDelay_, &QTimer::timeout, this, &TCategoryForm::ShowDetails);
    connect(&model_, &TCategoryTreeModel::moveWanted, this, &TCategoryForm::Move, Qt::QueuedConnection);
    connect(details_, &TCategoryDetails::defaultWanted, this, &TCategoryForm::SetDefault);
    search_->OnChange = [this](QObject*) { ApplySearch(); };
}

TCategoryForm::~TCategoryForm()
{
    delete card_;
    // The model goes before the view does.
    search_->OnChange = nullptr;
    tree_->disconnect(this);
    tree_->setModel(nullptr);
}

void TCategoryForm::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    column->setSpacing(Look::Margin);
    column->addLayout(NewBar());
    column->addLayout(NewBody(), 1);
    hint_->SetShowAccelChar(false);
    hint_->setObjectName(QStringLiteral("CategoryHint"));
    column->addWidget(hint_);
}

QHBoxLayout* TCategoryForm::NewBar()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::Margin);
    search_->setObjectName(QStringLiteral("CategorySearch_EDT"));
    search_->setPlaceholderText(QStringLiteral("نام یا کد دسته"));
    search_->setAccessibleName(QStringLiteral("جستجوی دسته"));
    search_->setFixedSize(categorySearchWidth, Look::ControlHeight);
    row->addWidget(FormParts::NewLabel(QStringLiteral("&جستجو:"), search_));
    row->addWidget(search_);
    row->addStretch(1);
    const auto add = [this, row](const QString& name, const QString& caption, const QString& key,
                                 void (TCategoryForm::*action)()) {
        auto* button = FormParts::NewBarButton(this, name, caption);
        button->setToolTip(KeyTip::Of(caption, key));
        // The tree keeps the keyboard; every button has a key.
        button->setFocusPolicy(Qt::NoFocus);
        button->OnClick = [this, action](QObject*) { (this->*action)(); };
        row->addWidget(button);
    };
    add(QStringLiteral("AddTop_BTN"), QStringLiteral("دستهٔ تازه"), QStringLiteral("Ctrl+N"),
        &TCategoryForm::AddTop);
    add(QStringLiteral("AddChild_BTN"), QStringLiteral("زیردسته"), QStringLiteral("Insert"),
        &TCategoryForm::AddChild);
    add(QStringLiteral("Rename_BTN"), QStringLiteral("تغییر نام"), QStringLiteral("F2"),
        &TCategoryForm::Rename);
    add(QStringLiteral("PickUp_BTN"), QStringLiteral("جابه‌جایی"), QStringLiteral("Ctrl+X"),
        &TCategoryForm::PickUp);
    add(QStringLiteral("Delete_BTN"), QStringLiteral("حذف"), QStringLiteral("Delete"),
        &TCategoryForm::DeleteCurrent);
    return row;
}

QHBoxLayout* TCategoryForm::NewBody()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::Margin);
    row->addWidget(tree_, 1);
    row->addWidget(details_);
    return row;
}

void TCategoryForm::SetUpTree()
{
    tree_->setObjectName(QStringLiteral("CategoryTree"));
    tree_->setAccessibleName(QStringLiteral("دسته‌ها"));
    tree_->setModel(&model_);
    // The names take what the other columns leave.
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(TCategoryTreeModel::NameColumn, QHeaderView::Stretch);
    tree_->header()->resizeSection(TCategoryTreeModel::IdColumn, categoryIdColumn);
    tree_->header()->resizeSection(TCategoryTreeModel::DefaultColumn, categoryDefaultColumn);
    tree_->setDragDropMode(QAbstractItemView::DragDrop);
    tree_->setDefaultDropAction(Qt::MoveAction);
    tree_->setDragDropOverwriteMode(true); // onto a row, never between two: their order is that of the names
    tree_->setAutoExpandDelay(600);
    tree_->SetEmptyText(QStringLiteral(
        "هنوز دسته‌ای نیست. برای ساختن نخستین دسته Ctrl+N را بزنید."));
    connect(tree_, &TMirroredTreeView::currentMoved, &detailsDelay_, qOverload<>(&QTimer::start));
    connect(tree_, &TMirroredTreeView::rowChosen, this, &TCategoryForm::Rename);
    const auto* keys = new TTypeToFind(search_, tree_, this);
    connect(keys, &TTypeToFind::chosen, this, [this] {
        if (search_->hasFocus() || !search_->Text().isEmpty())
            NextMatch();
        else if (tree_->currentIndex().isValid())
            tree_->Toggle(tree_->currentIndex().siblingAtColumn(0));
    });
}

void TCategoryForm::ConnectKeys()
{
    FormParts::OnKey(this, Qt::Key_F5, &TCategoryForm::Reload);
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_N, &TCategoryForm::AddTop);
    FormParts::OnKey(this, Qt::Key_Insert, &TCategoryForm::AddChild);
    FormParts::OnKey(this, Qt::Key_F2, &TCategoryForm::Rename);
    FormParts::OnKey(this, Qt::Key_Delete, &TCategoryForm::DeleteCurrent);
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_X, &TCategoryForm::PickUp);
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_V, &TCategoryForm::PutUnder);
    FormParts::OnKey(this, Qt::CTRL | Qt::SHIFT | Qt::Key_V, &TCategoryForm::PutOnTop);
    FormParts::OnKey(this, Qt::Key_Escape, &TCategoryForm::Escape);
    FormParts::OnKey(this, Qt::Key_F10, [this] { search_->setFocus(Qt::ShortcutFocusReason); });
}
