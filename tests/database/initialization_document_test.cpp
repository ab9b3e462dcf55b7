#include <cstring>
#include <sstream>
#include <utility>

#include <qv_database_c/database_input.h>
#include <qv_database_c/database_transmit.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// A text with each "#" replaced by a digit.
std::string numbered(std::string text, int digit)
{
    for (char& character : text) {
        character = character == '#' ? static_cast<char>('0' + digit) : character;
    }
    return text;
}

/// The sample names all keys in their order; these lines differ where a database is at its defaults.
std::string defaultDocument()
{
    std::string text = readFile(sample("imx477.ini"));
    const std::pair<std::string, const char*> kDefaults[] = {
        {"framerate = 30", "framerate = 2"},
        {"paths[0].bayerPattern = 3", "paths[0].bayerPattern = 0"},
        {"paths[0].rectangle.height = 2160", "paths[0].rectangle.height = 1080"},
        {"paths[0].rectangle.width = 3840", "paths[0].rectangle.width = 1920"},
        {"driverName = imx477", "driverName = ov2775"},
        {"modeIdx = 1", "modeIdx = 0"},
        {"fs.frameCount = 100", "fs.frameCount = 0"},
        {"fs.outputFolder = capture", "fs.outputFolder = "},
        {"fs.outputFilePrefix = imx477_", "fs.outputFilePrefix = "},
    };
    for (const auto& [sampled, pDefault] : kDefaults) {
        text.replace(text.find("\n" + sampled + "\n") + 1, sampled.size(), pDefault);
    }
    return text;
}

/// The lines in which a saved file differs from that of the defaults, each with a bar behind it.
std::string changedLines(const Database& database)
{
    std::istringstream saved(database.savedText("saved.ini"));
    std::istringstream defaults(defaultDocument());
    std::string changed;
    std::string line;
    for (std::string expected; std::getline(saved, line);) {
        if (!std::getline(defaults, expected) || line != expected) {
            changed += line + "|";
        }
    }
    EXPECT_FALSE(std::getline(defaults, line)) << "the file is too short";
    return changed;
}

/// What a file changes in the defaults.
std::string changesOf(const std::string& text)
{
    const Database database;
    EXPECT_EQ(database.loadText(text, "hand made.ini"), 0) << text;
    return changedLines(database);
}

TEST(InitializationDocument, TheDefaultsGoOutWordForWord)
{
    EXPECT_EQ(Database().savedText("x.ini"), defaultDocument());
}

/// Keys with their fields as byte:kind: the kind is the field's bytes, b for a flag, f for a float, s for a text.
struct FieldList {
    const char* pSection;
    int number; ///< of paths, which begin at a byte and are so many bytes apart
    int begin;
    int stride;
    const char* pFields;
};

constexpr FieldList kFields[] = {
    {"C_MODEL", 1, 0, 0,
     "_2dnr.bit=0:1 _2dnr.enable=1:b _3dnr.bit=2:1 _3dnr.enable=3:b awb.bit=4:1 awb.enable=5:b ccm.bit=6:1 "
     "ccm.enable=7:b compand.bit=8:1 compand.enable=9:b cProc.bit=10:1 cProc.enable=11:b deMosaic.bit=12:1 "
     "deMosaic.enable=13:b dpcc.bit=14:1 dpcc.enable=15:b dpf.bit=16:1 dpf.enable=17:b drc.bit=18:1 "
     "drc.enable=19:b ee.bit=20:1 ee.enable=21:b gtm.bit=22:1 gtm.enable=23:b hdr.bit=24:1 hdr.enable=25:b "
     "lsc.bit=26:1 lsc.enable=27:b scale.bit=28:1 scale.enable=29:b"},
    {"DVC", 1, 0, 0, "operation=0:2 portId=2:2 workMode=4:2"},
    {"IPT", 1, 0, 0, "framerate=0:f isInjectLive=4:b"},
    {"IPT", 3, 8, 40,
     "paths[#].bayerPattern=0:2 paths[#].enable=16:b paths[#].format=18:2 paths[#].formatExt=20:2 "
     "paths[#].rectangle.height=22:2 paths[#].rectangle.offset.x=24:2 paths[#].rectangle.offset.y=26:2 "
     "paths[#].rectangle.width=28:2 paths[#].stitchingMode=30:2"},
    {"OPT", 6, 0, 48,
     "paths[#].bayerPattern=0:2 paths[#].bitsIndex=2:2 paths[#].isCrop=16:b paths[#].cropRectangle.height=18:2 "
     "paths[#].cropRectangle.offset.x=20:2 paths[#].cropRectangle.offset.y=22:2 "
     "paths[#].cropRectangle.width=24:2 paths[#].enable=26:b paths[#].format=28:2 "
     "paths[#].rectangle.height=30:2 paths[#].rectangle.offset.x=32:2 paths[#].rectangle.offset.y=34:2 "
     "paths[#].rectangle.width=36:2"},
    {"SS", 1, 0, 0, "driverName=816:s modeIdx=0:2 testPattern.enable=836:b testPattern.type=838:2"},
    {"TM", 1, 0, 0,
     "fs.isBmp=0:b fs.frameCount=8:8 fs.isInputBlock=16:b fs.inputFolder=17:s fs.inputFrameBegin=280:8 "
     "fs.inputFrameEnd=288:8 fs.inputStream=296:s fs.jobsCount=552:8 fs.metaFolder=560:s fs.outputFolder=816:s "
     "fs.outputFilePrefix=1072:s fs.outputStream=1328:s http.portControl=1584:2 rtmp.nginxIp=1586:s "
     "rtmp.portStream=1602:2 isStreamable=1604:b tcp.portControl=1608:2 tcp.portInject=1610:2 "
     "tcp.portMeta=1612:2 tcp.portRaw=1614:2 tcp.portStatistics=1616:2 tcp.portStream=1618:2 "
     "uart.portControl=1620:s"},
};

