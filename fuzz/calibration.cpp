// The scanners of plain calibration text, held against another one that is as short as their rules, and raw images of the
// calibration record, which come back byte for byte and can be told of and written whatever they hold.

#include <cstring>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/protocol_calibration.h>

#include "support.h"

using namespace qv::fuzz;

namespace {

constexpr const char* kMatrixKeys[] = {"ctm", "successional_color_offset"};
constexpr const char* kShadingKeys[] = {"LSC_SECT_SIZE_X",
                                        "LSC_SECT_SIZE_Y",
                                        "LSC_SAMPLES_red",
                                        "LSC_SAMPLES_greenAtRedLine",
                                        "LSC_SAMPLES_greenAtBlueLine",
                                        "LSC_SAMPLES_blue"};

bool isSpace(char c)
{
    return std::strchr(" \t\n\v\f\r", c) != nullptr;
}

/// Places of a list's items, as the header of the scanner tells where they are. False where there is no list.
bool findItems(const std::string& text, const std::string& key, std::vector<std::size_t>& places)
{
    const std::size_t found = text.find(key);
    const std::size_t open = found == std::string::npos ? found : text.find('[', found);
    const std::size_t close = open == std::string::npos ? open : text.find(']', open);
    if (close == std::string::npos) {
        return false;
    }
    for (std::size_t i = open + 1; i < close; ++i) {
        if (!isSpace(text[i]) && (i == open + 1 || isSpace(text[i - 1]))) {
            places.push_back(i);
        }
    }
    return true;
}

/// Both scanners find the same; gives whether there is a list.
bool judgeList(std::string& text, const char* pKey)
{
    QvCommonBuffer_t buffer{};
    buffer.pBegin = text.data();
    QvCommonDQueueHandle_t hItems = 0;
    require(QvCommonDQueue_open(nullptr, &hItems) == 0, "a queue opens");
    const int status = QvDatabaseCalibrationTxt_extractArray(&buffer, pKey, hItems);
    std::vector<std::size_t> places;
    require(status == (findItems(text, pKey, places) ? 0 : 15), "a list is there or not", text);
    require(QvCommonDQueue_length(hItems) == places.size(), "a list has as many items", text);
    for (const std::size_t place : places) {
        void* pItem = nullptr;
        require(QvCommonDQueue_popFront(hItems, &pItem) == 0 && pItem == text.data() + place, "an item is found", text);
    }
    QvCommonDQueue_close(&hItems);
    return status == 0;
}

/// Reads a record, which is done twice with the same result; what fails loses a queue, on purpose, and isn't tried.
template <class Record, std::size_t number>
void judgeRecord(std::string& text, const char* const (&keys)[number], int (*pParse)(QvCommonBuffer_t*, Record*))
{
    bool isWhole = true;
    for (const char* pKey : keys) {
        isWhole = judgeList(text, pKey) && isWhole;
    }
    if (!isWhole) {
        return;
    }
    QvCommonBuffer_t buffer{};
    buffer.pBegin = text.data();
    const auto pOne = std::make_unique<Record>();
    const auto pOther = std::make_unique<Record>();
    require(pParse(&buffer, pOne.get()) == 0 && pParse(&buffer, pOther.get()) == 0, "whole lists are read", text);
    require(std::memcmp(pOne.get(), pOther.get(), sizeof(Record)) == 0, "a list says the same twice", text);
}

/// The input lies over a record at a place that it tells itself.
void judgeImage(std::string_view input)
{
    using Record = QvDatabaseCalibration_t;
    Store& store = Store::instance();
    store.restore();
    std::string image(sizeof(Record), 0);
    std::size_t place = 0;
    input.copy(reinterpret_cast<char*>(&place), 3);
    input.remove_prefix(std::min<std::size_t>(3, input.size()));
    place %= image.size();
    input.copy(image.data() + place, image.size() - place);

    auto* pRecord = reinterpret_cast<Record*>(store.record("CLB"));
    const Exact exact(image);
    QvCommonBuffer_t buffer{};
    buffer.pBegin = exact.begin();
    require(QvDatabaseProtocolCalibrationBinary_parse(&buffer, pRecord) == 0, "an image is read");
    QvCommonBuffer_t copy{};
    require(QvDatabaseProtocolCalibrationBinary_serialize(pRecord, &copy) == 0, "a record is written");
    image[offsetof(Record, isLoaded)] = 1;
    require(std::string_view(copy.pBegin, copy.size) == image, "an image comes back");
    QvCommonBuffer_clear(&copy);
    require(QvDatabase_info(store.handle()) == 0, "any record can be told of");
    const Tree tree = parseJson("{}");
    require(QvDatabaseProtocolCalibration_serialize(pRecord, tree.get()) == 0, "any record can be written");
    require(parseJson(writeJson(tree.get())) != nullptr, "what is written can be read");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(pData), size);
    if (size != 0 && *pData == '!') {
        judgeImage(input.substr(1));
        return 0;
    }
    std::string text(input.substr(0, input.find('\0'))); // the scanners take a text with an end
    judgeRecord(text, kMatrixKeys, &QvDatabaseColorCorrectionMatrix_1_1_parse2);
    judgeRecord(text, kShadingKeys, &QvDatabaseLensShadingCorrection_4_parse2);
    return 0;
}
