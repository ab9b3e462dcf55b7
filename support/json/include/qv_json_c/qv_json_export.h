/** @file
 * Marks what the JSON library exports.
 */
#ifndef QV_JSON_C_QV_JSON_EXPORT_H
#define QV_JSON_C_QV_JSON_EXPORT_H

/** Marks what the shared library exports. Everything else stays hidden. */
#define QV_JSON_API __attribute__((visibility("default")))

#endif
