#include "ProgressWindow.h"

#include "Look.h"
#include "RelativeFonts.h"
#include "SmartLabel_TRV.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int appearAfter = 300;
constexpr int windowWidth = 420;

} // namespace

TProgressWindow::TProgressWindow(const QString& title, QWidget* parent)
    : QWidget(parent), stage_(new TSmartLabel_TRV(this)), bar_(new QProgressBar(this))
{
    setWindowTitle(title);
    setFixedWidth(windowWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::Margin);
    auto* heading = new TSmartLabel_TRV(this);
    heading->setFont(RelativeFonts::Bold());
    heading->SetCaption(title);
    auto* abandon = new QPushButton(QStringLiteral("انصراف"), this);
    abandon->setMinimumHeight(Look::ControlHeight);
    connect(abandon, &QPushButton::clicked, this, &QWidget::close);
    column->addWidget(heading);
    column->addWidget(stage_);
    column->addWidget(bar_);
    column->addWidget(abandon, 0, Qt::AlignRight);
    sinceStart_.start();
}

TProgressWindow::~TProgressWindow() = default;

bool TProgressWindow::Tell(int percent, const QString& stage)
{
    stage_->SetCaption(stage);
    bar_->setValue(percent);
    if (!abandoned_ && !isVisible() && sinceStart_.elapsed() > appearAfter)
        show();
    QCoreApplication::processEvents();
    return !abandoned_;
}

void TProgressWindow::closeEvent(QCloseEvent* event)
{
    abandoned_ = true;
    QWidget::closeEvent(event);
}
