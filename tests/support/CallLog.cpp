#include "CallLog.h"

#include <algorithm>
#include <QWidget>

int TCallLog::CountOf(const QString& service) const
{
    const QString start = service + QLatin1Char('(');
    return static_cast<int>(std::count_if(lines_.begin(), lines_.end(),
                                          [&start](const QString& line) { return line.startsWith(start); }));
}

QString TCallLog::Text(const QWidget* control)
{
    return control ? control->objectName() : QStringLiteral("-");
}
