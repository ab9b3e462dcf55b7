#include "check_values.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include <qv_common_c/common_stdlib.h>

#include "output.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;
using Faults = std::vector<ValueFault>;

constexpr std::size_t kMostShown = 40;

/// A text or token as it is shown in a line: in quotes where it is a text, and not longer than helps.
std::string shown(std::string_view text, bool isText)
{
    std::string part(text.substr(0, kMostShown));
    while (part.size() < text.size() && !part.empty() &&
           (static_cast<unsigned char>(text[part.size()]) & 0xC0U) == 0x80U) {
        part.pop_back();
    }
    part += part.size() < text.size() ? "..." : "";
    return isText ? jsonText(part) : part;
}

std::string token(const Document& document, NodeIndex node)
{
    switch (document[node].type) {
    case QvJsonValueType_Object:
        return "an object";
    case QvJsonValueType_Array:
        return "a list";
    case QvJsonValueType_String:
        return shown(document.string(node), true);
    default:
        return shown(document.slice(document[node].value), false);
    }
}

/// What a field holds after its low bytes took those of an integer.
std::string storedInteger(const CatalogField& field, std::int64_t number)
{
    const auto unused = static_cast<unsigned>(64 - 8 * std::min<std::size_t>(field.width, 8));
    const std::uint64_t bits = static_cast<std::uint64_t>(number) << unused;
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        return "the byte " + std::to_string(bits >> unused);
    case QvDatabaseCatalogElement_Float:
        return shortNumber(static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(number))));
    default:
        return field.isSigned ? std::to_string(static_cast<std::int64_t>(bits) >> unused)
                              : std::to_string(bits >> unused);
    }
}

/// The same as a number.
double numberStored(const CatalogField& field, std::int64_t number)
{
    const auto unused = static_cast<unsigned>(64 - 8 * std::min<std::size_t>(field.width, 8));
    const std::uint64_t bits = static_cast<std::uint64_t>(number) << unused;
    if (field.element == QvDatabaseCatalogElement_Float) {
        return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(number)));
    }
    return field.isSigned ? static_cast<double>(static_cast<std::int64_t>(bits) >> unused)
                          : static_cast<double>(bits >> unused);
}

/// Whether the bytes of a field take an integer as it is: with the sign of the member or that which a save writes. Eight
/// bytes without a sign are saved as if they had one.
bool isHeld(const CatalogField& field, std::int64_t number, bool isBeyondSigned)
{
    if (field.element == QvDatabaseCatalogElement_Bool) {
        return number == 0 || number == 1;
    }
    if (field.width >= sizeof number) {
        return !isBeyondSigned || !field.isSigned;
    }
    const std::int64_t values = std::int64_t{1} << (8 * field.width);
    const bool isEverSigned = field.isSigned || field.isWrittenSigned;
    const bool isEverUnsigned = !field.isSigned || !field.isWrittenSigned;
    return !isBeyondSigned && number >= (isEverSigned ? -values / 2 : 0) &&
           number < (isEverUnsigned ? values : values / 2);
}

/// What the type is called that a number doesn't fit.
std::string typeText(const CatalogField& field)
{
    if (field.element == QvDatabaseCatalogElement_Bool) {
        return "a boolean";
    }
    return std::to_string(8 * field.width) + " bits " + (field.isSigned ? "with" : "without") + " a sign";
}

void checkInteger(const CatalogField& field, const std::string& token, std::int64_t number, bool isBeyondSigned,
                  Faults& faults)
{
    if (!isHeld(field, number, isBeyondSigned)) {
        faults.push_back({Fault::OutOfRange, token + " doesn't fit " + typeText(field) + ", and is stored as " +
                                                 storedInteger(field, number)});
        return;
    }
    checkMeaning(field, numberStored(field, number), faults);
}

void checkFloat(const CatalogField& field, const std::string& token, double number, bool isInteger, Faults& faults)
{
    if (field.element == QvDatabaseCatalogElement_Double) {
        checkMeaning(field, number, faults);
        return;
    }
    const double stored = static_cast<double>(static_cast<float>(number));
    if (std::isinf(stored)) {
        faults.push_back({Fault::OutOfRange,
                          token + " is beyond a float, and is stored as " + (number < 0 ? "-infinity" : "infinity")});
        return;
    }
    if ((isInteger && stored != number) || (stored == 0 && number != 0)) {
        faults.push_back(
            {Fault::Precision, token + " is more than a float tells apart, and is stored as " + shortNumber(stored)});
    }
    checkMeaning(field, stored, faults);
}

