// Text documents of all three kinds: whatever one holds, its load gives a known status, every form of the records that it
// left can be written and loaded, and from then on stays as it is.

#include "support.h"

using namespace qv::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(pData), size);
    if (text.starts_with('<')) {
        text[0] = '{'; // no document at all, and the library loses a reader for each
    }
    Store& store = Store::instance();
    store.restore();
    const int status = store.parse(Form::Tuning, text);
    require(status == 0 || status == 6 || status == 7, "a load gives a known status", text);

    // To write and read everything takes a hundred times as long as to read a short text.
    const std::size_t choice = numberOf(text);
    if (status == 7 || choice % 8 != 0) {
        return 0;
    }
    const auto form = static_cast<Form>(choice / 8 % kForms);
    const std::string raw = store.serialize(form);
    store.restore();
    const int again = store.parse(form, raw);
    require(again == 0 || (again == 6 && status == 6), "what was written can be loaded", raw);

    store.settle();
    const std::string settled = store.serialize(form);
    store.restore();
    require(store.parse(form, settled) == 0, "what is sound can be loaded", settled);
    requireSame(store.serialize(form), settled, "what was loaded is written as it was");
    return 0;
}
