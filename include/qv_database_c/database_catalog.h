/*
 * The catalog: what every field of every record is, as data. It needs no open database and never changes; a schema, a
 * checker, a differ or a page of pictures walks it instead of a list of its own.
 *
 *     QvDatabaseCatalogCursor_t cursor = {.size = sizeof cursor};
 *     QvDatabaseCatalogField_t field = {.size = sizeof field};
 *     QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_Tuning, "AE_3", &cursor);
 *     while (QvDatabaseCatalog_next(&cursor, &field) == 0) {
 *         printf("%*s%s: %s\n", (int)field.depth * 2, "", field.pKey, field.pMeaning);
 *     }
 *
 * Conventions of this interface, beyond those of qv_database.h
 *
 *  1. Structs are the caller's. Each begins with its size, which the caller sets and the library leaves alone: only so
 *     much of the struct is filled, so that structs can grow. A size that doesn't even hold the first members that were
 *     ever there gives 13.
 *  2. Texts are constant and stay valid as long as the library is loaded.
 *  3. Nothing is allocated and nothing is traced. Any number of threads may ask at once.
 *  4. Statuses: 0; 6 for a value that the field can't hold; 7 for a text that is no value of the field's kind; 8 for
 *     what is past the last; 10 for a path that leads nowhere; 13 for a null argument, and for a struct that no call has
 *     filled yet. A struct is zero but for its size until then.
 */
#ifndef QV_DATABASE_C_DATABASE_CATALOG_H
#define QV_DATABASE_C_DATABASE_CATALOG_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Where categories and fields stand. The two forms without keys of their own name every field as C does. */
typedef enum QvDatabaseCatalogDocument {
    QvDatabaseCatalogDocument_Memory = 0,         /**< the records themselves: all categories, all members */
    QvDatabaseCatalogDocument_Image = 1,          /**< binary image: the records of 49 categories, byte for byte */
    QvDatabaseCatalogDocument_Tuning = 2,         /**< member "tuning" of a text document */
    QvDatabaseCatalogDocument_Simulator = 3,      /**< member "root" of a text document: class objects, and members of
                                                       the driver object; and its small document of frame metadata */
    QvDatabaseCatalogDocument_Calibration = 4,    /**< members "header", "sensor" and "system" of a text document */
    QvDatabaseCatalogDocument_Initialization = 5, /**< sections of an `.ini` file */
    QvDatabaseCatalogDocument_Meta = 6,           /**< frame metadata */
    QvDatabaseCatalogDocument_Version = 7,        /**< member "version" of a text document */
    QvDatabaseCatalogDocument_Sum = 8             /**< how many there are */
} QvDatabaseCatalogDocument_t;

/** What one element of a field is. */
typedef enum QvDatabaseCatalogElement {
    QvDatabaseCatalogElement_Bool = 0,    /**< false or true */
    QvDatabaseCatalogElement_Integer = 1, /**< `width` bytes, with a sign where `isSigned` says so */
    QvDatabaseCatalogElement_Float = 2,   /**< 32 bits */
    QvDatabaseCatalogElement_Double = 3,  /**< 64 bits */
    QvDatabaseCatalogElement_Text = 4,    /**< characters up to a zero byte or the end of `width` bytes */
    QvDatabaseCatalogElement_Record = 5,  /**< a record with fields of its own */
    QvDatabaseCatalogElement_Pointer = 6  /**< an address, in memory only; what it points at is not walked */
} QvDatabaseCatalogElement_t;

/** How a document counts the elements of a list of records. */
typedef enum QvDatabaseCatalogCount {
    QvDatabaseCatalogCount_One = 0,      /**< a single object, no list; lists of numbers and texts too */
    QvDatabaseCatalogCount_Members = 1,  /**< a single record, held as the list of its numbers; what is missing is 0 */
    QvDatabaseCatalogCount_Fixed = 2,    /**< every element, whatever the document's length */
    QvDatabaseCatalogCount_Whole = 3,    /**< read as far as document and array go, written whole */
    QvDatabaseCatalogCount_Counted = 4,  /**< read likewise, written as far as the counter says, a field of its own */
    QvDatabaseCatalogCount_Measured = 5, /**< its length goes into the counter; a longer list than the array fails */
    QvDatabaseCatalogCount_Schedule = 6, /**< its length, cut to the array, goes into the counter */
    QvDatabaseCatalogCount_Heap = 7      /**< an array on the heap that takes the document's length */
} QvDatabaseCatalogCount_t;

