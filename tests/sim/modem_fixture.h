/// A modem with everything it puts out kept for a look.
#pragma once

#include "host/log_sink.h"
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

using FieldList = std::vector<std::pair<uint16_t, Value>>;

inline Fields fieldsOf(const FieldList& list)
{
    Fields fields;
    for (const auto& [tag, value] : list) {
        fields.set(tag, value);
    }
    return fields;
}

/// The fields of a message, of those the catalogue knows.
inline std::map<uint16_t, Value> fieldsOf(const vorn_msg_t& message)
{
    std::map<uint16_t, Value> fields;
    const auto bytes = [](const void* data, uint16_t length) {
        const auto* begin = static_cast<const uint8_t*>(data);
        return Bytes(begin, begin + length);
    };
    for (const uint16_t tag : Protocol::instance().tags()) {
        uint16_t length = 0;
        if (const void* data = vorn_msg_get_val_ptr(&message, tag, &length)) {
            fields[tag] = bytes(data, length);
        }
        std::vector<Bytes> elements;
        for (uint16_t i = 0; i < vorn_msg_get_tlv_num(&message, tag); ++i) {
            const void* data = vorn_msg_get_idx_ptr(&message, tag, i, &length);
            elements.push_back(bytes(data, length));
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
        std::map<uint16_t, Value> fields;
    };

    void start(const std::string& scenario) { mModem = std::make_unique<Modem>(fromText(scenario), *this); }

    static Scenario fromText(const std::string& scenario)
    {
        return Scenario::fromJson(nlohmann::json::parse(scenario));
    }

    void send(uint16_t id, const FieldList& fields = {}, uint8_t slotBit = 1, uint16_t transaction = 7)
    {
        const auto request = makeMessage({id, transaction, slotBit}, fieldsOf(fields));
        mModem->receive(kClient, *request, mNow);
    }

    /// Sends a request and returns the fields of its only answer.
    std::map<uint16_t, Value> ask(uint16_t id, const FieldList& fields = {}, uint8_t slotBit = 1)
    {
        mAnswers.clear();
        send(id, fields, slotBit);
        EXPECT_EQ(mAnswers.size(), 1U);
        return mAnswers.empty() ? std::map<uint16_t, Value>() : mAnswers.front().fields;
    }

    nlohmann::json control(const std::string& command)
    {
        return mModem->control(nlohmann::json::parse(command), mNow);
    }

    void answer(ClientId client, Message message) override
    {
        mAnswers.push_back({client, message->hdr, fieldsOf(*message)});
    }
    void indicate(Message message) override { mIndications.push_back({0, message->hdr, fieldsOf(*message)}); }
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
