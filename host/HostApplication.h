#pragma once

#include "HostExport.h"

#include <exception>
#include <functional>
#include <memory>
#include <QApplication>
#include <QString>

class TADOConnection;

/// What is shown of an error: a sentence for the user, and technical words behind a button.
struct TErrorReport
{
    QString Text;                     ///< empty where there is nothing to show
    QString Details = {};             ///< empty where there are none
    bool ConnectionLost = false;      ///< the connection is dead; the user may have it opened again
    std::function<void()> Retry = {}; ///< what "try again" does; the box offers it where there is something
};

/// The application object of a host: every exception that leaves an event handler, a slot or a timer ends
/// here, is written to the standard error stream and shown, and the program goes on. Errors that come while
/// one is being shown wait their turn; the same error again and again (from a painting widget, say) is shown
/// once.
class HOST_EXPORT THostApplication : public QApplication
{
    Q_OBJECT

public:
    /// As QApplication: both must outlive the application.
    THostApplication(int& argumentCount, char** arguments);
    ~THostApplication() override;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Shows an error as if it had been thrown. Any thread.
    void Report(const TErrorReport& report);
    /// The error that the exception tells. A cancelled statement is no error: its report has an empty text.
    static TErrorReport Describe(const std::exception_ptr& exception);

    /// The connection that is opened again when the user says so after it was lost; not owned.
    void SetConnection(TADOConnection* connection);

    /// Shows a report instead of the message box; an empty function brings the box back.
    using TDisplay = std::function<void(const TErrorReport& report)>;
    void SetErrorDisplay(TDisplay display);

Q_SIGNALS:
    void connectionReopened(); ///< the user had the lost connection opened again

private:
    void Enqueue(const TErrorReport& report, bool byUser);
    void ShowPending();
    void Display(const TErrorReport& report);
    void OfferToReopen(TErrorReport report);
    static void OfferToRetry(const TErrorReport& report, const QString& caption);

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
