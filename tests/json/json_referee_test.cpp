// Another parser as referee: on mutated documents both accept or both refuse, and what both accept has equal values.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

#include "../fuzz/json_referee.h"
#include "json_document.h"

using namespace qv::test;

namespace {

constexpr std::string_view kDocument = R"({ "version": {"text": "\u00e4\n\"\\\/ \ud834\udd1e ä€𝄞", "": ""},
  /* note */ "numbers": [0, -0, 1, -12, 123456789, 9223372036854775807, 18446744073709551615, -9223372036854775809,
    0.5, -0.426700, 1.25e2, 1E-7, 3.14159265358979323846, 123456789.123456789, 4.9e-324, 1e300], // tail
  "lists": [[], [[1, 2], [3.5, 4]], [{"a": true, "b": [false]}, {"a": null}]], "version": {"a": 1, "b": {}}
})";

} // namespace

TEST(JsonReferee, MutatedDocumentsAreJudgedAlike)
{
    Traces traces;
    std::mt19937 random(477);
    const Reader reader;
    int accepted = 0;
    int refused = 0;
    for (int index = 0; index < 20000; ++index) {
        const std::string text = index == 0 ? std::string(kDocument) : mutate(kDocument, random);
        Tree ours;
        const int status = reader.parse(Exact(text), &ours);
        ASSERT_EQ(status, ours == nullptr ? 7 : 0);
        const Opinion opinion = opinionOf(text, ours.get());
        const bool isHalf = traces.take().find("high half of a surrogate pair") != std::string::npos;
        ASSERT_TRUE(opinion == Opinion::Same || opinion == Opinion::None || (opinion == Opinion::Accepts && isHalf))
            << text << "\n"
            << (ours == nullptr ? "is refused" : write(ours.get()));
        (status == 0 ? accepted : refused) += 1;
    }
    EXPECT_GT(accepted, 2000);
    EXPECT_GT(refused, 2000);
}
