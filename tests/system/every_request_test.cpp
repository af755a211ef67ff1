/// All requests alike: refused without an instance, answered once with one.
#include "radioctl/batch.h"
#include "radioctl/command.h"
#include "support/log_capture.h"
#include "support/public_requests.h"
#include "system/examples.h"
#include "system/modem_use.h"
#include "vorn/vorn_msg.h"

namespace {

using radioctl::RequestCall;

/// One call of each request, of some more.
std::vector<RequestCall> calls()
{
    std::vector<RequestCall> all;
    for (const Example& example : kExamples) {
        all.push_back(radioctl::parseRequest(radioctl::splitWords(example.line)));
    }
    for (const std::string& line : kRefused) {
        all.push_back(radioctl::parseRequest(radioctl::splitWords(line)));
    }
    return all;
}

bool isUnsupported(const RequestCall& call)
{
    return std::ranges::any_of(kRefused, [&](const std::string& line) {
        return line.substr(0, line.find(' ')) == call.request->name();
    });
}

void expectAllRefused(int instance)
{
    const test::LogCapture log;
    const auto onAnswer = [](void*, RADIO_APIS_RESULT, RadioApisResultType*) { ADD_FAILURE(); };
    std::set<std::string> called;
    for (const RequestCall& call : calls()) {
        const std::string& name = call.request->entryPoint;
        EXPECT_EQ(call.request->send(call.arguments, {nullptr, onAnswer}), RADIO_APIS_FAILURE) << name;
        const std::string line =
            "E VornApis: " + name + " : error : radio api does not init yet for instance ";
        EXPECT_TRUE(log.has(line + std::to_string(instance)) || isUnsupported(call)) << name;
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
        const std::vector<RequestCall> all = calls();
        Answers answers(all.size());
        size_t accepted = 0;
        for (size_t i = 0; i < all.size(); ++i) {
            const int result =
                all[i].request->send(all[i].arguments, {answers.userData(i), Answers::onResult});
            EXPECT_EQ(result == 0, !isUnsupported(all[i])) << all[i].request->name();
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
