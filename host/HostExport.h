#pragma once

#include <QtGlobal>

#if defined(HOST_LIBRARY)
#define HOST_EXPORT Q_DECL_EXPORT
#else
#define HOST_EXPORT Q_DECL_IMPORT
#endif
