/// Requests, records and their values by description.
#include "interface/arguments.h"
#include "interface/names.h"
#include "interface/path.h"
#include "interface/rows.h"
#include "interface/text.h"
#include "interface/words.h"

#include <gmock/gmock.h>

using namespace interface;
using testing::HasSubstr;

namespace {

std::string hexDigits(size_t count, unsigned first)
{
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        constexpr char kDigits[] = "0123456789abcdef";
        const unsigned byte = first + static_cast<unsigned>(i);
        text += {kDigits[byte / 16 % 16], kDigits[byte % 16]};
    }
    return text;
}

/// Makes values of which no two are the same, as far as their types allow.
class Values {
public:
    Json of(const Record& record)
    {
        Json out = Json::object();
        for (const Member& member : record.members) {
            if (!member.meaning.isUnused && !member.counts) {
                out[std::string(member.meaning.name)] =
                    member.lengths[0] != 0 ? array(member, 0) : single(member);
            }
        }
        // Shown, too, but what is given makes them.
        for (const Member& member : record.members) {
            if (member.countedBy != nullptr && !member.meaning.isUnused) {
                const Json& list = out[std::string(member.meaning.name)];
                const size_t size = !list.is_string()            ? list.size()
                                    : member.type == Type::Uint8 ? list.get<std::string>().size() / 2
                                                                 : list.get<std::string>().size();
                out[std::string(member.countedBy->meaning.name)] = size;
            }
        }
        return out;
    }

private:
    Json single(const Member& member)
    {
        if (member.type == Type::Record) {
            return of(*member.record);
        }
        const auto& range = member.meaning.range;
        const bool isList = member.lengths[0] != 0;
        ++mNext;
        if (range && !isList) {
            return range->least + mNext % (range->most - range->least + 1);
        }
        switch (member.type) {
        case Type::Int8:
        case Type::Int16:
        case Type::Int32:
        case Type::Int64:
            return -mNext % 128;
        case Type::Uint64:
            return UINT64_MAX - static_cast<uint64_t>(mNext);
        case Type::Uint32:
            return member.meaning.isSigned ? Json(-mNext) : Json(UINT32_MAX - static_cast<uint32_t>(mNext));
        case Type::Uint16:
            return 65000 + mNext % 500;
        default:
            return mNext % 256;
        }
    }

    Json array(const Member& member, size_t depth)
    {
        const bool isInner = depth + 1 == member.lengths.size() || member.lengths[depth + 1] == 0;
        const auto& range = member.meaning.range;
        size_t count = member.lengths[depth];
        if (isInner && member.type == Type::Char) {
            return "text" + std::to_string(++mNext % 1000);
        }
        if (depth == 0 && range) {
            count = std::min(count, static_cast<size_t>(range->most));
        }
        if (isInner && member.type == Type::Uint8) {
            return hexDigits(count, static_cast<unsigned>(++mNext));
        }
        Json list = Json::array();
        for (size_t i = 0; i < count; ++i) {
            list.push_back(isInner ? single(member) : array(member, depth + 1));
        }
        return list;
    }

    int64_t mNext = 0;
};

Json sorted(const Json& value)
{
    return Json(nlohmann::json::parse(value.dump())); // by name: the order is not what is compared
}

} // namespace

TEST(Interface, TakesEveryRecordThereAndBack)
{
    for (const Record& record : records()) {
        SCOPED_TRACE(record.name);
        const Json values = Values().of(record);
        std::vector<uint8_t> bytes(record.size);
        ASSERT_NO_THROW(fromJson("record", record, values, bytes.data()));
        EXPECT_EQ(sorted(toJson(record, bytes.data())), sorted(values));
    }
}

/// What help shows can be typed.
TEST(Interface, TakesTheExampleOfEveryRequest)
{
    for (const Request& request : requests()) {
        const std::string line = exampleOf(request);
        std::vector<std::string> words = splitWords(line);
        words.erase(words.begin());
        EXPECT_NO_THROW(Arguments::fromWords(request, words)) << line;
        EXPECT_EQ(findRequest(request.function), &request);
        EXPECT_THAT(helpOf(request, synopsis(request), ""), HasSubstr(line));
    }
}

