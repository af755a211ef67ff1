#include "at/at_cmd_parser.h"
#include "mindroid/exception.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

using namespace test;
using mindroid::Parcel;
using mindroid::sp;
using mindroid::String;

namespace {

const AtCmdParser& parser = AtCmdParser::instance();

/// A parcel as text: true 2 i1 s'abc'.
std::string fieldsOf(Parcel& parcel)
{
    std::string text = parcel.getBoolean() ? "true" : "false";
    if (parcel.atEnd()) {
        return text;
    }
    const int count = parcel.getInt();
    text += " " + std::to_string(count);
    for (int i = 0; i < count; ++i) {
        if (parcel.getByte() == AtCmdParser::kInteger) {
            text += " i" + std::to_string(parcel.getInt());
        } else {
            text += " s'" + std::string(parcel.getString()) + "'";
        }
    }
    EXPECT_TRUE(parcel.atEnd());
    return text;
}

std::string rawOf(Parcel& parcel)
{
    std::string text = parcel.getBoolean() ? "true" : "false";
    if (!parcel.atEnd()) {
        text += " '" + std::string(parcel.getString()) + "'";
    }
    EXPECT_TRUE(parcel.atEnd());
    return text;
}

} // namespace

TEST(AtCmdParser, UnderstandsAnswers)
{
    const struct {
        std::string answer;
        std::string fields;
        std::string raw;
    } cases[] = {
        {"\r\nOK\r\n", "true", "true"},
        {"OK", "true", "true"},
        {"OK\r\n", "true", "true"},
        {"NOT OKAY", "true", "true"}, // contains it
        {"\r\nERROR\r\n", "false", "false"},
        {"\r\n+CME ERROR: 100\r\n", "false", "false"},
        {"", "false", "false"},
        {"\r\n", "false", "false"},
        {"\r\n\r\n\r\n", "false", "false"},
        {"\r\n+EPBSE: 1,2\r\n\r\nOK\r\n", "true 2 i1 i2", "true '1,2'"},
        {"+EPBSE: 1,2\r\n\r\nOK\r\n", "true 2 i1 i2", "true '1,2'"},
        {"\r\n+X: 5\r\nERROR\r\n", "false", "false"},
        {"\r\n123456\r\nOK\r\n", "true 1 i123456", "true '123456'"},
        {"\r\nAT+X?\r\r\n+X: 5\r\nanything\r\n", "true 1 i5", "true '5'"}, // the third line is not looked at
        {"a\r\n+X: 7\r\nERROR", "true 1 i7", "true '7'"},
        {"a\r\nb\r\nc\r\nOK", "false", "false"},
        {"\r\n1\r\n2\r\n3\r\nOK\r\n", "false", "false"},
        {"\r\n+X: 1, 2,abc,-5,+7,,1.5\r\n\r\nOK\r\n", "true 7 i1 s' 2' s'abc' i-5 i7 s'' s'1.5'",
         "true '1, 2,abc,-5,+7,,1.5'"},
        {"\r\n+X: 2147483647,2147483648,-2147483648,-2147483649,0x1F\r\nOK\r\n",
         "true 5 i2147483647 s'2147483648' i-2147483648 s'-2147483649' s'0x1F'",
         "true '2147483647,2147483648,-2147483648,-2147483649,0x1F'"},
        {"\r\n+X: \"a:b\",2:3\r\nOK\r\n", "true 1 s'\"a'", "true '\"a'"}, // nothing after the second colon
        {"\r\n+X:\r\nOK\r\n", "true 1 s''", "true ''"},
        {"\r\n+X: \t \r\nOK\r\n", "true 1 s''", "true ''"},
        {"\r\n,,\r\nOK\r\n", "true 3 s'' s'' s''", "true ',,'"},
        {"\n+X: 1\nOK\n", "true", "true"}, // one line: line feeds alone end none
    };
    for (const auto& row : cases) {
        EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse(String::valueOf(row.answer))), row.fields)
            << row.answer;
        EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse(row.answer.c_str())), row.fields) << row.answer;
        EXPECT_EQ(rawOf(*parser.parserAtCmdResponseAsRawStr(String::valueOf(row.answer))), row.raw)
            << row.answer;
        EXPECT_EQ(rawOf(*parser.parserAtCmdResponseAsRawStr(row.answer.c_str())), row.raw) << row.answer;
    }
}

TEST(AtCmdParser, LogsWhatItRefuses)
{
    LogCapture log;
    parser.parserAtCmdResponse("\r\nERROR\r\n");
    EXPECT_TRUE(log.has("D AtCmdParser: parserAtCmdResponse length = 2"));
    EXPECT_TRUE(log.has("D AtCmdParser: parserAtCmdResponse ERROR"));
    EXPECT_TRUE(log.has("D AtCmdParser: parserAtCmdResponse put false"));
    parser.parserAtCmdResponse("1\r\n2\r\n3\r\n4\r\n5");
    EXPECT_TRUE(log.has("E AtCmdParser: parserAtCmdResponse not support length = 5"));
    parser.parserAtCmdResponseAsRawStr("+X: 1\r\nERROR");
    EXPECT_TRUE(log.has("D AtCmdParser: parserAtCmdResponseRawStr length = 2"));
    EXPECT_TRUE(log.has("D AtCmdParser: parserAtCmdResponseRawStr put false"));
    log.clear();
    EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse(sp<String>())), "false");
    EXPECT_EQ(rawOf(*parser.parserAtCmdResponseAsRawStr(sp<String>())), "false");
    ASSERT_EQ(log.lines().size(), 2u);
    EXPECT_THAT(log.lines()[0], testing::StartsWith("E AtCmdParser: parserAtCmdResponse meet exception = "));
    EXPECT_THAT(log.lines()[1],
                testing::StartsWith("E AtCmdParser: parserAtCmdResponseRawStr meet exception = "));
}

TEST(AtCmdParser, SplitsGivenData)
{
    EXPECT_EQ(fieldsOf(*parser.parserAtcmdData(true, String::valueOf(" 1,b "))), "true 2 i1 s'b'");
    EXPECT_EQ(fieldsOf(*parser.parserAtcmdData(false, sp<String>())), "false 0");
    const auto untyped = parser.parserAtcmdData(String::valueOf("7,x y,-1"));
    EXPECT_EQ(untyped->getInt(), 7);
    EXPECT_EQ(untyped->getString(), "x y");
    EXPECT_EQ(untyped->getInt(), -1);
    EXPECT_THROW(untyped->getInt(), mindroid::ParcelException);
}

TEST(AtCmdParser, TakesAnyNumberOfFields)
{
    for (const int count : {31, 32, 33, 34, 100}) {
        std::string answer = "+X: 0";
        std::string expected = "true " + std::to_string(count) + " i0";
        for (int i = 1; i < count; ++i) {
            answer += "," + std::to_string(i);
            expected += " i" + std::to_string(i);
        }
        EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse((answer + "\r\nOK").c_str())), expected);
    }
    const std::string fields(60000, ',');
    EXPECT_THAT(fieldsOf(*parser.parserAtCmdResponse(("+X: " + fields + "\r\nOK").c_str())),
                testing::StartsWith("true 60001 s'' s''"));
    EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse(std::string(60000, 'x').c_str())), "false");
    std::string lines;
    for (int i = 0; i < 20000; ++i) {
        lines += "\r\nx";
    }
    EXPECT_EQ(fieldsOf(*parser.parserAtCmdResponse(lines.c_str())), "false");
}
