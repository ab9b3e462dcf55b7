/** @file
 * A tree of JSON values.
 *
 * Rules for the whole header:
 * 1. The structs are open for reading. A caller changes only values that an operation gave him (create, member,
 *    member2, item, an add, path, reader), and not those that he found by reading the structs: through the operations,
 *    and the texts of their two comments, which he may replace by another string from malloc() (or null).
 * 2. A tree is used by one thread at a time, lookups included, since they remember where they were.
 * 3. Members of an object never move: a pointer to one is good as long as the object lives. Items of an array lie one
 *    behind the other: a pointer to an item is good until the next item is added to the same array.
 * 4. Texts are UTF-8 up to a zero byte. What is passed in is copied.
 * 5. No operation faults on a null pointer or on a value of another kind than the one it works on.
 */
#ifndef QV_JSON_C_JSON_VALUE_H
#define QV_JSON_C_JSON_VALUE_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/types.h>

#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What a value is. */
typedef enum QvJsonValueType {
    QvJsonValueType_Null = 0,    /**< nothing: null in a text, or a member or item made by asking for it */
    QvJsonValueType_Array = 1,   /**< holder.pArray */
    QvJsonValueType_Boolean = 2, /**< holder._bool */
    QvJsonValueType_Float = 3,   /**< holder._float: a number with point or exponent, or beyond 64 bits */
    QvJsonValueType_Integer = 4, /**< holder.integer */
    QvJsonValueType_Object = 5,  /**< holder.pObject */
    QvJsonValueType_String = 6   /**< holder.pChar */
} QvJsonValueType_t;

typedef struct QvJsonValueArray QvJsonValueArray_t;
typedef struct QvJsonValueObject QvJsonValueObject_t;

/** One value. */
typedef struct QvJsonValue {
    /** The value of each kind. */
    union Holder {
        bool _bool;                   /**< of a Boolean */
        double _float;                /**< of a Float */
        ssize_t integer;              /**< of an Integer */
        QvJsonValueArray_t* pArray;   /**< never null in an Array; owned by the tree */
        char* pChar;                  /**< never null in a String; owned by the tree */
        QvJsonValueObject_t* pObject; /**< never null in an Object; owned by the tree */
    } holder;                         /**< the value, by type; private while it is null */
    char* pComment;                   /**< lines that stand above the value; null if none; from malloc(), owned */
    char* pComment2;                  /**< text behind the value on its line; null if none; from malloc(), owned */
    QvJsonValueType_t type;           /**< which member of holder counts */
    uint32_t reserved;                /**< private to the library: where the value stands */
} QvJsonValue_t;

/** The items of an array. Allocated larger than it looks; never made or copied by a caller. */
struct QvJsonValueArray {
    size_t number;          /**< of items */
    QvJsonValue_t* pValues; /**< the first of them; may be null when there are none */
};

/** One member of an object. */
typedef struct QvJsonValuePair {
    char* pKey;            /**< never null; owned by the object */
    QvJsonValue_t* pValue; /**< never null; owned by the object */
} QvJsonValuePair_t;

/** The members of an object in the order in which they were added; no key stands twice. Allocated larger, too. */
struct QvJsonValueObject {
    size_t number;             /**< of members */
    QvJsonValuePair_t* pPairs; /**< the first of them; may be null when there are none */
};

/**
 * Makes a value of the type: null, an empty array, object or text, false or zero. *ppValue receives it, and the caller
 * owns it until it is added to a tree. 0; 5 when memory runs out; 13 for a null pointer or an unknown type.
 */
QV_JSON_API int QvJsonValue_create(QvJsonValueType_t type, QvJsonValue_t** ppValue);

/**
 * Deletes the value with all below it and clears the pointer. A value that stands in a tree keeps its place there and
 * becomes null. 0, also where *ppValue is null; 13 for a null ppValue.
 */
QV_JSON_API int QvJsonValue_delete(QvJsonValue_t** ppValue);

/**
 * Finds the member of an object, and makes it, as a null value at the end, where there is none. A null value becomes an
 * object first. Fastest where keys are asked for in the order in which they stand.
 *
 * Never yields null. For a null pointer, for a value of another kind and when memory runs out, the result is an empty
 * value that belongs to the library and to no tree. It may be used like any other, and is good until the same thread
 * has been given sixteen more of them, or ends.
 * Without memory even for those, it is one that stays empty: what is added to it answers 5, and its comments are not to
 * be set.
 */
QV_JSON_API QvJsonValue_t* QvJsonValue_member(QvJsonValue_t* pValue, const char* pKey);

/** Finds the member of an object and makes nothing: null if there is none, or no object. */
QV_JSON_API QvJsonValue_t* QvJsonValue_member2(QvJsonValue_t* pValue, const char* pKey);

/** True for a null pointer, a null value and an array or object with nothing in it. A text is never empty. */
QV_JSON_API bool QvJsonValue_isEmpty(QvJsonValue_t* pValue);

/** Number of items of an array, 0 for everything else. */
QV_JSON_API size_t QvJsonValue_size(QvJsonValue_t* pValue);

/**
 * The item of an array, counted from 0. Past the end it is made, with those before it, as null values. A null value
 * becomes an array first.
 *
 * Never yields null: where there can be no such item (a null pointer, a value of another kind, more than 2^20 items
 * past the end, no memory), the result is an empty value as QvJsonValue_member gives it.
 */