/** Which codec carries a field. */
typedef enum QvDatabaseCatalogDirection {
    QvDatabaseCatalogDirection_Both = 0,            /**< read and written */
    QvDatabaseCatalogDirection_ReadOnly = 1,        /**< read and never written */
    QvDatabaseCatalogDirection_WriteOnly = 2,       /**< written and never read */
    QvDatabaseCatalogDirection_ReadWhileWriting = 3 /**< read; a written document holds it empty */
} QvDatabaseCatalogDirection_t;

/** What a field is there for, where more is known than its type. */
typedef enum QvDatabaseCatalogRole {
    QvDatabaseCatalogRole_None = 0, /**< nothing more is known */
    QvDatabaseCatalogRole_GainAxis =
        1,                            /**< gain points of a schedule; lists of the same length beside it run along it */
    QvDatabaseCatalogRole_CurveX = 2, /**< positions of the curve in the other field */
    QvDatabaseCatalogRole_CurveY = 3, /**< values of the curve whose positions the other field holds */
    QvDatabaseCatalogRole_Curve = 4,  /**< values of a curve without positions */
    QvDatabaseCatalogRole_Matrix = 5, /**< the last dimensions are a matrix of roleRows by roleColumns, row by row */
    QvDatabaseCatalogRole_Map = 6,    /**< values on a grid of that size over the image */
    QvDatabaseCatalogRole_Weights = 7,   /**< weights of a grid of windows of that size over the image */
    QvDatabaseCatalogRole_Window = 8,    /**< a region of the image */
    QvDatabaseCatalogRole_CountOf = 9,   /**< how many elements of the other field are in use */
    QvDatabaseCatalogRole_Measured = 10, /**< a result of hardware or of an algorithm, no setting */
    QvDatabaseCatalogRole_Bits = 11,     /**< a mask or pattern of bits */
    QvDatabaseCatalogRole_Handle = 12    /**< an object of the run time, no setting; it can be read and not set */
} QvDatabaseCatalogRole_t;

/** A category, and where one document carries it. */
typedef struct QvDatabaseCatalogCategory {
    size_t size;           /**< bytes of this struct, set by the caller */
    const char* pKey;      /**< what QvDatabase_query takes, such as "AE_3" */
    const char* pRecord;   /**< name of the record's C type */
    const char* pMeaning;  /**< what the record is, in a sentence or two */
    size_t recordSize;     /**< bytes of the record */
    uint32_t documents;    /**< bit 1 << document for each QvDatabaseCatalogDocument_t that carries the category */
    size_t imageOffset;    /**< place in the binary image; SIZE_MAX where it isn't in it */
    const char* pPlace;    /**< in this document, as a JSON Pointer whose `*` is any item of an array, such as
                                  "/tuning/AE_3"; in an `.ini` file the section's name; empty for
                                  the document itself, for memory and image */
    const char* pClass;    /**< name of the class in this document; null where it has none */
    const char* pClassKey; /**< member that holds the class: "classname" or "class"; null where there is none */
    bool isWritten;        /**< a save writes it; false for what is only read */
} QvDatabaseCatalogCategory_t;

/** A value that has a name. */
typedef struct QvDatabaseCatalogValue {
    size_t size;          /**< bytes of this struct, set by the caller */
    int64_t value;        /**< the number that stands for it in documents and records */
    const char* pName;    /**< name of the enumerator in C */
    const char* pShort;   /**< what tells it apart from the others: the name behind its last underscore */
    const char* pMeaning; /**< what it stands for */
} QvDatabaseCatalogValue_t;

