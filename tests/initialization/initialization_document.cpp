#include "initialization_document.h"

#include <cstring>

#include "common/traces.h"

using namespace qv::test;

namespace {

int deleteSection(void** ppSection)
{
    auto* pSection = static_cast<QvInitializationSection_t*>(*ppSection);
    *ppSection = nullptr;
    return QvInitializationSection_delete(&pSection);
}

QvCommonDQueueHandle_t openSectionQueue()
{
    QvCommonDQueueOpenParam_t param = {deleteSection, false};
    QvCommonDQueueHandle_t hQueue = 0;
    EXPECT_EQ(QvCommonDQueue_open(&param, &hQueue), 0);
    return hQueue;
}

template <typename Element>
std::vector<Element*> elementsOf(QvCommonDQueueHandle_t hQueue)
{
    std::vector<Element*> elements(QvCommonDQueue_length(hQueue));
    for (Element*& pElement : elements) {
        void* pData = nullptr;
        EXPECT_EQ(QvCommonDQueue_popFront(hQueue, &pData), 0);
        EXPECT_EQ(QvCommonDQueue_pushBack(hQueue, &pData), 0);
        pElement = static_cast<Element*>(pData);
    }
    return elements;
}

void push(QvCommonDQueueHandle_t hQueue, void* pElement)
{
    EXPECT_EQ(QvCommonDQueue_pushBack(hQueue, &pElement), 0);
}

std::optional<std::string> textOf(const char* pText)
{
    return pText != nullptr ? std::optional<std::string>(pText) : std::nullopt;
}

char* copyOf(const std::optional<std::string>& text)
{
    return text ? strdup(text->c_str()) : nullptr;
}

} // namespace

const std::vector<std::string> kPieces = {" ", "\t", "\"", "\\", ";",  "#", "=",    "[",
                                          "]", "\n", "\r", "n",  "x4", "é", "\x01", "\xEF\xBB\xBF"};

ReadResult readText(std::string_view text)
{
    ReadResult result;
    const Traces traces;
    std::vector<char> copy(text.begin(), text.end());
    QvCommonBuffer_t buffer = {copy.data(), 0, copy.size(), nullptr, false};
    QvCommonDQueueHandle_t hQueue = openSectionQueue();
    QvInitializationReaderHandle_t hReader = 0;
    EXPECT_EQ(QvInitializationReader_open(&hReader), 0);

    result.status = QvInitializationReader_parse(hReader, &buffer, hQueue);
    for (const auto* pSection : elementsOf<QvInitializationSection_t>(hQueue)) {
        Section section{textOf(pSection->pHeader)};
        for (const char* pComment : elementsOf<char>(pSection->hComment)) {
            section.comments.emplace_back(pComment);
        }
        for (const auto* pMember : elementsOf<QvInitializationMember_t>(pSection->hMember)) {
            section.members.push_back({pMember->pKey, textOf(pMember->pValue), textOf(pMember->pComment)});
        }
        result.sections.push_back(section);
    }

    EXPECT_EQ(QvInitializationReader_close(&hReader), 0);
    EXPECT_EQ(QvCommonDQueue_close(&hQueue), 0);
    for (const TraceLine& line : traces.lines()) {
        EXPECT_EQ(line.level, QvCommonTracerLevel_Error);
        result.traces.push_back(line.text);
    }
    return result;
}

std::string writeText(const std::vector<Section>& sections)
{
    QvCommonDQueueHandle_t hQueue = openSectionQueue();
    for (const Section& section : sections) {
        QvInitializationSection_t* pSection = nullptr;
        EXPECT_EQ(QvInitializationSection_create(&pSection), 0);
        pSection->pHeader = copyOf(section.header);
        for (const std::string& comment : section.comments) {
            push(pSection->hComment, copyOf(comment));
        }
        for (const Member& member : section.members) {
            QvInitializationMember_t* pMember = nullptr;
            EXPECT_EQ(QvInitializationMember_create(&pMember), 0);
            pMember->pKey = copyOf(member.key);
            pMember->pValue = copyOf(member.value);
            pMember->pComment = copyOf(member.comment);
            push(pSection->hMember, pMember);
        }
        push(hQueue, pSection);
    }
    const auto before = elementsOf<QvInitializationSection_t>(hQueue);
    QvInitializationWriterHandle_t hWriter = 0;
    EXPECT_EQ(QvInitializationWriter_open(&hWriter), 0);
    QvCommonBuffer_t* pBuffer = nullptr;
    EXPECT_EQ(QvCommonBuffer_create(&pBuffer), 0);
    // Content of before, which the writer has to release.
    pBuffer->pBegin = strdup("old");
    pBuffer->offset = 2;
    pBuffer->isAllocated = true;

    EXPECT_EQ(QvInitializationWriter_serialize(hWriter, hQueue, pBuffer), 0);
    EXPECT_EQ(elementsOf<QvInitializationSection_t>(hQueue), before);
    EXPECT_TRUE(pBuffer->isAllocated);
    EXPECT_EQ(pBuffer->offset, 0u);
    EXPECT_EQ(pBuffer->pBegin[pBuffer->size], '\0');
    std::string text(pBuffer->pBegin, pBuffer->size);

    EXPECT_EQ(QvCommonBuffer_delete(&pBuffer), 0);
    EXPECT_EQ(QvInitializationWriter_close(&hWriter), 0);
    EXPECT_EQ(QvCommonDQueue_close(&hQueue), 0);
    return text;
}

std::string show(const std::vector<Section>& sections)
{
    std::string text;
    for (const Section& section : sections) {
        text += section.header ? "['" + *section.header + "']" : "[]";
        for (const std::string& comment : section.comments) {
            text += "{" + comment + "}";
        }
        for (const Member& member : section.members) {
            text += " '" + member.key + "'";
            text += member.value ? "='" + *member.value + "'" : "";
            text += member.comment ? "{" + *member.comment + "}" : "";
        }
        text += "\n";
    }
    return text;
}