void checkText(const CatalogField& field, std::string_view text, Faults& faults)
{
    const std::size_t length = std::min(text.find('\0'), text.size());
    const std::string width = std::to_string(field.width);
    if (length > field.width) {
        faults.push_back({Fault::TextCut, "a text of " + std::to_string(length) + " bytes in a field of " + width +
                                              " is stored as " + shown(text.substr(0, field.width), true) +
                                              " without a terminator"});
    } else if (length == field.width) {
        faults.push_back({Fault::Unterminated, "a text of " + width + " bytes fills its field of " + width +
                                                   " and leaves no room for the terminator"});
    } else if (length < text.size()) {
        faults.push_back({Fault::TextCut, "the text ends at its zero character, and is stored as " +
                                              shown(text.substr(0, length), true)});
    }
}

/// What a field takes in a message.
const char* wantedText(QvDatabaseCatalogElement_t element)
{
    switch (element) {
    case QvDatabaseCatalogElement_Bool:
        return "true or false";
    case QvDatabaseCatalogElement_Text:
        return "a text";
    default:
        return "a number";
    }
}

void checkJson(const Document& document, NodeIndex node, const CatalogField& field, bool isItem, Faults& faults)
{
    const DocumentNode& value = document[node];
    const bool isBool = field.written == QvDatabaseCatalogElement_Bool;
    const bool isText = field.written == QvDatabaseCatalogElement_Text;
    const char* pNothing = isBool ? "false" : "0";
    if (value.type == QvJsonValueType_Null) {
        if (field.direction != QvDatabaseCatalogDirection_ReadWhileWriting) {
            faults.push_back({Fault::NullValue, isItem && !isText ? std::string("null is stored as ") + pNothing
                                                                  : std::string("null leaves it as it was")});
        }
        return;
    }
    if (value.isContainer() || (value.type == QvJsonValueType_String) != isText) {
        const bool isKept = isText || (value.isContainer() && value.count == 0 && !isItem);
        faults.push_back({Fault::WrongKind,
                          token(document, node) + " is not " + wantedText(field.written) +
                              (isKept ? ", and leaves it as it was" : std::string(", and is stored as ") + pNothing)});
        return;
    }
    if (isText) {
        checkText(field, document.string(node), faults);
        return;
    }
    const double number = document.number(node);
    if (isBool) {
        if (value.type != QvJsonValueType_Boolean) {
            const bool isClear = number == 0 || number == 1;
            faults.push_back(
                {isClear ? Fault::Converted : Fault::OutOfRange,
                 token(document, node) + " for a boolean is stored as " + (number != 0 ? "true" : "false")});
        }
        return;
    }
    if (value.type == QvJsonValueType_Boolean) {
        faults.push_back(
            {Fault::Converted, token(document, node) + " for a number is stored as " + (value.isTrue ? "1" : "0")});
        return;
    }
    if (field.written != QvDatabaseCatalogElement_Integer) {
        checkFloat(field, token(document, node), number, value.type == QvJsonValueType_Integer, faults);
        return;
    }
    const std::int64_t integer = document.integer(node);
    if (value.type == QvJsonValueType_Float) {
        constexpr double kBeyond = 9223372036854775808.0;
        if (number >= kBeyond || number < -kBeyond) {
            faults.push_back({Fault::OutOfRange, token(document, node) + " doesn't fit " + typeText(field) +
                                                     ", and is stored as " + storedInteger(field, integer)});
            return;
        }
        if (number != std::trunc(number)) {
            faults.push_back({Fault::Fraction,
                              token(document, node) + " for an integer is stored as " + storedInteger(field, integer)});
            return;
        }
    }
    // From 2^63 on the reader keeps the 64 bits.
    const bool isBeyondSigned = value.type == QvJsonValueType_Integer && integer < 0 && !document.isSigned(node);
    checkInteger(field, token(document, node), integer, isBeyondSigned, faults);
}

