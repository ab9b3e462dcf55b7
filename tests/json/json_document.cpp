#include "json_document.h"

#include <cstdlib>
#include <iterator>
#include <utility>
#include <vector>

namespace qv::test {

namespace {

constexpr std::string_view kPieces[] = {
    "{",    "}",    "[",    "]",     ",",       ":",      "\"", "\\", "/",    "//", "/*", "*/", "\n",   " ",
    "0",    "1",    "9",    "-",     "+",       ".",      "e",  "E",  "null", "t",  "\t", "\r", "\x01", "\x80",
    "\xC3", "\xED", "\xF4", "\\u00", "\\ud834", "\"a\":", ", ", "[]", "{}",   ",,", "1e", "00", "0.1",  "\"\\u0000\"",
};

} // namespace

std::string numbered(const char* pName, int number)
{
    std::string text(pName);
    return text.append(std::to_string(number));
}

std::string listOf(int first, int number)
{
    std::string text = numbered("[", first);
    for (int value = first + 1; value < first + number; ++value) {
        text += numbered(", ", value);
    }
    return text + "]";
}

Tree make(QvJsonValueType_t type)
{
    QvJsonValue_t* pValue = nullptr;
    EXPECT_EQ(QvJsonValue_create(type, &pValue), 0);
    return Tree(pValue);
}

Exact::Exact(std::string_view text) : block_(new char[text.size() + 1]), size_(text.size())
{
    text.copy(block_.get() + 1, size_);
}

Reader::Reader()
{
    EXPECT_EQ(QvJsonReader_open(&handle_), 0);
}

Reader::~Reader()
{
    EXPECT_EQ(QvJsonReader_close(&handle_), 0);
    EXPECT_EQ(handle_, 0U);
}

int Reader::parse(const Exact& text, Tree* pTree) const
{
    QvJsonValue_t* pValue = nullptr;
    const int status = QvJsonReader_parse(handle_, text.begin(), text.end(), &pValue);
    EXPECT_EQ(pValue != nullptr, status == 0);
    pTree->reset(pValue);
    return status;
}

namespace {

Tree readBy(const Reader& reader, std::string_view text, int expectedStatus)
{
    Tree tree;
    EXPECT_EQ(reader.parse(Exact(text), &tree), expectedStatus) << text;
    return tree;
}

} // namespace

Tree read(std::string_view text, int expectedStatus)
{
    return readBy(Reader(), text, expectedStatus);
}

Tree readCompact(std::string_view text, int expectedStatus)
{
    const Reader reader;
    EXPECT_EQ(QvJsonCompact_setReader(reader.handle()), 0);
    return readBy(reader, text, expectedStatus);
}

std::string write(QvJsonValue_t* pValue, QvJsonWriterOpenParam_t* pParam)
{
    QvJsonWriterHandle_t writer = 0;
    char* pText = nullptr;
    EXPECT_EQ(QvJsonWriter_open(pParam, &writer), 0);
    EXPECT_EQ(QvJsonWriter_stringify(writer, pValue, &pText), 0);
    EXPECT_EQ(QvJsonWriter_close(&writer), 0);
    std::string text = pText != nullptr ? pText : "";
    std::free(pText);
    return text;
}

namespace {

// What stands between two tokens.
std::string gap(std::mt19937& random)
{
    constexpr std::string_view kInside[] = {"/*",   "*/",   "//", "\n",       "\n", " ", "\t",
                                            "\r",   "\v",   "a",  "\xC3\xA4", "*",  "/", ",",
                                            "\xFF", "\x01", "[",  "]",        "}",  "1", "{\"k\": 1"};
    std::string inside;
    for (size_t number = random() % 3; number != 0; --number) {
        inside += kInside[random() % std::size(kInside)];
    }
    switch (random() % 16) {
    case 0:
        return "//" + inside + "\n" + gap(random);
    case 1:
        return "/*" + inside + "*/" + gap(random);
    case 2:
        return "\n" + gap(random);
    case 3:
        return " \r\t";
    default:
        return "";
    }
}

} // namespace

std::string layOut(std::mt19937& random)
{
    constexpr std::string_view kDocument =
        R"( { "a" : [ 0 , -0 , -12 , 1234567 , 12345678 , 18446744073709551615 , [ ] , [ { } ] ] , "\u0065" : { } , "" :)"
        R"( { "f" : [ 0.5 , -1.25e2 , 1E-7 , 3.14159265358979323846 , 1e999 ] , "b" : [ [ 1 , 2 ] , [ true , null ] ] } ,)"
        R"( "text" : [ "" , "a,[b]{c}://d" , "\"\\\u00e4\n" , "\ud834\udd1e\u20ac" , "cut\u0000here" , "\u0001" ] ,)"
        R"( "b" : { "c" : { "d" : "x" } , "d\u0000e" : false , "list" : [ ] } , "g" : 7 } )";
    std::string text = random() % 8 == 0 ? "\xEF\xBB\xBF" : "";
    for (const char letter : kDocument) {
        text += letter == ' ' ? gap(random) : std::string(1, letter);
    }
    return text;
}

std::string mutate(std::string_view document, std::mt19937& random)
{
    std::string text(document);
    const auto below = [&](size_t limit) { return static_cast<size_t>(random() % limit); };
    for (size_t number = 1 + below(3); number != 0; --number) {
        const size_t place = below(text.size());
        const size_t length = 1 + below(random() % 4 == 0 ? 40 : 3);
        const std::string_view piece = kPieces[below(std::size(kPieces))];
        switch (random() % 4) {
        case 0:
            text.erase(place, length);
            break;
        case 1:
            text.insert(place, piece);
            break;
        case 2:
            text.replace(place, 1, piece);
            break;
        default:
            text.insert(below(text.size()), text.substr(place, length));
            break;
        }
        if (text.empty()) {
            text.assign(1, '0');
        }
    }
    return text;
}

} // namespace qv::test
