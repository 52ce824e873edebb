#include "SmartEditPrivate.h"

void TSmartEdit_TRV::TPrivate::RefreshCalculatorButton()
{
}

void TSmartEdit_TRV::TPrivate::OpenCalculator()
{
}
