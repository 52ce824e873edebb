#pragma once

#include <QtGlobal>

#if defined(BASEFRAME_LIBRARY)
#define BASEFRAME_EXPORT Q_DECL_EXPORT
#else
#define BASEFRAME_EXPORT Q_DECL_IMPORT
#endif
