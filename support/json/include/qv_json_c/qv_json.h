/** @file
 * Everything of libqv_json_c: a tree of JSON values with comments, its reader, its writer and the walk along a path.
 */
#ifndef QV_JSON_C_QV_JSON_H
#define QV_JSON_C_QV_JSON_H

#include <qv_json_c/json_compact.h>
#include <qv_json_c/json_path.h>
#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_value.h>
#include <qv_json_c/json_walk.h>
#include <qv_json_c/json_writer.h>

#endif
