/// A modem with everything it puts out kept for a look.
#pragma once

#include "host/log_sink.h"
#include "host/wire/message.h"
#include "scenario_data.h"
#include "sim/modem.h"
#include "value.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace sim::test {

using namespace std::chrono_literals;

inline Value i32(int32_t value)
{
    return toBytes(value);
}
inline Value u8(uint8_t value)
{
    return toBytes(value);
}
inline Value text(std::string_view text)
{
    Bytes bytes(text.begin(), text.end());
    bytes.push_back(0);
    return bytes;
}

using FieldMap = std::map<uint16_t, Value>;

inline Fields fieldsOf(const FieldMap& map)
{
    Fields fields;
    for (const auto& [tag, value] : map) {
        fields.set(tag, value);
    }
    return fields;
}

/// The fields of a message, of those the catalogue knows.
inline FieldMap fieldsOf(const host::Message& message)
{
    FieldMap fields;
    const auto bytes = [](auto data) { return Bytes(data.begin(), data.end()); };
    for (const uint16_t tag : Protocol::instance().tags()) {
        if (const auto field = message.field(tag); field.data() != nullptr) {
            fields[tag] = bytes(field);
        }
        std::vector<Bytes> elements;
        for (uint16_t i = 0; i < message.elementCount(tag); ++i) {
            elements.push_back(bytes(message.element(tag, i)));
        }
        if (!elements.empty()) {
            fields[tag] = elements;
        }
    }
    return fields;
}

class ModemTest : public testing::Test, public Output {
protected:
    ModemTest()
    {
        host::setLogSink([this](const host::LogLine& line) { mLog = line.tag + ": " + line.text; });
    }
    ~ModemTest() override { host::setLogSink({}); }

    struct Received {
        ClientId client;
        vorn_msg_hdr_t header;
        FieldMap fields;
    };

    void start(const std::string& scenario) { mModem = std::make_unique<Modem>(fromText(scenario), *this); }

    static Scenario fromText(const std::string& scenario)
    {
        return Scenario::fromJson(nlohmann::json::parse(scenario));
    }

    void send(uint16_t id, const FieldMap& fields = {}, uint8_t slotBit = 1, uint16_t transaction = 7)
    {
        const auto request = makeMessage({id, transaction, slotBit}, fieldsOf(fields));
        mModem->receive(kClient, *request, mNow);
    }

    /// Sends a request and returns the fields of its only answer.
    FieldMap ask(uint16_t id, const FieldMap& fields = {}, uint8_t slotBit = 1)
    {
        mAnswers.clear();
        send(id, fields, slotBit);
        EXPECT_EQ(mAnswers.size(), 1U);
        return mAnswers.empty() ? FieldMap() : mAnswers.front().fields;
    }

    nlohmann::json control(const std::string& command)
    {
        return mModem->control(nlohmann::json::parse(command), mNow);
    }

    static Received received(ClientId client, const vorn_msg_t& message)
    {
        return {client, message.hdr, fieldsOf(host::Message::of(message))};
    }
    void answer(ClientId client, Message message) override { mAnswers.push_back(received(client, *message)); }
    void indicate(Message message) override { mIndications.push_back(received(0, *message)); }
    void disconnect(std::chrono::milliseconds downFor) override { mDisconnects.push_back(downFor); }

    std::string mLog; ///< the last line
    static constexpr ClientId kClient = 5;
    TimePoint mNow{};
    std::unique_ptr<Modem> mModem = std::make_unique<Modem>(Scenario::builtIn(), *this);
    std::vector<Received> mAnswers;
    std::vector<Received> mIndications;
    std::vector<std::chrono::milliseconds> mDisconnects;
};

} // namespace sim::test
