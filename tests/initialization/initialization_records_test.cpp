#include <gtest/gtest.h>

#include "initialization_document.h"

extern "C" int initializationFromC(void);

namespace {

TEST(InitializationRecords, AProgramInCKeepsAndFreesItsRecords)
{
    EXPECT_EQ(initializationFromC(), 0) << "is the line of use_initialization.c that failed";
}

template <typename Variable>
void checkVariable(int (*make)(Variable*), int (*drop)(Variable*))
{
    Variable variable{};
    EXPECT_EQ(make(nullptr), 13);
    EXPECT_EQ(drop(nullptr), 13);
    EXPECT_EQ(drop(&variable), 13);
    ASSERT_EQ(make(&variable), 0);
    EXPECT_EQ(make(&variable), 13);
    EXPECT_EQ(drop(&variable), 0);
    EXPECT_EQ(variable, Variable{});
}

TEST(InitializationRecords, BadArgumentsAreRefused)
{
    checkVariable(QvInitializationSection_create, QvInitializationSection_delete);
    checkVariable(QvInitializationMember_create, QvInitializationMember_delete);
    checkVariable(QvInitializationReader_open, QvInitializationReader_close);
    checkVariable(QvInitializationWriter_open, QvInitializationWriter_close);
    checkVariable(QvInitializationText_open, QvInitializationText_close);

    QvInitializationReaderHandle_t hReader = 0;
    QvInitializationWriterHandle_t hWriter = 0;
    QvCommonDQueueHandle_t hQueue = 0;
    ASSERT_EQ(QvInitializationReader_open(&hReader), 0);
    ASSERT_EQ(QvInitializationWriter_open(&hWriter), 0);
    ASSERT_EQ(QvCommonDQueue_open(nullptr, &hQueue), 0);
    QvCommonBuffer_t buffer{};
    EXPECT_EQ(QvInitializationReader_parse(0, &buffer, hQueue), 13);
    EXPECT_EQ(QvInitializationReader_parse(hReader, nullptr, hQueue), 13);
    EXPECT_EQ(QvInitializationReader_parse(hReader, &buffer, 0), 13);
    EXPECT_EQ(QvInitializationReader_parse(hReader, &buffer, hQueue), 0);
    EXPECT_EQ(QvInitializationWriter_serialize(0, hQueue, &buffer), 13);
    EXPECT_EQ(QvInitializationWriter_serialize(hWriter, 0, &buffer), 13);
    EXPECT_EQ(QvInitializationWriter_serialize(hWriter, hQueue, nullptr), 13);
    buffer.size = 1;
    EXPECT_EQ(QvInitializationReader_parse(hReader, &buffer, hQueue), 13);
    EXPECT_EQ(QvInitializationReader_close(&hReader), 0);
    EXPECT_EQ(QvInitializationWriter_close(&hWriter), 0);
    EXPECT_EQ(QvCommonDQueue_close(&hQueue), 0);
}

} // namespace
