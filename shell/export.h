// Marks the classes that the control library shows to hosts.
#pragma once

#include <QtGlobal>

#ifdef DOCBENCH_BUILDING_CONTROLS
#define DOCBENCH_EXPORT Q_DECL_EXPORT
#else
#define DOCBENCH_EXPORT Q_DECL_IMPORT
#endif
