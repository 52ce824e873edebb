#pragma once

#include <QVector>

class TTourPlayer;

/// One step of the guided tour. `Name` is printed as the step begins.
struct TTourStep
{
    const char16_t* Name;
    void (*Play)(TTourPlayer& player);
};

/// The chapters of the tour, in the order in which they are played; each begins with what the one before
/// left.
QVector<TTourStep> GoodsListSteps();
QVector<TTourStep> PictureSteps();
QVector<TTourStep> SearchSteps();
QVector<TTourStep> SortingSteps();
QVector<TTourStep> PersonsListSteps();
QVector<TTourStep> VoucherSteps();
QVector<TTourStep> CurrencySteps();
QVector<TTourStep> DetailAccountSteps();
QVector<TTourStep> ReportSteps();
QVector<TTourStep> VoucherBarSteps();
QVector<TTourStep> CategorySteps();
QVector<TTourStep> LabelSteps();
QVector<TTourStep> GallerySteps();
QVector<TTourStep> WindowSteps();
