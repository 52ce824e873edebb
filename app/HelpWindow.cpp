#include "HelpWindow.h"

#include "Look.h"
#include "PersianText.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"

#include <QGridLayout>
#include <QPushButton>
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

} // namespace

THelpWindow::THelpWindow(const QString& pageTitle, const QVector<TKeyHelp>& pageKeys, QWidget* parent)
    : QDialog(parent)
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("کلیدها"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Look::GroupGap);
    grid->setVerticalSpacing(Look::LineGap);
    AddHeading(grid, pageTitle, this);
    for (const TKeyHelp& line : pageKeys)
        AddLine(grid, line, this);
    AddHeading(grid, QStringLiteral("همه‌جا"), this);
    for (const TKeyHelp& line : WindowKeys())
        AddLine(grid, line, this);
    column->addLayout(grid);
    auto* close = new QPushButton(QStringLiteral("ب&ستن"), this);
    close->setMinimumHeight(Look::ControlHeight);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    // Mirrored: the left end, where every dialog has its buttons.
    column->addWidget(close, 0, Qt::AlignRight);
}

THelpWindow::~THelpWindow() = default;
