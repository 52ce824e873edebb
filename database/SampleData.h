#pragma once

#include "DatabaseExport.h"

#include <functional>
#include <QString>

class TADOConnection;

/// How much sample data is made. The n-th goods item or person is the same in every size.
struct DATABASE_EXPORT TSampleSize
{
    int Goods = 2000;          ///< items
    int Persons = 500;         ///< records
    int VouchersPerYear = 400; ///< in each fiscal year, about
    int FiscalYears = 4;       ///< 1 to 4, the first one is 1402
    int PicturedRecords = 40;  ///< goods and persons, each, that have pictures

    static TSampleSize Small();  ///< for tests: made in a blink
    static TSampleSize Normal(); ///< a shop; what a missing database is filled with
    static TSampleSize Large();  ///< 100,000 goods and 20,000 persons
};

/// Told now and then during long work: percent done and what is being done, in Persian. Answering false
/// abandons it.
using TProgressHandler = std::function<bool(int percent, const QString& stage)>;

/// Makes the tables of schema.sql, fills them and makes indexes and views, in one transaction: all or
/// nothing. The database must be empty. Throws EADOError; kind Cancelled when `progress` answered false.
DATABASE_EXPORT void CreateSampleDatabase(TADOConnection& connection, const TSampleSize& size,
                                          const TProgressHandler& progress = {});
