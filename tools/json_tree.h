#pragma once

// A JSON document under construction: the library's values with less to write. Running out of memory throws.

#include <memory>
#include <new>
#include <string>

#include <qv_json_c/json_value.h>

namespace qv::tools {

/// A value in a tree. Good as long as the tree lives; one in a list until the next is added there.
class Json {
public:
    explicit Json(QvJsonValue_t* pValue) : pValue_(pValue) {}

    /// The member of an object or the new last item of a list, made as null, which what comes first makes an object, a
    /// list or an end.
    Json member(const char* pKey) const { return Json(QvJsonValue_member(pValue_, pKey)); }
    Json member(const std::string& key) const { return member(key.c_str()); }
    Json append() const { return Json(QvJsonValue_item(pValue_, QvJsonValue_size(pValue_))); }
    bool has(const char* pKey) const { return QvJsonValue_member2(pValue_, pKey) != nullptr; }

    void set(const char* pKey, const std::string& text) const
    {
        need(QvJsonValue_addStringToObject(pValue_, pKey, text.c_str()));
    }
    void set(const char* pKey, const char* pText) const { need(QvJsonValue_addStringToObject(pValue_, pKey, pText)); }
    void set(const char* pKey, bool value) const { need(QvJsonValue_addBooleanToObject(pValue_, pKey, value)); }
    /// Whole numbers stand without a point.
    void set(const char* pKey, double number) const
    {
        const bool isWhole = number > -0x1p63 && number < 0x1p63 && number == static_cast<double>(whole(number));
        need(isWhole ? QvJsonValue_addIntegerToObject(pValue_, pKey, whole(number))
                     : QvJsonValue_addFloatToObject(pValue_, pKey, number));
    }
    void set(const char* pKey, std::size_t number) const
    {
        need(QvJsonValue_addIntegerToObject(pValue_, pKey, static_cast<ssize_t>(number)));
    }
    void add(const char* pText) const { need(QvJsonValue_addStringToArray(pValue_, pText)); }
    void add(std::int64_t number) const { need(QvJsonValue_addIntegerToArray(pValue_, number)); }

    QvJsonValue_t* get() const { return pValue_; }

private:
    static ssize_t whole(double number) { return static_cast<ssize_t>(number); }
    static void need(int status)
    {
        if (status != 0) {
            throw std::bad_alloc();
        }
    }

    QvJsonValue_t* pValue_;
};

} // namespace qv::tools
