#include "AdoError.h"
#include "ExpenseCenterLibrary.h"
#include "HostServices.h"

namespace {

// Without a host there is nobody to tell.
void Tell(const QString& text)
{
    if (HasHost())
        Host().Messages.ShowMessage(text);
    else
        qCritical("%s", qPrintable(text));
}

} // namespace

int Select_ExpenseCenter(const char16_t* selectionParameters)
{
    // The caller may have been built by another compiler, which would not know the exception.
    try {
        return Host().Pickers.Select_Entity(TSoftwarePart::spExpenseCenters,
                                            QString::fromUtf16(selectionParameters), false);
    } catch (const EADOError& error) {
        Tell(error.Message());
    } catch (const std::exception& error) {
        Tell(QString::fromUtf8(error.what()));
    } catch (...) {
        Tell(QStringLiteral("فهرست مرکزهای هزینه باز نشد."));
    }
    return 0;
}
