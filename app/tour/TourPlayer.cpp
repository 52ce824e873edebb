#include "TourPlayer.h"

#include "General_Search_UNT.h"
#include "ListForm.h"
#include "Look.h"
#include "MainWindow.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <utility>

namespace {

constexpr int breath = 30; // milliseconds between two looks at a condition

bool IsOverlay(const QWidget* widget, const QWidget* window)
{
    return widget != window && widget->isVisible() && widget->isWindow();
}

} // namespace

TTourPlayer::TTourPlayer(TMainWindow& window, const QString& folder) : window_(&window), folder_(folder)
{
}

TListForm& TTourPlayer::List()
{
    return *window_->CurrentList();
}

void TTourPlayer::BeginStep(const QString& name)
{
    step_ = name;
    std::printf("%s\n", name.toUtf8().constData());
    std::fflush(stdout);
}

bool TTourPlayer::Check(bool holds, const QString& what)
{
    if (!holds) {
        failures_.append(QStringLiteral("%1: %2").arg(step_, what));
        std::fprintf(stderr, "  ✗ %s\n", what.toUtf8().constData());
    }
    return holds;
}

bool TTourPlayer::WaitUntil(const std::function<bool()>& condition, const QString& what, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < milliseconds)
        QTest::qWait(breath);
    return Check(condition(), what);
}

void TTourPlayer::Wait(int milliseconds)
{
    QTest::qWait(milliseconds);
}

void TTourPlayer::WaitForAnswer()
{
    TListForm& list = List();
    WaitUntil([&list] { return list.SearchFrame().Filter_is_done(); },
              QStringLiteral("جستجو به کار بسته نشد"));
    list.SearchFrame().Refrenc_SearchManager->Flush();
    Check(list.DataSet().WaitForFirstPage(), QStringLiteral("پاسخ بانک اطلاعاتی نرسید"));
    WaitUntil([&list] { return list.DataSet().CountIsExact(); },
              QStringLiteral("شمار ردیف‌ها نرسید"));
    QTest::qWait(breath);
}

void TTourPlayer::Activate(QWidget* window) const
{
    if (window->isActiveWindow() || !QTest::qWaitForWindowExposed(window))
        return;
    // A window manager may not have done it yet, and off-screen there is none.
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window, 2000))
        std::fprintf(stderr, "%s\n", "window not active");
}

QWidget* TTourPlayer::KeyReceiver() const
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr)
        window = window_;
    Activate(window);
    QWidget* focus = window->focusWidget();
    return focus != nullptr ? focus : window;
}

void TTourPlayer::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(KeyReceiver(), key, modifiers);
    QTest::qWait(breath);
}

void TTourPlayer::Type(const QString& text)
{
    // Without a pause between the strokes: a quick typist, whose text is applied once.
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, KeyReceiver(), Qt::Key_unknown, QString(character), Qt::NoModifier);
    QTest::qWait(breath);
}

void TTourPlayer::Click(QWidget* widget, const QPoint& position)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, position);
    QTest::qWait(breath);
}

void TTourPlayer::WhenDialogOpens(std::function<void()> play)
{
    dialog_ = std::move(play);
    PlayDialog();
}

void TTourPlayer::PlayDialog()
{
    if (!dialog_)
        return;
    if (QApplication::activeModalWidget() == nullptr) {
        QTimer::singleShot(breath, window_, [this] { PlayDialog(); });
        return;
    }
    // Once more round the loop, so that the dialog has been laid out.
    QTimer::singleShot(breath, window_, [this, play = std::exchange(dialog_, {})] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        play();
        // The stroke that opened it would wait for ever.
        if (!Check(dialog == nullptr || !dialog->isVisible(), QStringLiteral("پنجره بسته نشد")))
            dialog->close();
    });
}

void TTourPlayer::CheckDialogCame(const QString& what)
{
    Check(!std::exchange(dialog_, {}), what);
}

void TTourPlayer::Screenshot(const QString& name, bool numbered)
{
    QTest::qWait(2 * breath);
    QPixmap picture = window_->grab();
    QPainter painter(&picture);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* widget : windows) {
        if (!IsOverlay(widget, window_))
            continue;
        const QPoint corner = window_->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
        painter.drawPixmap(corner, widget->grab());
        painter.setPen(Look::Color(Look::TRole::Accent));
        painter.drawRect(QRect(corner, widget->size()).adjusted(-1, -1, 0, 0));
    }
    painter.end();
    const QString file = numbered ? QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QChar(u'0')).arg(name)
                                  : name + QStringLiteral(".png");
    Save(picture, file);
}

void TTourPlayer::Picture(QWidget& widget, const QString& name)
{
    QDir(folder_).mkpath(QStringLiteral("frames"));
    Save(widget.grab(), QStringLiteral("frames/%1.png").arg(name));
}

void TTourPlayer::Save(const QPixmap& picture, const QString& file)
{
    Check(picture.save(QDir(folder_).filePath(file)), QStringLiteral("تصویر %1 نوشته نشد").arg(file));
}
