#include "calibration_text.h"

#include <charconv>

#include <qv_common_c/common_dqueue.h>
#include <qv_common_c/common_error.h>
#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/protocol_calibration.h>

#include "output.h"
#include "path_tree.h"

namespace qv::tools {
namespace {

constexpr const char* kColor = "CCM_1_1";
constexpr const char* kShading = "LSC_4";

/// The items behind a key, which end at white space, a bracket or the text's end. False where there is no such list.
bool readList(Input& input, const std::string& key, std::vector<std::string>& items)
{
    QvCommonDQueueHandle_t hQueue = 0;
    if (QvCommonDQueue_open(nullptr, &hQueue) != 0) {
        return false;
    }
    const bool isThere = QvDatabaseCalibrationTxt_extractArray(input.bytes.get(), key.c_str(), hQueue) == 0;
    void* pItem = nullptr;
    while (isThere && QvCommonDQueue_popFront(hQueue, &pItem) == 0) {
        std::string_view text = static_cast<const char*>(pItem);
        items.emplace_back(text.substr(0, text.find_first_of(" \t\r\n\v\f]")));
        pItem = nullptr;
    }
    QvCommonDQueue_close(&hQueue);
    return isThere;
}

bool readNumber(std::string_view text, double& number)
{
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && result.ptr == text.data() + text.size() && !text.empty();
}

/// The elements of a list, item by item in all of its dimensions.
void addElements(const Target& target, std::vector<Target>& elements)
{
    if (target.rank == 0) {
        elements.push_back(target);
        return;
    }
    for (std::size_t i = 0; i < target.extents[0]; ++i) {
        addElements(PathTree::item(target, i), elements);
    }
}

int setNumber(const Session& session, const Target& element, double number)
{
    QvDatabaseCatalogPlace_t place{};
    place.size = sizeof place;
    if (QvDatabaseCatalog_find(element.pCategory->document, element.path.c_str(), &place) != 0) {
        return QvCommonError_BadArgument;
    }
    return QvDatabaseCatalog_setNumber(&place, session.record(element.pCategory->category.pKey), number);
}

/// One setting PATH=KEY.
bool loadList(Session& session, Input& input, const PathTree& tree, const std::string& setting,
              std::vector<std::string>& paths)
{
    const std::size_t equals = setting.rfind('=');
    const std::string key = setting.substr(equals + 1);
    std::vector<Target> targets;
    std::string error;
    if (!tree.find(setting.substr(0, equals), &session, targets, error)) {
        complain("--key " + error);
        return false;
    }
    std::vector<Target> elements;
    for (const Target& target : targets) {
        addElements(target, elements);
    }
    std::vector<std::string> items;
    if (!readList(input, key, items)) {
        complain(input.shown() + ": there is no list " + key + " (" + std::to_string(QvCommonError_NoKey) + ')');
        return false;
    }
    if (items.size() > elements.size()) {
        complain(input.shown() + ": " + key + " has " + std::to_string(items.size()) + " items, and " +
                 setting.substr(0, equals) + " holds " + std::to_string(elements.size()));
        return false;
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
        double number = 0;
        const bool isNumber = readNumber(items[i], number);
        if (!isNumber || !elements[i].isElement() || setNumber(session, elements[i], number) != 0) {
            complain(input.shown() + ": " + key + ": " + items[i] +
                     (isNumber ? " does not fit " + elements[i].path : " is no number"));
            return false;
        }
    }
    if (items.size() < elements.size()) {
        warn(input.shown() + ": " + key + " has " + std::to_string(items.size()) + " items; the others of the " +
             std::to_string(elements.size()) + " of " + setting.substr(0, equals) + " keep their values");
    }
    paths.push_back(setting.substr(0, equals));
    return true;
}

} // namespace

bool loadCalibrationText(Session& session, Input& input, std::vector<std::string>& keys)
{
    auto* pColor = static_cast<QvDatabaseColorCorrectionMatrix_1_1_t*>(session.record(kColor));
    auto* pShading = static_cast<QvDatabaseLensShadingCorrection_4_t*>(session.record(kShading));
    const int color = QvDatabaseColorCorrectionMatrix_1_1_parse2(input.bytes.get(), pColor);
    const int shading = QvDatabaseLensShadingCorrection_4_parse2(input.bytes.get(), pShading);
    session.forgetTraces(); // what they tell is told here
    if (color != 0 && shading != 0) {
        return session.check(input.shown(), color, "neither colour nor shading in it; --key names other lists");
    }
    if (color == 0) {
        keys.emplace_back(kColor);
    }
    if (shading == 0) {
        keys.emplace_back(kShading);
    }
    if (color != 0 || shading != 0) {
        warn(input.shown() + ": not all lists of " + (color != 0 ? kColor : kShading) + " are in it");
    }
    return true;
}

bool loadCalibrationLists(Session& session, Input& input, const std::vector<std::string>& settings,
                          std::vector<std::string>& paths)
{
    const PathTree tree;
    for (const std::string& setting : settings) {
        if (!loadList(session, input, tree, setting, paths)) {
            return false;
        }
    }
    return true;
}

} // namespace qv::tools
