#pragma once

#include <QtGlobal>

#if defined(ADO_LIBRARY)
#define ADO_EXPORT Q_DECL_EXPORT
#else
#define ADO_EXPORT Q_DECL_IMPORT
#endif
