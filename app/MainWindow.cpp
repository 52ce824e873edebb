#include "MainWindow.h"

#include "DisplayText.h"
#include "HelpWindow.h"
#include "KeyTip.h"
#include "ListForm.h"
#include "MessageDialog.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "VoucherForm.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize firstSize{1180, 720};
constexpr QSize windowBorder{16, 40}; // what a window manager puts around, roughly
constexpr int navigationWidth = 132;
constexpr int navigationButtonHeight = 40;

constexpr QLatin1String geometryKey("Window/Geometry");
constexpr QLatin1String schemeKey("Window/Scheme");
constexpr QLatin1String digitsKey("Window/Digits");

QAction* AddChoice(QMenu* menu, QActionGroup* group, const QString& name, const QString& caption,
                   bool checked)
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setCheckable(true);
    action->setChecked(checked);
    group->addAction(action);
    return action;
}

} // namespace

TMainWindow::TMainWindow(TReferenceHost& host, const QString& databaseName)
    : host_(&host), descriptions_(WorkbenchPages()), pages_(descriptions_.size(), nullptr)
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    auto* center = new QWidget(this);
    auto* row = new QHBoxLayout(center);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    stack_ = new QStackedWidget(center);
    AddMenus();
    row->addWidget(NewNavigation());
    row->addWidget(stack_, 1);
    setCentralWidget(center);
    AddStatus(databaseName);
    RestoreWindow();
}

TMainWindow::~TMainWindow() = default;

void TMainWindow::AddMenus()
{
    AddPageActions();
    AddViewMenu();
    AddHelpMenu();
}

void TMainWindow::AddPageActions()
{
    QMenu* lists = menuBar()->addMenu(QStringLiteral("&فهرست‌ها"));
    QMenu* forms = menuBar()->addMenu(QStringLiteral("&عملیات"));
    auto* group = new QActionGroup(this);
    for (qsizetype place = 0; place < descriptions_.size(); ++place) {
        const TPageDescription& page = descriptions_.at(place);
        // Within a menu every title begins with a letter of its own.
        QAction* action = (page.IsList ? lists : forms)->addAction(u'&' + page.Title);
        action->setObjectName(page.Key);
        action->setCheckable(true);
        action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + place)));
        action->setToolTip(KeyTip::Of(page.Title, action->shortcut().toString()));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, place] { OpenPageAt(place); });
        pageActions_.append(action);
    }
    lists->addSeparator();
    QAction* close = lists->addAction(QStringLiteral("&خروج"));
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(close, &QAction::triggered, this, &QWidget::close);
}

void TMainWindow::AddViewMenu()
{
    QMenu* menu = menuBar()->addMenu(QStringLiteral("ن&ما"));
    AddSchemes(menu);
    menu->addSeparator();
    AddDigits(menu);
}

void TMainWindow::AddSchemes(QMenu* menu)
{
    auto* group = new QActionGroup(this);
    const auto add = [&](const QString& name, const QString& caption, Look::TScheme scheme) {
        QAction* action = AddChoice(menu, group, name, caption, SavedScheme(*host_) == scheme);
        connect(action, &QAction::triggered, this, [this, scheme] {
            host_->Settings().SetValue(schemeKey, static_cast<int>(scheme));
            Look::SetScheme(scheme);
        });
    };
    add(QStringLiteral("SchemeSystem"), QStringLiteral("رنگ‌بندی &سیستم"),
        Look::TScheme::FollowSystem);
    add(QStringLiteral("SchemeLight"), QStringLiteral("رنگ‌بندی &روشن"), Look::TScheme::Light);
    add(QStringLiteral("SchemeDark"), QStringLiteral("رنگ‌بندی &تیره"), Look::TScheme::Dark);
}

void TMainWindow::AddDigits(QMenu* menu)
{
    auto* group = new QActionGroup(this);
    const auto add = [&](const QString& name, const QString& caption, Look::TDigits digits) {
        QAction* action = AddChoice(menu, group, name, caption, SavedDigits(*host_) == digits);
        connect(action, &QAction::triggered, this, [this, digits] {
            host_->Settings().SetValue(digitsKey, static_cast<int>(digits));
            Look::SetDigits(digits);
        });
    };
    add(QStringLiteral("DigitsPersian"), QStringLiteral("رقم‌های &فارسی"),
        Look::TDigits::Persian);
    add(QStringLiteral("DigitsLatin"), QStringLiteral("رقم‌های &لاتین"), Look::TDigits::Latin);
}

void TMainWindow::AddHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&راهنما"));
    QAction* keys = menu->addAction(QStringLiteral("&کلیدها"));
    keys->setShortcut(QKeySequence(Qt::Key_F1));
    connect(keys, &QAction::triggered, this, &TMainWindow::ShowKeys);
    QAction* about = menu->addAction(QStringLiteral("&دربارهٔ برنامه"));
    about->setObjectName(QStringLiteral("About"));
    connect(about, &QAction::triggered, this, &TMainWindow::ShowAbout);
}

