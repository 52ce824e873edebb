#include "HostApplication.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "MessageDialog.h"

#include <cstdio>
#include <deque>
#include <mutex>
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <QScopeGuard>

namespace {

// A widget that fails while painting fails again as soon as the message box over it is gone.
constexpr qint64 sameErrorPause = 2000;

bool IsUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}

bool SameError(const TErrorReport& one, const TErrorReport& other)
{
    return (one.ConnectionLost && other.ConnectionLost) ||
           (one.Text == other.Text && one.Details == other.Details);
}

TErrorReport ReportOf(const EADOError& error)
{
    if (error.Kind() == TAdoErrorKind::Cancelled)
        return {};
    QStringList details;
    if (!error.ServerMessage().isEmpty())
        details << error.ServerMessage();
    if (!error.State().isEmpty() || error.Code() != 0)
        details << QStringLiteral("SQLSTATE %1, code %2").arg(error.State()).arg(error.Code());
    if (!error.Statement().isEmpty())
        details << error.Statement();
    return {error.Message(), details.join(u'\n'), error.Kind() == TAdoErrorKind::ConnectionLost};
}

int ShowBox(const TErrorReport& report, const QVector<TDialogButton>& buttons)
{
    const auto kind = report.Retry ? TMessageDialog::TKind::Warning : TMessageDialog::TKind::Error;
    TMessageDialog box(kind, report.Text, buttons, QApplication::activeWindow());
    box.SetDetails(report.Details);
    return box.Ask();
}

void WriteToStandardError(const TErrorReport& report)
{
    const QString text =
        report.Details.isEmpty() ? report.Text : report.Text + QStringLiteral("\n") + report.Details;
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}

} // namespace

struct THostApplication::TPrivate
{
    std::mutex Guard; // Pending, Shown, Last and SinceLast
    std::deque<TErrorReport> Pending;
    bool Shown = false;
    TErrorReport Last;
    QElapsedTimer SinceLast;
    QPointer<TADOConnection> Connection;
    TDisplay Display;

    bool IsKnown(const TErrorReport& report, bool byUser)
    {
        for (const TErrorReport& other : Pending) {
            if (SameError(report, other))
                return true;
        }
        if (!SameError(report, Last))
            return false;
        return Shown || (!byUser && SinceLast.isValid() && SinceLast.elapsed() < sameErrorPause);
    }

    bool Take(TErrorReport& report)
    {
        const std::scoped_lock lock(Guard);
        Shown = false;
        if (Pending.empty())
            return false;
        report = Last = Pending.front();
        Pending.pop_front();
        return Shown = true;
    }

    void Closed()
    {
        const std::scoped_lock lock(Guard);
        Shown = false;
        SinceLast.restart();
    }
};

THostApplication::THostApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments), d(std::make_unique<TPrivate>())
{
}

THostApplication::~THostApplication() = default;

bool THostApplication::notify(QObject* receiver, QEvent* event)
{
    const bool byUser = IsUserInput(event->type());
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        Enqueue(Describe(std::current_exception()), byUser);
    }
    return false;
}

TErrorReport THostApplication::Describe(const std::exception_ptr& exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (const EADOError& error) {
        return ReportOf(error);
    } catch (const std::bad_alloc&) {
        return {QStringLiteral(
            "حافظهٔ رایانه برای این کار کافی نیست. برنامه‌های دیگر را ببندید و دوباره بکوشید.")};
    } catch (const std::exception& error) {
        return {
            QStringLiteral(
                "خطای پیش‌بینی‌نشده‌ای رخ داد و این کار انجام نشد. می‌توانید به کار خود ادامه دهید."),
            QString::fromUtf8(error.what())};
    } catch (...) {
        return {QStringLiteral(
            "خطای ناشناخته‌ای رخ داد و این کار انجام نشد. می‌توانید به کار خود ادامه دهید.")};
    }
}

void THostApplication::Report(const TErrorReport& report)
{
    Enqueue(report, false);
}

void THostApplication::Enqueue(const TErrorReport& report, bool byUser)
{
    if (report.Text.isEmpty())
        return;
    {
        const std::scoped_lock lock(d->Guard);
        if (d->IsKnown(report, byUser))
            return;
        d->Pending.push_back(report);
    }
    WriteToStandardError(report);
    // Never from here: the handler that failed may still be in the middle of a focus change or a paint.
    QMetaObject::invokeMethod(this, &THostApplication::ShowPending, Qt::QueuedConnection);
}

void THostApplication::SetConnection(TADOConnection* connection)
{
    if (d->Connection != nullptr)
        disconnect(d->Connection, nullptr, this, nullptr);
    d->Connection = connection;
    if (connection != nullptr)
        connect(connection, &TADOConnection::connectionLost, this, [this](const QString& message) {
            Report({message, {}, true});
        });
}

void THostApplication::SetErrorDisplay(TDisplay display)
{
    d->Display = std::move(display);
}

void THostApplication::ShowPending()
{
    {
        const std::scoped_lock lock(d->Guard);
        if (d->Shown)
            return;
    }
    TErrorReport report;
    while (d->Take(report)) {
        // Reopening may fail too; the box must count as closed then as well.
        const auto closed = qScopeGuard([this] { d->Closed(); });
        Display(report);
    }
}

void THostApplication::Display(const TErrorReport& report)
{
    if (d->Display) {
        d->Display(report);
        return;
    }
    const QPointer<QWidget> focus = focusWidget();
    if (report.ConnectionLost && d->Connection != nullptr)
        OfferToReopen(report);
    else if (report.Retry)
        OfferToRetry(report, QStringLiteral("تلاش دوباره"));
    else
        ShowBox(report, {TMessageDialog::OkButton()});
    if (focus != nullptr)
        focus->setFocus(Qt::OtherFocusReason);
}

void THostApplication::OfferToReopen(TErrorReport report)
{
    report.Text += QStringLiteral(
        "\n\nچیزی خودبه‌خود تکرار نشده است. آیا ارتباط دوباره برقرار شود؟");
    report.Retry = [this] {
        if (d->Connection == nullptr)
            return;
        d->Connection->Reopen();
        Q_EMIT connectionReopened();
    };
    OfferToRetry(report, QStringLiteral("اتصال دوباره"));
}

void THostApplication::OfferToRetry(const TErrorReport& report, const QString& caption)
{
    constexpr int retry = 1;
    if (ShowBox(report, {{caption, retry}, TMessageDialog::CancelButton()}) == retry)
        report.Retry();
}
