/** @file
 * Marks what the initialization library exports.
 */
#ifndef QV_INITIALIZATION_EXPORT_H
#define QV_INITIALIZATION_EXPORT_H

/** Marks what the shared library exports. Everything else stays hidden. */
#define QV_INITIALIZATION_API __attribute__((visibility("default")))

#endif
