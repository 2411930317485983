#pragma once

#include <QtGlobal>

/// Marks what a host may use when the library is built as a shared one.
#ifdef IPCPARAM_SHARED
#ifdef IPCPARAM_LIBRARY
#define IPCPARAM_EXPORT Q_DECL_EXPORT
#else
#define IPCPARAM_EXPORT Q_DECL_IMPORT
#endif
#else
#define IPCPARAM_EXPORT
#endif
