/* Marks what the database library exports; everything else stays hidden. */
#ifndef QV_DATABASE_C_QV_DATABASE_EXPORT_H
#define QV_DATABASE_C_QV_DATABASE_EXPORT_H

#define QV_DATABASE_API __attribute__((visibility("default")))

#endif