std::string image(const Database& database, const std::string& category)
{
    std::size_t i = 0;
    while (QvDatabase_category(i)->pKey != category) {
        ++i;
    }
    return {&database.record<char>(category.c_str()), QvDatabase_category(i)->size};
}

/// A section of one key, or none.
std::string document(const std::string& section, const std::string& key, const std::string& value)
{
    return "[" + section + "]\n" + key + (key.empty() ? "" : " = ") + value;
}

TEST(InitializationDocument, AKeyReachesItsFieldAndNothingElse)
{
    int number = 0;
    for (const FieldList& list : kFields) {
        for (int path = 0; path < list.number; ++path) {
            std::istringstream fields(numbered(list.pFields, path));
            for (std::string field; fields >> field; ++number) {
                const std::string key = field.substr(0, field.find('='));
                const Database database;
                std::string expected = image(database, list.pSection);
                char* pField = &expected[std::stoul(field.substr(key.size() + 1))] + list.begin + path * list.stride;
                std::string value;
                const char kind = field.back();
                if (kind == 'b') {
                    value = *pField == 0 ? "true" : "false";
                    *pField = *pField == 0;
                } else if (kind == 'f') {
                    value = "7.75";
                    std::memcpy(pField, "\0\0\xF8\x40", 4);
                } else if (kind == 's') {
                    value = "changed";
                    std::memcpy(pField, "changed", 8);
                } else {
                    const std::int64_t integer = kind == '8' ? 1LL << 33 : (kind == '2' ? 4321 : 77);
                    value = std::to_string(integer);
                    std::memcpy(pField, &integer, static_cast<std::size_t>(kind - '0'));
                }
                EXPECT_EQ(database.loadText(document(list.pSection, key, value), "x.ini"), 0);
                EXPECT_EQ(image(database, list.pSection), expected) << key;
                EXPECT_EQ(document(list.pSection, "", "") + changedLines(database),
                          document(list.pSection, key, kind == 'f' ? "7" : value) + "|");
            }
        }
    }
    EXPECT_EQ(number, 30 + 3 + 29 + 78 + 4 + 23);
}

