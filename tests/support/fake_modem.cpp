#include "support/fake_modem.h"

#include <fmt/format.h>

#include <thread>

namespace test {

FakeModem& FakeModem::instance()
{
    static FakeModem modem;
    return modem;
}

void FakeModem::answer(const Fields& fields)
{
    const vorn_msg_hdr_t header = sent.at(0).message->hdr;
    const auto response = message(header.msg_id, header.slot_id, header.tx_id, fields);
    answerWith(response.get());
}

void FakeModem::answerWith(vorn_msg_t* response)
{
    const Sent request = std::move(sent.at(0));
    sent.erase(sent.begin());
    request.callback(response, request.user);
}

void FakeModem::answerBeforeSendReturns(const Fields& fields)
{
    onSend = [this, fields] { std::thread([&] { answer(fields); }).join(); };
}

bool FakeModem::indicate(uint16_t id, uint8_t slotBit, const Fields& fields)
{
    const auto found = registrations.find({slotBit, id});
    if (found == registrations.end()) {
        return false;
    }
    const auto indication = message(id, slotBit, 0, fields);
    found->second.callback(indication.get(), found->second.user);
    return true;
}

} // namespace test

using test::FakeModem;

int vorn_msg_async_api(vorn_msg_t* req, vorn_msg_cb cb, uint32_t, void* user)
{
    auto& modem = FakeModem::instance();
    if (modem.sendResult != 0) {
        return modem.sendResult;
    }
    modem.sent.push_back({host::copyOf(*req), cb, user});
    if (modem.onSend) {
        modem.onSend();
    }
    return 0;
}

int vorn_msg_register_ind_api(uint8_t slot_id, uint16_t msg_id, vorn_msg_cb cb, uint32_t, void* user)
{
    auto& modem = FakeModem::instance();
    modem.journal.push_back(fmt::format("register {} {:x}", slot_id, msg_id));
    if (modem.refuses && modem.refuses(msg_id)) {
        return -1;
    }
    modem.registrations[{slot_id, msg_id}] = {cb, user};
    return 0;
}

int vorn_msg_unregister_ind_api(uint8_t slot_id, uint16_t msg_id)
{
    auto& modem = FakeModem::instance();
    modem.journal.push_back(fmt::format("deregister {} {:x}", slot_id, msg_id));
    if (modem.refuses && modem.refuses(msg_id)) {
        return -1;
    }
    modem.registrations.erase({slot_id, msg_id});
    return 0;
}

int vorn_init_debug(const char* name)
{
    auto& modem = FakeModem::instance();
    modem.journal.push_back(fmt::format("init {}", name));
    return modem.initResult;
}

void vorn_deinit(void)
{
    FakeModem::instance().journal.emplace_back("deinit");
}

void vorn_hashmap_reset(void)
{
    auto& modem = FakeModem::instance();
    modem.journal.emplace_back("reset");
    modem.registrations.clear();
}

void SETCOM(const char* device)
{
    FakeModem::instance().journal.push_back(fmt::format("device {}", device));
}
