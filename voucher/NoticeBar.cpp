#include "NoticeBar.h"

#include "Look.h"
#include "RelativeFonts.h"
#include "SmartPanel_TRV.h"

#include <QEvent>
#include <QLabel>
#include <QMovie>

namespace {

constexpr quint32 FrameColor = 3552822;

void Paint(TSmartPanel_TRV* panel, const QColor& ground)
{
    QPalette colors; // knows of these two only, so that the others go on following the scheme
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, Look::ColorOf(Look::TRole::Text, false));
    panel->setPalette(colors);
}

} // namespace

TNoticeBar::TNoticeBar(TSmartPanel_TRV* outer, TSmartPanel_TRV* inner, QLabel* message, QLabel* picture)
    : QObject(outer), picture_(picture)
{
    Paint(outer, Look::FromColorValue(FrameColor));
    Paint(inner, Qt::white);
    message->setFont(RelativeFonts::Small());
    picture_->installEventFilter(this);
}

TNoticeBar::~TNoticeBar() = default;

QMovie& TNoticeBar::Movie()
{
    if (movie_ == nullptr) {
        movie_ = new QMovie(QStringLiteral(":/voucher/pictures/attention.gif"), {}, this);
        movie_->setCacheMode(QMovie::CacheAll);
        picture_->setMovie(movie_);
    }
    return *movie_;
}

void TNoticeBar::Animate()
{
    Movie().start();
    Movie().setPaused(!picture_->isVisible());
}

bool TNoticeBar::eventFilter(QObject* watched, QEvent* event)
{
    // A picture that nobody sees need not move.
    if (event->type() == QEvent::Show) {
        if (Movie().currentFrameNumber() < 0)
            Movie().jumpToFrame(0);
        Movie().setPaused(false);
    } else if (event->type() == QEvent::Hide && movie_ != nullptr) {
        movie_->setPaused(true);
    }
    return QObject::eventFilter(watched, event);
}
