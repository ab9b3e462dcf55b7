#include <cstring>
#include <sstream>
#include <utility>

#include <qv_database_c/database_input.h>
#include <qv_database_c/database_transmit.h>

#include "test_support.h"

using namespace qv::test;

namespace {

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
    // What each character comes to in a file is held by the tests of the initialization library.
    constexpr const char* kTexts[] = {"",     " \tboth ends ", "\"a\" = b ; c", "two\nlines\r\n", "M\xC3\xBCller",
                                      "\xFF", "%s%n"};
    for (const char* pText : kTexts) {
        const Database first;
        const Database second;
        std::strcpy(first.record<QvDatabaseTransmit_t>("TM").fs.inputFolder, pText);
        EXPECT_EQ(second.loadText(first.savedText("x.ini"), "x.ini"), 0) << pText;
        EXPECT_STREQ(second.record<QvDatabaseTransmit_t>("TM").fs.inputFolder, pText);
        EXPECT_EQ(recordOf(second.handle(), "TM"), recordOf(first.handle(), "TM")) << pText;
    }
}

TEST(InitializationDocument, TheSampleGoesFromOneFormToTheOtherAndBack)
{
    const Database json;
    ASSERT_EQ(json.load(sample("imx477.json")), 0);
    const std::string text = json.savedText("x.ini");
    EXPECT_EQ(text, readFile(sample("imx477.ini")));
    const Database back;
    const Traces traces(QvCommonTracerLevel_Warning);
    ASSERT_EQ(back.loadText(text, "x.ini"), 0);
    EXPECT_TRUE(traces.lines().empty());
    for (const char* pKey : {"C_MODEL", "DVC", "IPT", "TM"}) {
        EXPECT_EQ(recordOf(back.handle(), pKey), recordOf(json.handle(), pKey)) << pKey;
    }
}

} // namespace
