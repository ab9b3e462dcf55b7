// Binary images: records with any bytes in them. An input tells what to change in records that are in their places, since
// to load an image for each run would take longer than to look at what comes of it. Nothing outside a record is touched
// and nothing within it by writing, all of it can be written, and what is sound comes back from each form.

#include <cstring>

#include <qv_database_c/protocol_calibration.h>

#include "database_binary.h"
#include "support.h"

using namespace qv::fuzz;
using qv::database::Category;
using qv::database::Codec;

namespace {

/// Takes an input apart; zero where it ends.
class Input {
public:
    explicit Input(std::string_view bytes) : bytes_(bytes) {}
    bool isAtEnd() const { return bytes_.empty(); }
    std::size_t number(std::size_t width)
    {
        std::size_t value = 0;
        const std::string_view taken = text(width);
        std::memcpy(&value, taken.data(), taken.size());
        return value;
    }
    std::string_view text(std::size_t length)
    {
        const std::string_view taken = bytes_.substr(0, length);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

private:
    std::string_view bytes_;
};

/// Changes one place of a record: some bytes anywhere, all bytes of a field, or a count.
void change(const Category& category, Input& input)
{
    Store& store = Store::instance();
    char* pRecord = store.record(category.key);
    const std::size_t kind = input.number(1);
    if (kind % 4 == 0) {
        const std::size_t place = input.number(4) % category.size;
        const std::string_view bytes = input.text(1 + kind / 4);
        std::memcpy(pRecord + place, bytes.data(), std::min(bytes.size(), category.size - place));
    } else if (kind % 4 == 1) {
        store.setCount(category.key, input.number(2), input.number(8));
    } else {
        store.fillField(category.key, input.number(2), static_cast<char>(input.number(1)));
    }
}

Codec calibrationCodec()
{
    return qv::database::makeCodec<&QvDatabaseProtocolCalibrationJson_parse,
                                   &QvDatabaseProtocolCalibrationJson_serialize>();
}

/// What a codec writes of a record, which stays as it is.
std::string write(const Codec& codec, const Category& category)
{
    char* pRecord = Store::instance().record(category.key);
    const std::string before(pRecord, category.size);
    const Tree tree = parseJson("{}");
    require(codec.serialize(pRecord, tree.get()) == 0, "any record can be written", category.key);
    require(std::memcmp(before.data(), pRecord, category.size) == 0, "writing leaves a record alone", category.key);
    return writeJson(tree.get());
}

/// Reads a text into a record at its defaults.
int read(const Codec& codec, const Category& category, const std::string& text)
{
    Store::instance().restore();
    const Tree tree = parseJson(text);
    require(tree != nullptr, "what is written can be read", text);
    return codec.parse(tree.get(), Store::instance().record(category.key));
}

/// Large records take a hundredth of a second to come back, so most runs only write them.
void judge(const Codec& codec, const Category& category, bool isRead)
{
    const std::string written = write(codec, category);
    if (!isRead) {
        return;
    }
    const int status = read(codec, category, written);
    require(status == 0 || status == 6, "a record is read or its list is too long", category.key);
    Store::instance().settle();
    const std::string settled = write(codec, category);
    require(read(codec, category, settled) == 0, "what is sound can be read", settled);
    requireSame(write(codec, category), settled, "what was read is written as it was");
}

/// The whole image comes back byte for byte.
void judgeImage()
{
    Store& store = Store::instance();
    const std::string image = store.serialize(Form::Image);
    store.restore();
    require(store.parse(Form::Image, image) == 0, "an image can be loaded");
    require(store.serialize(Form::Image) == image, "an image comes back");
    require(store.parse(Form::Image, std::string_view(image).substr(1)) == 6, "an image that is too short is refused");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(pData), size);
    Store::instance().restore();
    Input input(text);
    const std::size_t choice = input.number(1);
    const auto categories = qv::database::imageCategories();
    const Category& category = *categories[input.number(1) % categories.size()];
    while (!input.isAtEnd()) {
        change(category, input);
    }
    const bool isRead = choice / 16 % 4 == 0;
    const Codec calibration = std::strcmp(category.key, "CLB") == 0 ? calibrationCodec() : Codec{};
    if (choice % 16 == 0) {
        judgeImage();
    } else if (choice % 16 == 1 && category.initialization.parse != nullptr) {
        Store::instance().serialize(Form::Initialization);
    } else if (choice % 2 == 0 && category.simulator.parse != nullptr) {
        judge(category.simulator, category, isRead);
    } else {
        judge(calibration.parse != nullptr ? calibration : category.tuning, category, isRead);
    }
    return 0;
}