QWidget* TMainWindow::NewNavigation()
{
    auto* panel = new TSmartPanel_TRV(this);
    panel->SetGround(TSmartPanel_TRV::gWindow);
    panel->setFixedWidth(navigationWidth);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    column->setSpacing(Look::Unit);
    for (QAction* action : qAsConst(pageActions_)) {
        auto* button = new QToolButton(panel);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFixedHeight(navigationButtonHeight);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        // The pages have the keyboard; the navigation has Ctrl with a digit.
        button->setFocusPolicy(Qt::NoFocus);
        column->addWidget(button);
    }
    column->addStretch(1);
    return panel;
}

void TMainWindow::AddStatus(const QString& databaseName)
{
    const THostSettings& settings = host_->Settings();
    auto* line = new QWidget(this);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    row->setSpacing(Look::GroupGap);
    const auto add = [line, row](const QString& text) {
        auto* label = new TSmartLabel_TRV(line);
        label->setTextFormat(Qt::PlainText);
        label->setFont(RelativeFonts::Small());
        label->SetCaption(text);
        row->addWidget(label);
    };
    add(QStringLiteral("بانک: %1").arg(PersianText::Isolated(databaseName)));
    add(QStringLiteral("F1 راهنمای کلیدها"));
    row->addStretch(1);
    add(QStringLiteral("کاربر: %1").arg(PersianText::Isolated(settings.UserInfo().Name)));
    add(DisplayText::DayInWords(host_->Clock().Today(), settings.SettingRecord().IsGregorian()));
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(line, 1);
}

TPage* TMainWindow::OpenPage(const QString& key)
{
    for (qsizetype place = 0; place < descriptions_.size(); ++place) {
        if (descriptions_.at(place).Key == key) {
            OpenPageAt(place);
            return pages_.at(place);
        }
    }
    return nullptr;
}

void TMainWindow::OpenPageAt(qsizetype place)
{
    const TPageDescription& description = descriptions_.at(place);
    if (pages_.at(place) == nullptr) {
        pages_[place] = description.Create(*host_, stack_);
        stack_->addWidget(pages_.at(place));
        connect(pages_.at(place), &TPage::voucherWanted, this, &TMainWindow::OpenVoucher);
    }
    stack_->setCurrentWidget(pages_.at(place));
    pageActions_.at(place)->setChecked(true);
    setWindowTitle(
        QStringLiteral("%1 — %2").arg(description.Title, QGuiApplication::applicationDisplayName()));
    pages_.at(place)->Enter();
}

void TMainWindow::OpenVoucher(int fiscalYear, int number)
{
    auto* form = qobject_cast<TVoucherForm*>(OpenPage(QStringLiteral("Voucher")));
    if (form != nullptr)
        form->OpenVoucherOf(fiscalYear, number);
}

TPage* TMainWindow::CurrentPage() const
{
    return qobject_cast<TPage*>(stack_->currentWidget());
}

TListForm* TMainWindow::CurrentList() const
{
    return qobject_cast<TListForm*>(stack_->currentWidget());
}

void TMainWindow::Reconnect()
{
    for (TPage* page : qAsConst(pages_)) {
        if (page != nullptr)
            page->Reconnect();
    }
}

Look::TScheme TMainWindow::SavedScheme(const TReferenceHost& host)
{
    const int saved = host.Settings().Value(schemeKey, 0).toInt();
    return saved >= 0 && saved <= 2 ? static_cast<Look::TScheme>(saved) : Look::TScheme::FollowSystem;
}

Look::TDigits TMainWindow::SavedDigits(const TReferenceHost& host)
{
    return host.Settings().Value(digitsKey, 0).toInt() == static_cast<int>(Look::TDigits::Latin)
               ? Look::TDigits::Latin
               : Look::TDigits::Persian;
}

void TMainWindow::ShowKeys()
{
    const TPage* page = CurrentPage();
    const qsizetype place = pages_.indexOf(page);
    if (place < 0)
        return;
    auto* help = new THelpWindow(descriptions_.at(place).Title, page->Keys() + page->MoreKeys, this);
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->open();
}

void TMainWindow::ShowAbout()
{
    const QString text =
        QStringLiteral(
            "میز کار حسابداری %1\n\nکالاها و اشخاص را با نوار جستجوی زنده نشان می‌دهد. این برنامه نمونه‌ای است از به کار بردن قاب‌های آمادهٔ %2 در یک برنامهٔ حسابداری.")
            .arg(QCoreApplication::applicationVersion(),
                 PersianText::Isolated(QStringLiteral("BaseFrame_PKG")));
    auto* box =
        new TMessageDialog(TMessageDialog::TKind::Information, text, {TMessageDialog::OkButton()}, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QStringLiteral("دربارهٔ برنامه"));
    box->open();
}

void TMainWindow::RestoreWindow()
{
    const QByteArray geometry = host_->Settings().Value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !restoreGeometry(geometry))
        resize(firstSize.boundedTo(screen()->availableSize() - windowBorder));
}

void TMainWindow::closeEvent(QCloseEvent* event)
{
    for (qsizetype place = 0; place < pages_.size(); ++place) {
        TPage* page = pages_.at(place);
        if (page == nullptr || !page->HasUnsaved())
            continue;
        // The question is about what the user sees.
        OpenPageAt(place);
        if (!page->MayClose()) {
            event->ignore();
            return;
        }
    }
    host_->Settings().SetValue(geometryKey, saveGeometry());
    for (const TPage* page : qAsConst(pages_)) {
        if (page != nullptr)
            page->SaveState();
    }
    QMainWindow::closeEvent(event);
}