/** A field: a member of a record, as one document carries it. */
typedef struct QvDatabaseCatalogField {
    size_t size;       /**< bytes of this struct, set by the caller */
    const char* pName; /**< C member; null for an object that only groups members of its record */
    const char*
        pKey; /**< member of the document; the C member in memory and image. Of a record that stands as a list of its
     numbers, the members have no keys there: what stands here is their C name, and a path takes the index */
    size_t depth;                           /**< 0 for members of the category's record, 1 for theirs, and so on */
    QvDatabaseCatalogElement_t element;     /**< what one element of the C member is */
    bool isSigned;                          /**< of an integer member */
    QvDatabaseCatalogElement_t written;     /**< what the document holds instead: an integer may stand for a bool or for
                                              the bits of a float */
    bool isWrittenSigned;                   /**< sign of the document's integer, which may differ from the member's */
    size_t width;                           /**< bytes of an element; capacity of a text; size of a record */
    size_t rank;                            /**< dimensions in the document, at most 3 */
    size_t extents[3];                      /**< elements of each, outermost first; 1 for those not in use, 0 for
                                                 a list on the heap, whose length its record tells */
    size_t offset;                          /**< bytes from the beginning of the record that the field belongs to */
    QvDatabaseCatalogCount_t count;         /**< how a list of records is counted */
    const char* pCounter;                   /**< C member that holds its length; null where none does */
    size_t counterOffset;                   /**< bytes from the beginning of the same record */
    size_t counterWidth;                    /**< bytes; 0 where there is no counter */
    const char* pBound;                     /**< C member, the counter of another list of the same record, that reading
                                              ends at as well; null where none does */
    QvDatabaseCatalogDirection_t direction; /**< which codec carries it; within a record, that of the record too */
    bool isTwin;                  /**< an older key of the field before it, read only where that one is absent */
    const char* pRecord;          /**< C type of a nested record, also behind a pointer; else null */
    const char* pMeaning;         /**< what the member means; null for an object that only groups */
    const char* pUnit;            /**< such as "px"; null where none is known */
    double minimum;               /**< least value that makes sense; -INFINITY where none is known */
    double maximum;               /**< greatest one; INFINITY where none is known */
    size_t valueNumber;           /**< values that have names; 0 where none has. See QvDatabaseCatalog_value */
    QvDatabaseCatalogRole_t role; /**< what it is there for */
    const char* pOther;           /**< C member that the role names; null where it names none */
    size_t roleRows;              /**< of a matrix, map or grid of weights; else 0 */
    size_t roleColumns;           /**< of the same */
    intptr_t internal[2];         /**< the library's */
} QvDatabaseCatalogField_t;

/** A walk over the fields of a category. To be filled by QvDatabaseCatalog_walk or _siblings; a copy walks on alone. */
typedef struct QvDatabaseCatalogCursor {
    size_t size;        /**< bytes of this struct, set by the caller */
    size_t depth;       /**< levels in use; the library's, like all that follow */
    uintptr_t table[8]; /**< rows of each level */
    uint16_t next[8];   /**< row that comes next in each */
    QvDatabaseCatalogDocument_t document;
} QvDatabaseCatalogCursor_t;

/** Why a path ended before its end. */
typedef enum QvDatabaseCatalogStop {
    QvDatabaseCatalogStop_None = 0,      /**< it didn't */
    QvDatabaseCatalogStop_Syntax = 1,    /**< something else than a name, a dot or a number in brackets stands there */
    QvDatabaseCatalogStop_Category = 2,  /**< the document has no such category */
    QvDatabaseCatalogStop_Member = 3,    /**< the record has no such member */
    QvDatabaseCatalogStop_Scalar = 4,    /**< what stands before it has no members */
    QvDatabaseCatalogStop_List = 5,      /**< what stands before it is a list and wants an index first */
    QvDatabaseCatalogStop_Index = 6,     /**< an index, and what stands before it is no list */
    QvDatabaseCatalogStop_OutOfRange = 7 /**< the list is shorter than that */
} QvDatabaseCatalogStop_t;

/** What a path leads to: an element, a list or a record. To be filled by QvDatabaseCatalog_find. */
typedef struct QvDatabaseCatalogPlace {
    size_t size;        /**< bytes of this struct, set by the caller */
    const char* pKey;   /**< the category; null where even that was not found */
    size_t offset;      /**< bytes from the beginning of its record, or from that of the array on the heap, see below */
    size_t length;      /**< bytes of all that the path names */
    size_t rank;        /**< dimensions that the path leaves open; 0 for an element */
    size_t extents[3];  /**< elements of each, outermost first; 1 for those not in use */
    size_t heapOffset;  /**< place in the record of the pointer to the array that `offset` counts in; SIZE_MAX where
                               the element lies in the record itself */
    size_t heapItem;    /**< bytes of one element of that array */
    size_t heapCounter; /**< place in the record of the array's length, a size_t */
    size_t reached;     /**< characters of the path that could be followed, all of them after a success */
    QvDatabaseCatalogStop_t stop;         /**< why it wasn't followed further */
    QvDatabaseCatalogDocument_t document; /**< whose names the path uses */
    intptr_t internal[4];                 /**< the library's */
} QvDatabaseCatalogPlace_t;

/** The name of a document as tools print it, such as "tuning"; null past the last. */
QV_DATABASE_API const char* QvDatabaseCatalog_document(QvDatabaseCatalogDocument_t document);

