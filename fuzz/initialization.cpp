// `.ini` texts: what was read and written is read again as the same sections, and written again as the same text; the
// records that a load left come back from their own file.

#include <qv_common_c/common_buffer.h>
#include <qv_initialization/qv_initialization.h>

#include "database_initialization.h"
#include "support.h"

using namespace qv::fuzz;

namespace {

/// The sections of a text; 0 for one that is none.
QvCommonDQueueHandle_t readSections(std::string_view text)
{
    static QvInitializationReaderHandle_t hReader = 0;
    if (hReader == 0) {
        require(QvInitializationReader_open(&hReader) == 0, "the reader opens");
    }
    QvCommonDQueueHandle_t hSections = 0;
    require(qv::database::openSections(&hSections) == 0, "a queue opens");
    const Exact exact(text);
    QvCommonBuffer_t buffer{};
    buffer.pBegin = exact.begin();
    buffer.size = text.size();
    const int status = QvInitializationReader_parse(hReader, &buffer, hSections);
    require(status == 0 || status == 7, "a text has sections or is none", text);
    if (status != 0) {
        require(QvCommonDQueue_length(hSections) == 0, "a broken text gives no section", text);
        QvCommonDQueue_close(&hSections);
    }
    return hSections;
}

std::string writeSections(QvCommonDQueueHandle_t hSections)
{
    static QvInitializationWriterHandle_t hWriter = 0;
    if (hWriter == 0) {
        require(QvInitializationWriter_open(&hWriter) == 0, "the writer opens");
    }
    QvCommonBuffer_t buffer{};
    require(QvInitializationWriter_serialize(hWriter, hSections, &buffer) == 0, "what was read can be written");
    std::string text(buffer.pBegin, buffer.size);
    QvCommonBuffer_clear(&buffer);
    return text;
}

/// A text or none, so that both can be told apart.
std::string quoted(const char* pText)
{
    return pText == nullptr ? "none|" : "'" + std::string(pText) + "'|";
}

/// Calls show(element) for all elements of a queue, which stays as it is.
template <class T, class Show>
std::string list(QvCommonDQueueHandle_t hQueue, const Show& show)
{
    std::string all;
    for (std::size_t i = QvCommonDQueue_length(hQueue); i != 0; --i) {
        void* pElement = nullptr;
        require(QvCommonDQueue_popFront(hQueue, &pElement) == 0, "a queue has as many as it says");
        all += show(*static_cast<T*>(pElement));
        require(QvCommonDQueue_pushBack(hQueue, &pElement) == 0, "a queue takes back what it gave");
    }
    return all;
}

/// All that the sections hold, in another form than the writer's.
std::string contentOf(QvCommonDQueueHandle_t hSections)
{
    return list<QvInitializationSection_t>(hSections, [](const QvInitializationSection_t& section) {
        return "section " + quoted(section.pHeader) +
               list<char>(section.hComment, [](const char& comment) { return quoted(&comment); }) + "\n" +
               list<QvInitializationMember_t>(section.hMember, [](const QvInitializationMember_t& member) {
                   return quoted(member.pKey) + quoted(member.pValue) + quoted(member.pComment) + "\n";
               });
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(pData), size);
    Store& store = Store::instance();
    QvCommonDQueueHandle_t hSections = readSections(text);
    store.restore();
    require(store.parse(Form::Initialization, text) == (hSections == 0 ? 7 : 0), "a load says what the reader says");
    if (hSections == 0) {
        return 0;
    }
    const std::string written = writeSections(hSections);
    QvCommonDQueueHandle_t hAgain = readSections(written);
    require(hAgain != 0, "what is written can be read", written);
    requireSame(contentOf(hAgain), contentOf(hSections), "what is written has the same sections");
    requireSame(writeSections(hAgain), written, "what is read and written again is the same");
    QvCommonDQueue_close(&hAgain);
    QvCommonDQueue_close(&hSections);

    if (numberOf(text) % 8 != 0) {
        return 0; // to write and read all six sections takes far longer than to read a short text
    }
    store.settle();
    const std::string saved = store.serialize(Form::Initialization);
    store.restore();
    require(store.parse(Form::Initialization, saved) == 0, "what was saved can be loaded", saved);
    requireSame(store.serialize(Form::Initialization), saved, "what was loaded is saved as it was");
    return 0;
}
