/** @file
 * All of the common support library in one include.
 *
 * Conventions of the whole interface:
 * 1. An operation that returns int returns a status of QvCommonError_t, 0 for success, unless its comment says
 * otherwise.
 * 2. A null handle, a null pointer that isn't said to be optional, and an output variable that isn't clear give status
 *    13 and change nothing.
 * 3. A handle is an unsigned integer of pointer size. Zero means none. Open fills a variable that holds zero, close
 *    sets it back to zero. A handle that was closed must not be used again.
 * 4. A handle may be used by one thread at a time, unless its comment says otherwise. Different handles don't share
 *    anything.
 * 5. Heap blocks that pass between the caller and the library are made with malloc, calloc or realloc and released with
 *    free.
 * 6. Functions that the caller hands in must not throw.
 */
#ifndef QV_COMMON_H
#define QV_COMMON_H

#include <qv_common_c/common_argument.h>
#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_buffer_queue.h>
#include <qv_common_c/common_convert.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_common_c/common_error.h>
#include <qv_common_c/common_logger.h>
#include <qv_common_c/common_map.h>
#include <qv_common_c/common_stdlib.h>
#include <qv_common_c/common_string.h>
#include <qv_common_c/common_time.h>
#include <qv_common_c/common_tracer.h>

#endif
