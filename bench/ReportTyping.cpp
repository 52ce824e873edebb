#include "ReportTyping.h"

#include "Measure.h"
#include "PagedDataSet.h"
#include "ReportFilterPanel.h"
#include "ReportTotals.h"
#include "SmartCheckBox_TRV.h"
#include "TarvaSearchManager.h"

#include <QApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// Longer than an edit waits before it announces what was typed.
constexpr int beyondTheDelay = 350;

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Type(const QString& text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}

void Begin(const TTypedFilter::TInput& input)
{
    input.Edit->setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
}

/// Turns the event loop itself: the test library's waiting sleeps between its turns.
void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void ProcessUntil(const std::function<bool()>& done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

/// Measures how long the event loop has not come round.
class TGapMeter
{
public:
    TGapMeter()
    {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            longest_ = qMax(longest_, Milliseconds(sinceBeat_));
            sinceBeat_.restart();
        });
        sinceBeat_.start();
        timer_.start(1);
    }
    double Longest() const { return longest_; }

private:
    QTimer timer_;
    QElapsedTimer sinceBeat_;
    double longest_ = 0;
};

} // namespace

TReportTyping::TReportTyping(TReferenceHost& host) : form_(new TReportForm(host, &window_))
{
    auto* layout = new QVBoxLayout(&window_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form_);
    window_.resize(1050, 700);
    window_.show();
    window_.activateWindow();
    if (!QTest::qWaitForWindowActive(&window_))
        qFatal("The window does not become active.");
    QObject::connect(&form_->DataSet(), &TPagedDataSet::failed,
                     [](const QString& message, const QString& words) {
                         qFatal("%s %s", qUtf8Printable(message), qUtf8Printable(words));
                     });
    form_->Enter();
    form_->Filters().ShowAdvanced(true);
    WaitUntilIdle();
}

void TReportTyping::WaitUntilIdle()
{
    Wait(beyondTheDelay);
    ProcessUntil([this] { return !form_->DataSet().Busy() && !form_->IsBusy(); });
}

bool TReportTyping::TotalsAreShown() const
{
    return !form_->Totals().DebitText().contains(u'…');
}

void TReportTyping::Clear()
{
    Press(Qt::Key_Escape);
    WaitUntilIdle();
}

void TReportTyping::Prepare(const TTypedFilter& filter)
{
    if (filter.Switch == nullptr)
        return;
    filter.Switch->setFocus();
    Press(Qt::Key_Space);
    for (qsizetype i = 0; i + 1 < filter.Inputs.size(); ++i) {
        Begin(filter.Inputs.at(i));
        Type(filter.Inputs.at(i).Text);
    }
    WaitUntilIdle();
    const TTypedFilter::TInput& last = filter.Inputs.last();
    Begin(last);
    Type(filter.EndsWithTab ? last.Text : last.Text.chopped(1));
}

TReportMoments TReportTyping::Apply(const TTypedFilter& filter)
{
    Prepare(filter);
    TReportMoments moments;
    QElapsedTimer timer;
    timer.start();
    const auto note = [&timer](double& moment) {
        if (moment == 0)
            moment = Milliseconds(timer);
    };
    double processorBefore = 0;
    const auto noteQuestion = [&] {
        if (moments.Asked == 0)
            processorBefore = ProcessorMilliseconds();
        note(moments.Asked);
    };
    const auto noteAnswer = [&] {
        if (moments.Asked > 0)
            note(moments.Answered);
    };
    QObject watch; // ends before what the two write to
    QObject::connect(&form_->Manager(), &TTarvaSearchManager::conditionChanged, &watch, noteQuestion);
    QObject::connect(&form_->DataSet(), &TDataSet::dataChanged, &watch, noteAnswer);
    window_.OnPainted = [&] {
        if (moments.Answered > 0)
            note(moments.Painted);
        if (moments.Asked > 0 && TotalsAreShown())
            note(moments.Totals);
    };
    if (filter.Switch == nullptr)
        Press(Qt::Key_Escape);
    else if (filter.EndsWithTab)
        Press(Qt::Key_Tab);
    else
        Type(filter.Inputs.last().Text.right(1));
    ProcessUntil([&moments] { return moments.Painted > 0 && moments.Totals > 0; });
    moments.Processor = ProcessorMilliseconds() - processorBefore;
    window_.OnPainted = {};
    WaitUntilIdle();
    return moments;
}

TTypingResult TReportTyping::TypeOn(const TTypedFilter& filter, const QVector<Qt::Key>& keys)
{
    Prepare(filter);
    WaitUntilIdle();
    TTypingResult result;
    QElapsedTimer sinceQuestion;
    bool pending = false;
    const auto noteQuestion = [&] {
        ++result.Questions;
        pending = true;
        sinceQuestion.start();
    };
    QObject watch; // ends before what is written to
    QObject::connect(&form_->Manager(), &TTarvaSearchManager::conditionChanged, &watch, noteQuestion);
    window_.OnPainted = [&] {
        if (!pending || !TotalsAreShown())
            return;
        pending = false;
        ++result.Answers;
        result.Totals = Milliseconds(sinceQuestion);
    };
    {
        const TGapMeter gaps;
        for (const Qt::Key key : keys) {
            Press(key);
            Wait(beyondTheDelay);
        }
        result.LongestGap = gaps.Longest();
    }
    ProcessUntil([&pending] { return !pending; });
    window_.OnPainted = {};
    WaitUntilIdle();
    return result;
}

double TReportTyping::GapAtRest(int keys)
{
    const TGapMeter gaps;
    Wait(keys * beyondTheDelay);
    return gaps.Longest();
}
