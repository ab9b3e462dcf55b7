/** @file
 * Marks what the database library exports.
 */
#ifndef QV_DATABASE_C_QV_DATABASE_EXPORT_H
#define QV_DATABASE_C_QV_DATABASE_EXPORT_H

/** Marks what the shared library exports. Everything else stays hidden. */
#define QV_DATABASE_API __attribute__((visibility("default")))

#endif
