// The decimal comma of the process changes nothing in a file. The locale is made by the test, so that it is there on
// every machine.
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string_view>

#include <gtest/gtest.h>
#include <qv_common_c/common_stdlib.h>
#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_setting.h>

#include "database/test_support.h"

using namespace qv::test;

namespace {

/// The locale of the process while it lives.
class DecimalComma {
public:
    DecimalComma()
    {
        const std::string command = "localedef -i de_DE -f UTF-8 '" + (folder_ / "de_DE.UTF-8").string() + "' >&2";
        EXPECT_EQ(std::system(command.c_str()), 0)
            << "localedef can't make a locale: is the package locales installed?";
        setenv("LOCPATH", (folder_ / "").c_str(), 1);
        EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
        std::array<char, 8> text{};
        std::snprintf(text.data(), text.size(), "%.1f", 1.5);
        EXPECT_STREQ(text.data(), "1,5");
    }
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;
    ~DecimalComma()
    {
        std::setlocale(LC_ALL, "C");
        unsetenv("LOCPATH");
    }

private:
    TemporaryFolder folder_;
};

/// What each form holds after the sample was loaded, by name.
std::map<std::string, std::string> savedForms()
{
    std::map<std::string, std::string> forms;
    const Database database;
    EXPECT_EQ(database.load(sample("imx477.json")), 0);
    EXPECT_EQ(database.load(sample("imx477.ini")), 0);
    EXPECT_EQ(database.loadText("[IPT]\nframerate = 29.97\n", "text.ini"), 0);
    forms["file.bin"] = database.savedText("file.bin");
    const TemporaryFolder folder;
    for (const QvDatabaseSettingProtocol_t protocol :
         {QvDatabaseSettingProtocol_Standard, QvDatabaseSettingProtocol_Simulator}) {
        database.record<QvDatabaseSetting_t>("ST").protocol = protocol;
        const std::string name = protocol == QvDatabaseSettingProtocol_Standard ? "tuning" : "simulator";
        forms[name] = undated(database.savedText(name + ".json"));
        EXPECT_EQ(QvDatabase_metaSave(database.handle(), (folder / name).c_str()), 0);
        forms["meta of " + name] = readFile(folder / name);
    }
    forms["file.ini"] = database.savedText("file.ini");
    const Database second;
    EXPECT_EQ(second.loadText(forms["tuning"]), 0);
    forms["image of tuning"] = second.savedText("file.bin");
    return forms;
}

/// A number by way of the catalog's texts.
std::string throughCatalog(const char* pText)
{
    QvDatabaseCatalogPlace_t place{};
    place.size = sizeof place;
    EXPECT_EQ(QvDatabaseCatalog_find(QvDatabaseCatalogDocument_Memory, "GE.threshold", &place), 0);
    const Database database;
    std::array<char, 64> text{};
    EXPECT_EQ(QvDatabaseCatalog_setText(&place, &database.record<char>("GE"), pText), 0) << pText;
    EXPECT_EQ(QvDatabaseCatalog_text(&place, &database.record<char>("GE"), text.data(), text.size(), nullptr), 0);
    return text.data();
}

TEST(Locale, FilesAndTextsAreTheSameWithADecimalComma)
{
    const std::map<std::string, std::string> plain = savedForms();
    EXPECT_NE(plain.at("tuning").find("0.426700"), std::string::npos);
    const DecimalComma comma;
    for (const auto& [name, content] : savedForms()) {
        EXPECT_TRUE(content == plain.at(name)) << name;
    }
    EXPECT_EQ(throughCatalog("2.5"), "2.5");
    EXPECT_EQ(QvCommonStdlib_strtof("29.97,5", nullptr), 29.97F);
    EXPECT_EQ(QvCommonStdlib_strtol("12.000", nullptr, 10), 12);
}

} // namespace
