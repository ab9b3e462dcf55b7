// The page of all fields, held against the catalog: every member has its row, every key of every document stands in the
// row of the member that it carries, and nothing else does.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "catalog_tree.h"

namespace {

using qv::tools::categoriesOf;
using qv::tools::FieldNode;
using qv::tools::fieldsOf;

const std::string& page()
{
    static const std::string text = [] {
        std::ifstream file(QV_FIELDS_PAGE);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }();
    return text;
}

/// The text of each row by its id, in the page's order.
std::vector<std::pair<std::string, std::string>> rowsOfPage()
{
    std::vector<std::pair<std::string, std::string>> rows;
    const std::string begin = "<tr class=\"member";
    for (std::size_t at = page().find(begin); at != std::string::npos; at = page().find(begin, at + 1)) {
        const std::size_t id = page().find("id=\"", at) + 4;
        const std::size_t idEnd = page().find('"', id);
        rows.emplace_back(page().substr(id, idEnd - id), page().substr(at, page().find("</tr>", at) - at));
    }
    return rows;
}

/// Document, category, key and C member of each place where a document holds one.
using Stands = std::multiset<std::string>;

std::string stand(const std::string& document, const std::string& category, const std::string& key,
                  const std::string& member)
{
    return document + " " + category + ": " + key + " is " + member;
}

/// The ids of the members of a record, in the order of C.
void addMembers(std::vector<std::string>& ids, const std::string& record, const std::vector<FieldNode>& fields)
{
    for (const FieldNode& node : fields) {
        const std::string id = record + "." + node.field.pName;
        ids.push_back(id);
        addMembers(ids, id, node.fields);
    }
}

/// What stands where, of a record and those in it. Members of one that stands as a list have no keys, they are its items.
void addStands(Stands& stands, const std::string& document, const std::string& category,
               const std::vector<FieldNode>& fields, const std::string& list = "")
{
    for (std::size_t item = 0; item < fields.size(); ++item) {
        const auto& [field, inner] = fields[item];
        if (field.pName != nullptr) {
            const std::string key = list.empty() ? field.pKey : list + "[" + std::to_string(item) + "]";
            stands.insert(stand(document, category, key, field.pName));
        }
        addStands(stands, document, category, inner, field.count == QvDatabaseCatalogCount_Members ? field.pKey : "");
    }
}

TEST(FieldsPage, HasARowForEachMemberInTheOrderOfC)
{
    std::vector<std::string> members;
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Memory)) {
        EXPECT_NE(page().find(std::string("<section id=\"") + category.pKey + "\">"), std::string::npos);
        addMembers(members, category.pKey, fieldsOf(QvDatabaseCatalogDocument_Memory, category));
    }
    std::vector<std::string> found;
    for (const auto& [id, row] : rowsOfPage()) {
        if (!row.starts_with("<tr class=\"member heap\"")) { // behind a pointer
            found.push_back(id);
        }
    }
    EXPECT_GT(members.size(), 1000U);
    EXPECT_EQ(found, members);
}

TEST(FieldsPage, HoldsEachKeyOfEachDocumentAtItsMember)
{
    Stands expected;
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
            addStands(expected, QvDatabaseCatalog_document(document), category.pKey, fieldsOf(document, category));
        }
    }
    Stands found;
    const std::regex place("<span class=\"doc (\\w+)\">[^<]*</span> <code class=\"key\" data-keys=\"([^\"]*)\"");
    for (const auto& [id, row] : rowsOfPage()) {
        const std::string category = id.substr(0, id.find('.'));
        const std::string member = id.substr(id.rfind('.') + 1);
        for (std::sregex_iterator at(row.begin(), row.end(), place); at != std::sregex_iterator(); ++at) {
            std::istringstream keys((*at)[2]);
            for (std::string key; keys >> key;) {
                found.insert(stand((*at)[1], category, key.substr(key.rfind('/') + 1), member));
            }
        }
    }
    for (const auto& [pWhat, left, right] :
         {std::tuple("lacks", &expected, &found), {"has too much", &found, &expected}}) {
        Stands difference;
        std::ranges::set_difference(*left, *right, std::inserter(difference, difference.end()));
        EXPECT_EQ(difference, Stands()) << "the page " << pWhat << " these";
    }
    EXPECT_GT(expected.size(), 1000U);
}

TEST(FieldsPage, TellsWhatIsKnownOfAMember)
{
    std::map<std::string, std::string> rows;
    for (const auto& [id, row] : rowsOfPage()) {
        rows[id] = row;
    }
    const auto expect = [&rows](const std::string& id, const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            EXPECT_NE(rows[id].find(text), std::string::npos) << id << " lacks " << text;
        }
    };
    expect("AE_3.roiNum", {">0..25<", "length of <code>roiWindow<", "uint8_t", ">roiNumber<"});
    expect("AES_2.rectangle.offset.x", {">px<", "saved signed", ">300726<"});
    expect("AEE_2.tables.hdr", {"read, saved as null"});
    expect("AEE_2.tables.caEnable", {"bool[20]", "number for bool"});
    expect("SS.modes.type", {"<b>1</b>", ">StitchingHdr<", "stitching HDR"});
    expect("SS.driverName", {">name<", "only read", "char[20]"});
    expect("SS.testPattern", {"older key"});
    expect("MT.bitWidth", {"only written", "measured"});
    expect("CLB.sensor.cc.ccMatrix", {"in rows [3][3]", "matrix 3×3"});
    expect("CLB.system.afpsDefault", {">AFPS/aFpsDefault<"});
    expect("IPT.paths.enable", {"paths[0…2].enable"});
    expect("DUMP.pRegisters", {"Register*", "any length, into registerNumber"});
    expect("DUMP.pRegisters.address", {"char[10]", ">address<"});
}

TEST(FieldsPage, NeedsNothingElse)
{
    EXPECT_EQ(page().find("://"), std::string::npos);
    EXPECT_EQ(page().find("src="), std::string::npos);
    EXPECT_EQ(page().find("@import"), std::string::npos);
    std::set<std::string> ids;
    const std::regex anchor("(id|href)=\"(#?)([^\"]+)\"");
    std::set<std::string> targets;
    for (std::sregex_iterator at(page().begin(), page().end(), anchor); at != std::sregex_iterator(); ++at) {
        if ((*at)[1] == "id") {
            EXPECT_TRUE(ids.insert((*at)[3]).second) << "twice: " << (*at)[3];
        } else {
            EXPECT_EQ((*at)[2], "#");
            targets.insert((*at)[3]);
        }
    }
    EXPECT_TRUE(std::includes(ids.begin(), ids.end(), targets.begin(), targets.end()));
}

} // namespace