TEST(Interface, RefusesWhatDoesNotFit)
{
    const struct {
        const char* request;
        Json arguments;
        const char* reason;
    } rows[] = {
        {"set-sar-state", {{"source", 1}}, "state is missing (-2147483648 to 2147483647)"},
        {"set-sar-state",
         {{"source", 1}, {"state", 1}, {"stat", 2}},
         "has no argument 'stat' - did you mean 'state'?"},
        {"set-sar-state", {{"source", 1}, {"state", 2147483648}}, "state: '2147483648' is not a number from"},
        {"set-sar-state", {{"source", 1.5}, {"state", 1}}, "source: '1.5' is not a number from"},
        {"set-sar-state", Json::array(), "not a JSON object"},
        {"set-ca-status", {{"rat", "LTE"}, {"enable", 2}}, "enable: '2' is none of on, off"},
        {"set-ca-status",
         {{"rat", "lty"}, {"enable", true}},
         "rat: 'lty' is none of lte (4), nr (5) or a number - did you mean 'lte'?"},
        {"write-nv",
         {{"id", 1}, {"index", 0}, {"data", "@/etc/passwd"}},
         "data: '@/etc/passwd' is not pairs of"},
        {"write-nv",
         {{"id", 1}, {"index", 0}, {"data", std::string(40962, '0')}},
         "20481 bytes, at most 20480"},
        {"set-carrier-omacp-fqdn", {{"fqdn", 7}}, "fqdn: 7 is not a text"},
        {"set-sido-issue-config", {{"values", Json::array({1, "x"})}}, "values: 'x' is not a number from"},
        {"set-idc-offset",
         {{"rat", 4}, {"offset", 0}, {"configs", Json::array({{{"f4", 1}}})}},
         "configs[0] has no member 'f4'"},
        {"send-network-action",
         {{"action", {{"first", {{"cells", Json::array({{{"j", 7}}})}}}}}},
         "action.first.cells[0].j: '7' is not a list like"},
    };
    for (const auto& row : rows) {
        try {
            Arguments::fromJson(*findRequest(row.request), row.arguments);
            ADD_FAILURE() << row.reason;
        } catch (const ArgumentError& error) {
            EXPECT_THAT(error.what(), HasSubstr(row.reason));
        }
    }
}

TEST(Interface, ExplainsAnswers)
{
    RadioAllCellInfo cells{};
    cells.serving = {
        .rat = 5, .mcc = 1, .mnc = 1, .rsrp = static_cast<uint32_t>(-85), .rrcState = 2, .mncDigits = 2};
    cells.neighbourCount = 1;
    cells.neighbours[0] = {.rat = 4, .pci = 7, .rsrp = static_cast<uint32_t>(-101)};
    const Record& record = *findRequest("get-all-cellular-cell-info")->answer;
    const Json shown = toJson(record, &cells);
    const std::string text = asText(shown, &record, false);
    for (const char* part :
         {"  PLMN           001/01\n", "  rat            NR (5)\n", "  rsrp           -85 dBm\n",
          "  rrcState       connected (2)\n", "neighbours (1)\n", "rsrp dBm", "  LTE  "}) {
        EXPECT_THAT(text, HasSubstr(part));
    }
    EXPECT_THAT(asText(shown, &record, true), HasSubstr("  rsrp           -85\n"));
    const Json told = explanations(record, shown);
    EXPECT_EQ(valueAt(told, "neighbours[0].rat.name"), "LTE");
    EXPECT_EQ(valueAt(told, "serving.rsrp.unit"), "dBm");
    EXPECT_FALSE(tellsFailure(record, &cells));
    cells.serving.failure = 1;
    EXPECT_TRUE(tellsFailure(record, &cells));
    const Rows rows(record);
    EXPECT_THAT(rows.heading(), testing::StartsWith("time,part,failure,rat,mcc,"));
    EXPECT_THAT(rows.of("now", shown), HasSubstr("\nnow,neighbours[0],,4,"));
}

TEST(Interface, GuessesNames)
{
    const std::vector<std::string_view> names = {"get-serving-cellular-cell-info", "get-band",
                                                 "get-bwp-config", "set-ca-status", "get-ca-status"};
    const std::pair<const char*, const char*> rows[] = {{"get-badn", "get-band"},
                                                        {"set-ca-stats", "set-ca-status"},
                                                        {"bwp-config", "get-bwp-config"},
                                                        {"get-servng-cell", "get-serving-cellular-cell-info"},
                                                        {"xyz", ""},
                                                        {"get-bad", "get-band"},
                                                        {"entirely-different", ""}};
    for (const auto& [word, name] : rows) {
        EXPECT_EQ(nearest(word, names), name) << word;
    }
}