/** The categories that a document carries, one by one in its order. 0; 8 past the last; 13. */
QV_DATABASE_API int QvDatabaseCatalog_category(QvDatabaseCatalogDocument_t document, size_t index,
                                               QvDatabaseCatalogCategory_t* pCategory);

/** Begins a walk over the fields of a category, in the document's order. pCategory is its key, or in the simulator
    document its class. 0; 10 where the document doesn't carry it; 13. */
QV_DATABASE_API int QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_t document, const char* pCategory,
                                           QvDatabaseCatalogCursor_t* pCursor);

/** The next field of a walk: a record comes before its own fields, which are one deeper. 0; 8 past the last; 13. */
QV_DATABASE_API int QvDatabaseCatalog_next(QvDatabaseCatalogCursor_t* pCursor, QvDatabaseCatalogField_t* pField);

/** Passes over the fields of the record that the walk has just given; without effect behind any other field. 0; 13. */
QV_DATABASE_API int QvDatabaseCatalog_skip(QvDatabaseCatalogCursor_t* pCursor);

/** The named values of a field, one by one. 0; 8 past the last; 13. */
QV_DATABASE_API int QvDatabaseCatalog_value(const QvDatabaseCatalogField_t* pField, size_t index,
                                            QvDatabaseCatalogValue_t* pValue);

/** Follows a path such as "A2DNR_5_2.tables[3].strength[7]" through the names of a document: the category (in the
    simulator document its class will do), then members apart by dots, with indices from 0 in brackets. Where a document
    is one record (calibration, meta, version) the category may be left out. Indices may be left out at the end: the
    path then names a list. A list of numbers that a document holds in rows takes an index for each dimension there.
    0; 10 where the path leads nowhere, with `reached`, `stop`, and what was found until there; 13. */
QV_DATABASE_API int QvDatabaseCatalog_find(QvDatabaseCatalogDocument_t document, const char* pPath,
                                           QvDatabaseCatalogPlace_t* pPlace);

/** The field that a path led to, also where it was not followed to its end. 0; 10 for a category without a member
    behind it; 13. */
QV_DATABASE_API int QvDatabaseCatalog_field(const QvDatabaseCatalogPlace_t* pPlace, QvDatabaseCatalogField_t* pField);

/** A walk over the members that could stand where a path ended: those of the record that it led to, for a suggestion.
    0; 10 where no record was reached; 13. */
QV_DATABASE_API int QvDatabaseCatalog_siblings(const QvDatabaseCatalogPlace_t* pPlace,
                                               QvDatabaseCatalogCursor_t* pCursor);

/** The element at a place as a number; a bool is 0 or 1. pRecord is the category's record, as a query gives it.
    Integers beyond 2^53 are rounded. 0; 6 for an element of a heap array past its length; 13, also for a place that is
    no element, and for a text. */
QV_DATABASE_API int QvDatabaseCatalog_number(const QvDatabaseCatalogPlace_t* pPlace, const void* pRecord,
                                             double* pNumber);

/** Stores a number at a place. What the library keeps for itself, handles and the count of an array on the heap, can't be
    set (13). Nothing is changed unless the field holds it: integers and bools take no fraction, and
    the range of the type and the one that is known of the field are kept; floats are finite. 0; 6; 13 as above. */
QV_DATABASE_API int QvDatabaseCatalog_setNumber(const QvDatabaseCatalogPlace_t* pPlace, void* pRecord, double number);

/** The element at a place as a text with a terminator: "true", "-7", "0.25" with as many digits as tell the number from
    any other, the characters of a text. *pLength, where it is not null, takes the text's length, and a pText of null
    asks for that alone. 0; 6 where `capacity` bytes don't hold it, with nothing written; 6 and 13 as above. */
QV_DATABASE_API int QvDatabaseCatalog_text(const QvDatabaseCatalogPlace_t* pPlace, const void* pRecord, char* pText,
                                           size_t capacity, size_t* pLength);

/** Stores a text's value at a place: what QvDatabaseCatalog_text gives of a finite number, a bool or a text, or the name
    of a value in full or short.
    Nothing is changed unless the field holds it; a text must leave room for its terminator, and its rest becomes zero.
    0; 6; 7; 13 as above. */
QV_DATABASE_API int QvDatabaseCatalog_setText(const QvDatabaseCatalogPlace_t* pPlace, void* pRecord, const char* pText);

#ifdef __cplusplus
}
#endif

#endif
