// Whatever comes in, the modem answers once and stays usable. The sanitizers watch.
#include "modem_fixture.h"

#include <random>

namespace sim::test {
namespace {

class Garbage : public ModemTest {
protected:
    Bytes noise(size_t maxLength)
    {
        Bytes bytes(mRandom() % (maxLength + 1));
        std::ranges::generate(bytes, [&] { return static_cast<uint8_t>(mRandom()); });
        return bytes;
    }

    std::mt19937 mRandom{20240607};
};

TEST_F(Garbage, Requests)
{
    const auto& messages = Protocol::instance().messages();
    const auto& tags = Protocol::instance().tags();
    for (int i = 0; i < 20'000; ++i) {
        const auto& message = messages[mRandom() % messages.size()];
        FieldList fields;
        for (const auto& spec : message.request) {
            const size_t length = mRandom() % 8 != 0 ? spec.minLength : mRandom() % 40;
            const size_t count = spec.isArray ? mRandom() % 30 : 0;
            fields.emplace_back(spec.tag, spec.isArray
                                              ? Value(std::vector<Bytes>(count, Bytes(length, 1)))
                                              : Value(Bytes(length, static_cast<uint8_t>(mRandom()))));
        }
        if (mRandom() % 8 == 0) {
            fields.emplace_back(tags[mRandom() % tags.size()], noise(20));
        }
        ask(message.id, fields, static_cast<uint8_t>(1U << mRandom() % 3));
    }
    EXPECT_TRUE(control(R"({"command": "state"})")["ok"]);
}

} // namespace
} // namespace sim::test
