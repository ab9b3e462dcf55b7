#ifndef QV_INITIALIZATION_EXPORT_H
#define QV_INITIALIZATION_EXPORT_H

/* Marks what the shared library exports; everything else in it is hidden. */
#if defined(_WIN32)
#if defined(QV_INITIALIZATION_BUILD)
#define QV_INITIALIZATION_API __declspec(dllexport)
#else
#define QV_INITIALIZATION_API __declspec(dllimport)
#endif
#else
#define QV_INITIALIZATION_API __attribute__((visibility("default")))
#endif

#endif /* QV_INITIALIZATION_EXPORT_H */
