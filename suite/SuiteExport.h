#pragma once

#include <QtGlobal>

#if defined(COMPONENT_TRV_LIBRARY)
#define SUITE_EXPORT Q_DECL_EXPORT
#else
#define SUITE_EXPORT Q_DECL_IMPORT
#endif
