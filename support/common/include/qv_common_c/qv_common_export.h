/** @file
 * Marks what the common library exports.
 */
#ifndef QV_COMMON_EXPORT_H
#define QV_COMMON_EXPORT_H

/** Marks what the shared library exports. Everything else stays hidden. */
#define QV_COMMON_API __attribute__((visibility("default")))

#endif
