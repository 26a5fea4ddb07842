#pragma once

// Marks what the shared library shows to its hosts; everything else stays hidden.
#if defined(__GNUC__)
#define QMCHART6_EXPORT __attribute__((visibility("default")))
#else
#define QMCHART6_EXPORT
#endif
