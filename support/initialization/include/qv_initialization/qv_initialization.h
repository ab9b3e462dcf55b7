/** @file
 * Initialization files: sections of keys and values, as people write them by hand.
 *
 *     ; comment lines above a section or a key begin with ';' or '#'
 *     [SS]
 *     driverName = imx477
 *     note = "  blanks at the ends; and a mark "  ; a comment may follow a quoted value
 *     bare
 *
 * What holds for the whole interface:
 *
 * 1. Every operation returns a status: 0 is success, 5 out of memory, 7 a syntax error, 13 bad arguments (a null
 * pointer, a handle of 0, or a variable to be filled that isn't clear). Statuses of the common library are handed on.
 * 2. All strings of sections and members are zero-terminated blocks of the malloc family; whoever replaces one frees
 * the old one. Bytes from 0x80 up are carried through as they stand, whether they are valid UTF-8 or not.
 * 3. Sections and members belong to the queue that holds them, if that queue was opened with their delete operation.
 * 4. The only trace written is one Error line for a syntax error.
 *
 * The syntax is told in initialization_reader.h, the written form in initialization_writer.h.
 */
#ifndef QV_INITIALIZATION_H
#define QV_INITIALIZATION_H

#include <qv_initialization/initialization_member.h>
#include <qv_initialization/initialization_reader.h>
#include <qv_initialization/initialization_section.h>
#include <qv_initialization/initialization_text.h>
#include <qv_initialization/initialization_walk.h>
#include <qv_initialization/initialization_writer.h>
#include <qv_initialization/qv_initialization_export.h>

#endif /* QV_INITIALIZATION_H */
