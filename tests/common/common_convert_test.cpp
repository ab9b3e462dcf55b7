#include <qv_common_c/common_convert.h>

#include <climits>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include <qv_common_c/common_argument.h>
#include <qv_common_c/common_error.h>
#include <qv_common_c/common_stdlib.h>
#include <qv_common_c/common_string.h>
#include <qv_common_c/common_time.h>

namespace {

TEST(CommonConvert, StoresAndReadsEveryWidthAtItsIndexAlone)
{
    struct Case {
        size_t stride;
        int64_t value;
        int64_t asSigned;
        int64_t asUnsigned;
    };
    const Case cases[] = {
        {1, -1, -1, 255},      {1, 0x1ff80, -128, 128}, // the low byte is kept
        {2, 65535, -1, 65535}, {4, -2, -2, 4294967294}, {8, INT64_MIN, INT64_MIN, INT64_MIN},
        {3, 77, 0, 0}, // no such width: nothing stored, 0 read
    };
    for (const Case& one : cases) {
        unsigned char bytes[33];
        unsigned char untouched[33];
        std::memset(bytes, 0x5a, sizeof(bytes));
        std::memset(untouched, 0x5a, sizeof(untouched));
        unsigned char* pData = bytes + 1; // of no alignment
        QvCommonConvert_integer2Binary(pData, one.stride, 2, one.value);
        EXPECT_EQ(QvCommonConvert_integer2Binary_(true, pData, one.stride, 2), one.asSigned) << one.stride;
        EXPECT_EQ(QvCommonConvert_integer2Binary_(false, pData, one.stride, 2), one.asUnsigned) << one.stride;
        const size_t width = one.stride == 3 ? 0 : one.stride;
        EXPECT_EQ(std::memcmp(bytes, untouched, 1 + 2 * width), 0) << one.stride;
        EXPECT_EQ(std::memcmp(pData + 3 * width, untouched, sizeof(bytes) - 1 - 3 * width), 0) << one.stride;
    }
    QvCommonConvert_integer2Binary(nullptr, 1, 0, 1);
    EXPECT_EQ(QvCommonConvert_integer2Binary_(true, nullptr, 1, 0), 0);
}

TEST(CommonStdlib, NumbersAreReadAsFarAsTheyGo)
{
    char* pEnd = nullptr;
    EXPECT_EQ(QvCommonStdlib_strtof(" -29.97e1,5", &pEnd), -299.7F);
    EXPECT_STREQ(pEnd, ",5");
    EXPECT_EQ(QvCommonStdlib_strtol("  -12.000", &pEnd, 10), -12);
    EXPECT_STREQ(pEnd, ".000");
    EXPECT_EQ(QvCommonStdlib_strtol("99999999999999999999", nullptr, 10), LONG_MAX);
    EXPECT_EQ(QvCommonStdlib_strtol(nullptr, &pEnd, 10), 0);
    EXPECT_EQ(pEnd, nullptr);
    EXPECT_EQ(QvCommonStdlib_strtof(nullptr, nullptr), 0.0F);
}

TEST(CommonString, EqualMeansTheWholeText)
{
    EXPECT_TRUE(QvCommonString_equal("true", "true", true));
    EXPECT_FALSE(QvCommonString_equal("True", "true", true));
    EXPECT_TRUE(QvCommonString_equal("TRUE", "true", false));
    EXPECT_FALSE(QvCommonString_equal("TRUE1", "true", false));
    EXPECT_FALSE(QvCommonString_equal("tru", "true", false));
    EXPECT_FALSE(QvCommonString_equal("@", "`", false)); // neighbours of the letters
    EXPECT_FALSE(QvCommonString_equal("[", "{", false));
    EXPECT_FALSE(QvCommonString_equal(nullptr, "", true));
    EXPECT_FALSE(QvCommonString_equal("", nullptr, true));
    EXPECT_TRUE(QvCommonString_equal(nullptr, nullptr, false));

    EXPECT_TRUE(QvCommonArgument_match("paths[0].format", "paths[0].format"));
    EXPECT_FALSE(QvCommonArgument_match("paths[0].formatExt", "paths[0].format"));
    EXPECT_FALSE(QvCommonArgument_match("Paths[0].format", "paths[0].format"));
    EXPECT_FALSE(QvCommonArgument_match(nullptr, nullptr));
    EXPECT_FALSE(QvCommonArgument_match("", nullptr));
}

TEST(CommonTime, TimestampStaysWithinItsRoom)
{
    std::string text(24, '#');
    ASSERT_EQ(QvCommonTime_timestamp(text.data(), 20), text.data());
    std::string form = text;
    for (char& letter : form) {
        letter = letter >= '0' && letter <= '9' ? 'd' : letter;
    }
    EXPECT_EQ(form, std::string("dddd-dd-ddTdd:dd:dd\0####", 24)) << text;
    text.assign(24, '#');
    QvCommonTime_timestamp(text.data(), 5); // cut
    EXPECT_EQ(text.substr(4), '\0' + std::string(19, '#'));
    EXPECT_EQ(QvCommonTime_timestamp(nullptr, 20), nullptr);
    text.assign(24, '#');
    EXPECT_EQ(QvCommonTime_timestamp(text.data(), 0), text.data());
    EXPECT_EQ(text, std::string(24, '#'));
}

TEST(CommonError, NumberBeyondTheTextsIsUnknown)
{
    EXPECT_STREQ(QvCommonError_text(15), "key or bracket not found");
    for (const int status : {-1, 16, INT_MAX, INT_MIN}) {
        EXPECT_STREQ(QvCommonError_text(status), "unknown status");
    }
}

} // namespace