QV_JSON_API QvJsonValue_t* QvJsonValue_item(QvJsonValue_t* pValue, size_t index);

/**
 * The value as a boolean. Integer, float and boolean convert into each other: a float is cut towards zero and
 * saturates at the ends of ssize_t, not-a-number is 0; everything but zero is true. All other kinds, a null pointer
 * among them, are false, 0.0 and 0: a text is no number.
 */
QV_JSON_API bool QvJsonValue_asBoolean(QvJsonValue_t* pValue);
/**
 * The value as a double, by the rules of QvJsonValue_asBoolean.
 *
 * The double is the one nearest to what the text says. Narrowed to a float it is rounded a second time, so what lies
 * closer than a double can tell to the middle between two floats may become the wrong one of them:
 * 16777217.0000000001 becomes 16777216. Numbers below 2^33 with up to six digits behind the point never do.
 */
QV_JSON_API double QvJsonValue_asFloat(QvJsonValue_t* pValue);
/** The value as an integer, by the rules of QvJsonValue_asBoolean. */
QV_JSON_API ssize_t QvJsonValue_asInteger(QvJsonValue_t* pValue);

/** The text of a String, owned by the tree; null for every other kind. */
QV_JSON_API char* QvJsonValue_asString(QvJsonValue_t* pValue);

/** An array's item as a boolean. Past the end, or where there is no array: false, and nothing is made. */
QV_JSON_API bool QvJsonValue_itemAsBoolean(QvJsonValue_t* pValue, size_t index);
/** An array's item as a double; 0.0 where there is none. */
QV_JSON_API double QvJsonValue_itemAsFloat(QvJsonValue_t* pValue, size_t index);
/** An array's item as an integer; 0 where there is none. */
QV_JSON_API ssize_t QvJsonValue_itemAsInteger(QvJsonValue_t* pValue, size_t index);
/** The text of an array's item, owned by the tree; null where there is none, and for every other kind. */
QV_JSON_API char* QvJsonValue_itemAsString(QvJsonValue_t* pValue, size_t index);

/**
 * Adds a boolean as a member at the end of an object; a null value becomes an object first. Where the object holds
 * the key already, the value is replaced in its place: its address and its comments stay, its old content is released.
 * 0; 5 when memory runs out; 13 for a null pointer and for a target of another kind. A failure changes nothing.
 */
QV_JSON_API int QvJsonValue_addBooleanToObject(QvJsonValue_t* pValue, const char* pKey, bool value);
/** Adds a float as a member, as QvJsonValue_addBooleanToObject does a boolean. */
QV_JSON_API int QvJsonValue_addFloatToObject(QvJsonValue_t* pValue, const char* pKey, double value);
/** Adds an integer as a member, as QvJsonValue_addBooleanToObject does a boolean. */
QV_JSON_API int QvJsonValue_addIntegerToObject(QvJsonValue_t* pValue, const char* pKey, ssize_t value);
/** Adds a copy of a text as a member, as QvJsonValue_addBooleanToObject does a boolean. */
QV_JSON_API int QvJsonValue_addStringToObject(QvJsonValue_t* pValue, const char* pKey, const char* pText);

/**
 * Adds a boolean as an item at the end of an array; a null value becomes an array first. 0; 5 when memory runs out; 13
 * for a null pointer and for a target of another kind. A failure changes nothing.
 */
QV_JSON_API int QvJsonValue_addBooleanToArray(QvJsonValue_t* pValue, bool value);
/** Adds a float as an item, as QvJsonValue_addBooleanToArray does a boolean. */
QV_JSON_API int QvJsonValue_addFloatToArray(QvJsonValue_t* pValue, double value);
/** Adds an integer as an item, as QvJsonValue_addBooleanToArray does a boolean. */
QV_JSON_API int QvJsonValue_addIntegerToArray(QvJsonValue_t* pValue, ssize_t value);
/** Adds a copy of a text as an item, as QvJsonValue_addBooleanToArray does a boolean. */
QV_JSON_API int QvJsonValue_addStringToArray(QvJsonValue_t* pValue, const char* pText);

/**
 * Says how many items an array will hold in all, so that adding them needs no further memory. It is an offer that saves
 * time and changes nothing that is seen, but that a null value becomes an array. A number below that of the items there
 * are does nothing.
 * 0; 5 when memory runs out; 13 for a null pointer and for a value of another kind. A failure changes nothing.
 */
QV_JSON_API int QvJsonValue_reserve(QvJsonValue_t* pValue, size_t number);

/**
 * Hands a value from QvJsonValue_create, or a reader's tree, over to an object as a member, with all below it and its
 * comments. On success the tree owns it and *ppValue points at its new place, so that the caller can go on filling it;
 * the pointer it came with is no longer valid. On failure it stays the caller's.
 *
 * Statuses as above; 13 too for a value that stands in a tree already, and for adding a value to itself. It must not
 * hold the target anywhere below it; that is not checked.
 */
QV_JSON_API int QvJsonValue_addValueToObject(QvJsonValue_t* pValue, const char* pKey, QvJsonValue_t** ppValue);
/** Hands a value over to an array as an item, as QvJsonValue_addValueToObject does to an object. */
QV_JSON_API int QvJsonValue_addValueToArray(QvJsonValue_t* pValue, QvJsonValue_t** ppValue);

#ifdef __cplusplus
}
#endif

#endif