/// A section's number is read as far as its digits go.
void checkIniNumber(const CatalogField& field, const std::string& text, Faults& faults)
{
    char* pEnd = nullptr;
    errno = 0;
    const bool isFloat = field.written == QvDatabaseCatalogElement_Float;
    const double number = isFloat ? static_cast<double>(QvCommonStdlib_strtof(text.c_str(), &pEnd)) : 0;
    const std::int64_t integer = isFloat ? 0 : QvCommonStdlib_strtol(text.c_str(), &pEnd, 10);
    const bool isBeyond = errno == ERANGE && (!isFloat || std::isinf(number));
    const std::string rest = pEnd;
    const std::string quoted = shown(text, true);
    const std::string stored = isFloat ? shortNumber(number) : storedInteger(field, integer);
    if (pEnd == text.c_str()) {
        faults.push_back({Fault::WrongKind, quoted + " is no number, and is stored as 0"});
    } else if (!rest.empty()) {
        const bool isFraction =
            !isFloat && rest[0] == '.' && rest.find_first_not_of("0123456789", 1) == std::string::npos;
        if (!isFraction || rest.find_first_not_of(".0") != std::string::npos) {
            faults.push_back(
                {isFraction ? Fault::Fraction : Fault::WrongKind,
                 quoted +
                     (isFraction ? " for an integer is stored as " : " is no number as a whole, and is stored as ") +
                     stored});
        }
    } else if (isBeyond) {
        faults.push_back({Fault::OutOfRange, text + " doesn't fit " + (isFloat ? "a float" : typeText(field)) +
                                                 ", and is stored as " + stored});
    } else if (isFloat) {
        checkMeaning(field, number, faults);
    } else {
        checkInteger(field, text, integer, false, faults);
    }
}

void checkIni(const Document& document, NodeIndex node, const CatalogField& field, Faults& faults)
{
    if (document[node].type == QvJsonValueType_Null) {
        faults.push_back({Fault::NullValue, "a key without a value leaves it as it was"});
        return;
    }
    const std::string text(document.string(node));
    if (field.written == QvDatabaseCatalogElement_Bool) {
        if (text != "true" && text != "false") {
            faults.push_back(
                {Fault::WrongKind, shown(text, true) + " is neither true nor false, and is stored as false"});
        }
    } else if (field.written == QvDatabaseCatalogElement_Text) {
        if (text.size() >= field.width) {
            // Nothing cuts it: it runs on with its terminator.
            faults.push_back({Fault::TextCut, "a text of " + std::to_string(text.size()) + " bytes in a field of " +
                                                  std::to_string(field.width) +
                                                  " runs over into the fields behind it"});
        }
    } else {
        checkIniNumber(field, text, faults);
    }
}

} // namespace

std::string shortNumber(double number)
{
    char text[64];
    // Most are floats, whose own digits are fewer.
    const bool isFloat = static_cast<double>(static_cast<float>(number)) == number;
    const auto result = isFloat ? std::to_chars(text, text + sizeof text, static_cast<float>(number))
                                : std::to_chars(text, text + sizeof text, number);
    return {text, result.ptr};
}

bool isPlain(const Document& document, NodeIndex node, const CatalogField& field)
{
    const DocumentNode& value = document[node];
    if (document.form() == Form::Ini || field.valueNumber != 0 || !std::isinf(field.minimum) ||
        !std::isinf(field.maximum)) {
        return false;
    }
    if (field.written == QvDatabaseCatalogElement_Integer && value.type == QvJsonValueType_Integer) {
        return field.element != QvDatabaseCatalogElement_Bool && value.integer >= 0 &&
               isHeld(field, value.integer, false);
    }
    return field.written == QvDatabaseCatalogElement_Float && value.type == QvJsonValueType_Float &&
           (std::abs(value.number) < 1e30 && (std::abs(value.number) > 1e-30 || value.number == 0));
}

void checkValue(const Document& document, NodeIndex node, const Bound& bound, Faults& faults)
{
    const CatalogField& field = bound.pField->field;
    if (document.form() == Form::Ini) {
        checkIni(document, node, field, faults);
    } else {
        checkJson(document, node, field, document[node].key.isEmpty(), faults);
    }
}

void checkMeaning(const CatalogField& field, double number, Faults& faults)
{
    if (number < field.minimum || number > field.maximum) {
        faults.push_back({Fault::Range, shortNumber(number) + " is out of the range " + rangeText(field)});
    }
    if (field.valueNumber == 0) {
        return;
    }
    std::string names;
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        if (static_cast<double>(value.value) == number) {
            return;
        }
        names += (names.empty() ? "" : ", ") + std::to_string(value.value) + ' ' + value.pShort;
    }
    faults.push_back({Fault::UnnamedValue, shortNumber(number) + " is none of its values: " + names});
}

} // namespace qv::tools
