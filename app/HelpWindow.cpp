#include "HelpWindow.h"

#include "Look.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"

#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

QVector<TKeyHelp> WindowKeys()
{
    return {
        {QStringLiteral("Ctrl+1 … Ctrl+9"),
         QStringLiteral("صفحه‌های برنامه، به ترتیب ستون کنار پنجره")},
        {QStringLiteral("F1"), QStringLiteral("همین راهنما، با کلیدهای صفحهٔ جاری")},
        {QStringLiteral("Ctrl+Q"), QStringLiteral("خروج")},
    };
}

void AddHeading(QGridLayout* grid, const QString& caption, QWidget* parent)
{
    auto* heading = new TSmartLabel_TRV(parent);
    heading->setTextFormat(Qt::PlainText);
    heading->setForegroundRole(QPalette::Link);
    heading->SetCaption(caption);
    grid->addWidget(heading, grid->rowCount(), 0, 1, 2);
}

void AddLine(QGridLayout* grid, const TKeyHelp& line, QWidget* parent)
{
    auto* key = new TSmartLabel_TRV(parent);
    key->setTextFormat(Qt::PlainText);
    key->setFont(RelativeFonts::Bold());
    key->SetCaption(PersianText::Isolated(line.Key));
    auto* meaning = new TSmartLabel_TRV(parent);
    meaning->setTextFormat(Qt::PlainText);
    meaning->SetCaption(line.Meaning);
    const int row = grid->rowCount();
    grid->addWidget(key, row, 0);
    grid->addWidget(meaning, row, 1);
}

/// As large as the keys where the screen has the room; the rest is scrolled to, by the keyboard too.
QScrollArea* NewKeysArea(QWidget* keys, QWidget* parent)
{
    constexpr double mostOfScreen = 0.75;
    auto* area = new QScrollArea(parent);
    area->setAccessibleName(QStringLiteral("کلیدها"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(keys);
    const QSize wanted = keys->sizeHint();
    const int highest = static_cast<int>(parent->screen()->availableSize().height() * mostOfScreen);
    const bool scrolls = wanted.height() > highest;
    area->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
    const int bar = scrolls ? area->verticalScrollBar()->sizeHint().width() + Look::Unit : 0;
    area->setMinimumSize(wanted.width() + bar, qMin(wanted.height(), highest));
    return area;
}

} // namespace

THelpWindow::THelpWindow(const QString& pageTitle, const QVector<TKeyHelp>& pageKeys, QWidget* parent)
    : QDialog(parent)
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("کلیدها"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    auto* keys = new QWidget;
    auto* grid = new QGridLayout(keys);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Look::GroupGap);
    grid->setVerticalSpacing(Look::LineGap);
    AddHeading(grid, pageTitle, keys);
    for (const TKeyHelp& line : pageKeys)
        AddLine(grid, line, keys);
    AddHeading(grid, QStringLiteral("همه‌جا"), keys);
    for (const TKeyHelp& line : WindowKeys())
        AddLine(grid, line, keys);
    column->addWidget(NewKeysArea(keys, this), 1);
    auto* close = new QPushButton(QStringLiteral("ب&ستن"), this);
    close->setMinimumHeight(Look::ControlHeight);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    // Mirrored: the left end, where every dialog has its buttons.
    column->addWidget(close, 0, Qt::AlignRight);
}

THelpWindow::~THelpWindow() = default;
