/// All requests alike: refused without an instance, answered once with one.
#include "interface/text.h"
#include "interface/words.h"
#include "radioctl/program.h"
#include "support/log_capture.h"
#include "support/public_requests.h"
#include "system/examples.h"
#include "system/modem_use.h"
#include "vorn/vorn_msg.h"

namespace {

using radioctl::RequestCall;

RequestCall parsed(const std::string& line)
{
    return radioctl::parseRequest(interface::splitWords(line));
}

/// One call of each request, of some more.
std::vector<RequestCall> calls()
{
    std::vector<RequestCall> all;
    for (const Example& example : kExamples) {
        all.push_back(parsed(example.line));
    }
    for (const interface::Request& request : interface::requests()) {
        all.push_back(parsed(exampleOf(request)));
    }
    return all;
}

void expectAllRefused(int instance)
{
    const test::LogCapture log;
    const auto onAnswer = [](void*, RADIO_APIS_RESULT, RadioApisResultType*) { ADD_FAILURE(); };
    std::set<std::string> called;
    for (RequestCall& call : calls()) {
        const std::string name(call.request->function);
        EXPECT_EQ(call.request->call(call.arguments, nullptr, onAnswer), RADIO_APIS_FAILURE) << name;
        const std::string line =
            "E VornApis: " + name + " : error : radio api does not init yet for instance ";
        EXPECT_TRUE(log.has(line + std::to_string(instance)) || !call.request->isSupported) << name;
        called.insert(name);
    }
    EXPECT_EQ(called, test::publicRequests(DEVICE_ROOT "/../../include/radio_apis"));
}

TEST(EveryRequest, BelongsToAnInitialisedInstance)
{
    setenv("RADIO_VORN_DEVICE", "embedded", 1);
    setenv("RADIO_DEVICE_ROOT", DEVICE_ROOT, 1);
    expectAllRefused(0);

    ASSERT_EQ(radioApisInit(kModem, 2), 0);
    ASSERT_EQ(vorn_init_debug("test"), 0); // which the library does but once in a process
    {
        const test::LogCapture quiet;
        std::vector<RequestCall> all = calls();
        Answers answers(all.size());
        size_t accepted = 0;
        for (size_t i = 0; i < all.size(); ++i) {
            const interface::Request& request = *all[i].request;
            const int result = request.call(all[i].arguments, answers.userData(i), Answers::onResult);
            EXPECT_TRUE(result == 0 || !request.isSupported || i >= kExamples.size()) << request.name;
            EXPECT_TRUE(result != 0 || request.isSupported) << request.name;
            accepted += result == 0 ? 1 : 0;
        }
        answers.expectOnceEach(accepted);
    }
    ASSERT_EQ(radioApisReleaseService(kModem), 0);
    expectAllRefused(2);
    radioApisInit(kModem, 0); // as it was at the start
    radioApisReleaseService(kModem);
    vorn_deinit();
}

} // namespace