TEST(InitializationDocument, FilesByHandAreReadLeniently)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"", ""},
        {"\xEF\xBB\xBF; by hand\r\n[DVC]\r\n# port\r\n portId\t=5\r\n\r\nworkMode=2", "portId = 5|workMode = 2|"},
        {"portId = 5\n[DVCE]\nportId = 6\n[dvc]\nportId = 7\n[DVC]\nPORTID = 8\nportId2 = 9\nport = 9\n", ""},
        {"[DVC]\noperation = 0x10\nportId = 12abc\nworkMode = fast", "operation = 0|portId = 12|workMode = 0|"},
        {"[DVC]\noperation = 65538\nportId = -1\nworkMode =", "operation = 2|portId = 65535|workMode = 0|"},
        {"[DVC]\nportId = 4\nportId = 5\n[SS]\nmodeIdx = 1\ndriverName =\n[DVC]\nportId = 6\noperation = 3",
         "operation = 3|portId = 6|driverName = |modeIdx = 1|"},
        {"[C_MODEL]\nawb.bit = 300\nawb.enable = True\nccm.enable = true", "awb.bit = 44|ccm.enable = true|"},
        {"[IPT]\nisInjectLive\nframerate\npaths[0].enable = 1\npaths[1].enable =\npaths[3].enable = false",
         "paths[0].enable = false|paths[1].enable = false|"},
        {"[IPT]\nisInjectLive = TRUE\npaths[0].formatExt = 65534\npaths[1].formatExt = 32768",
         "isInjectLive = false|paths[0].formatExt = -2|paths[1].formatExt = -32768|"},
        {"[OPT]\npaths[2].format = 4\npaths[6].format = 9\nsnapshotNumber = 5\n", "paths[2].format = 4|"},
        {"[IPT]\nframerate = 29.97", "framerate = 29|"},
        {"[IPT]\nframerate = -1.9", "framerate = -1|"},
        {"[IPT]\nframerate = 0.5", "framerate = 0|"},
        {"[IPT]\nframerate = inf", "framerate = 9223372036854775807|"},
        {"[IPT]\nframerate = -inf", "framerate = -9223372036854775808|"},
        {"[IPT]\nframerate = nan", "framerate = 0|"},
        {"[TM]\nfs.frameCount = -1\nfs.jobsCount = -9223372036854775808",
         "fs.frameCount = -1|fs.jobsCount = -9223372036854775808|"},
    };
    for (const auto& [pText, pChanged] : kCases) {
        EXPECT_EQ(changesOf(pText), pChanged) << pText;
    }
    const Database database;
    database.record<QvDatabaseTransmit_t>("TM").fs.frameCount = std::size_t{1} << 63;
    database.record<QvDatabaseInput_t>("IPT").paths[2].formatExt = -7;
    EXPECT_EQ(changedLines(database), "paths[2].formatExt = -7|fs.frameCount = -9223372036854775808|");
    EXPECT_EQ(database.loadText("[IPT]\npaths[2].formatExt = 65535\nframerate = 29.97", "x.ini"), 0);
    EXPECT_EQ(changedLines(database), "framerate = 29|fs.frameCount = -9223372036854775808|");
    EXPECT_EQ(database.record<QvDatabaseInput_t>("IPT").framerate, 29.97F);
}

TEST(InitializationDocument, LongTextsRunOnButNotPastTheRecord)
{
    const std::string address = "rtmp.nginxIp = aaaaaaaaaaaaaaaa";
    const std::string port = "rtmp.portStream = 25443"; // "cc"
    EXPECT_EQ(changesOf("[TM]\n" + address), address + "|rtmp.portStream = 1792|");
    EXPECT_EQ(changesOf("[TM]\n" + port + "\n" + address + "bb"),
              address + "bb|rtmp.portStream = 25186|isStreamable = false|");
    EXPECT_EQ(changesOf("[TM]\n" + address + "bb\n" + port), address + "cc|" + port + "|isStreamable = false|");

    const std::string thirty(30, 'd');
    EXPECT_EQ(changesOf("[SS]\ndriverName = " + thirty),
              "driverName = " + thirty + "|testPattern.enable = true|testPattern.type = 25700|");
    EXPECT_EQ(changesOf("[TM]\nuart.portControl = " + std::string(300, 'x')),
              "uart.portControl = " + std::string(1664 - 1620, 'x') + "|");
    EXPECT_EQ(changesOf("[SS]\ndriverName = " + std::string(200000, 'd')),
              "driverName = " + std::string(116864 - 816, 'd') +
                  "|testPattern.enable = true|testPattern.type = 25700|");
}

TEST(InitializationDocument, AwkwardTextsSurvive)
{
    for (const char* pText : {"",
                              " ",
                              " both ends\t",
                              "\"",
                              "\"quoted\"",
                              "a \"b\" c",
                              ";",
                              "a ; b",
                              "# c",
                              "a#b",
                              "=",
                              "a = b",
                              "[DVC]",
                              "]",
                              "\\",
                              "\\n",
                              "two\nlines\r\n",
                              "\x01\x7F",
                              "M\xC3\xBCller",
                              "\xFF",
                              "true",
                              "%s%n"}) {
        const Database first;
        const Database second;
        std::strcpy(first.record<QvDatabaseTransmit_t>("TM").fs.inputFolder, pText);
        EXPECT_EQ(second.loadText(first.savedText("x.ini"), "x.ini"), 0) << pText;
        EXPECT_STREQ(second.record<QvDatabaseTransmit_t>("TM").fs.inputFolder, pText);
        EXPECT_EQ(image(second, "TM"), image(first, "TM")) << pText;
    }
}

TEST(InitializationDocument, TheSampleGoesFromOneFormToTheOtherAndBack)
{
    const Database json;
    ASSERT_EQ(json.load(sample("imx477.json")), 0);
    const std::string text = json.savedText("x.ini");
    EXPECT_EQ(text, readFile(sample("imx477.ini")));
    const Database ini;
    const Database back;
    ASSERT_EQ(ini.load(sample("imx477.ini")), 0);
    ASSERT_EQ(back.loadText(ini.savedText()), 0);
    EXPECT_EQ(back.savedText("x.ini"), text);
    for (const char* pKey : {"C_MODEL", "DVC", "IPT", "TM"}) {
        EXPECT_EQ(image(back, pKey), image(json, pKey)) << pKey;
    }
}

} // namespace
