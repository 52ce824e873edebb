#pragma once

#include "DatabaseExport.h"

#include <QString>

/// National codes of persons (ten digits) and of companies (eleven), the last digit of which checks the
/// others.
namespace NationalCode {

/// `serial` are the first nine digits.
DATABASE_EXPORT QString Person(qint64 serial);
/// `serial` are the first ten digits.
DATABASE_EXPORT QString Company(qint64 serial);
/// True for a code of either kind with the right check digit.
DATABASE_EXPORT bool IsValid(const QString& code);

} // namespace NationalCode
