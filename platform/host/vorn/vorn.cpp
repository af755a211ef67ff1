// The transport functions of the device boundary.
#include "links.h"
#include "transport.h"

#include "host/vorn_control.h"
#include "zor/log.h"

#include <atomic>
#include <cstdlib>
#include <pthread.h>

namespace {

constexpr const char* kTag = "vorn";
constexpr int kRefused = -1;

struct Library {
    std::mutex mutex;
    std::string device; ///< as named by SETCOM
    host::Transport transport;
};

/// Never destroyed: a program may end while the library is open, with callbacks running and requests pending.
Library& library()
{
    static Library& instance = *new Library;
    return instance;
}

/// The device to open. The environment's name goes first, since callers cut the names that they pass on.
std::string deviceName()
{
    if (const char* device = std::getenv("RADIO_VORN_DEVICE"); device != nullptr && *device != '\0') {
        return device;
    }
    const std::lock_guard lock(library().mutex);
    return library().device;
}

/// The process was forked from one that had opened the library. It has no delivery thread, the link is its
/// parent's, and a lock that another thread held stays locked.
std::atomic<bool> gIsForked = false;
std::atomic<bool> gHasToldOfFork = false;

void noticeForks()
{
    [[maybe_unused]] static const int registered = pthread_atfork(nullptr, nullptr, [] { gIsForked = true; });
}

/// Runs an operation; none of its exceptions may reach the C caller. `failed` is the result then, and of
/// everything in a forked child.
template <typename Result, typename Operation>
Result guarded(const char* function, Result failed, Operation operation) noexcept
{
    if (gIsForked.load(std::memory_order_relaxed)) {
        if (!gHasToldOfFork.exchange(true)) {
            zorLogE(kTag, "%s: refused, like everything from now on: the modem was opened before the fork",
                    function);
        }
        return failed;
    }
    try {
        return operation();
    } catch (const std::exception& error) {
        zorLogE(kTag, "%s: %s", function, error.what());
        return failed;
    }
}

} // namespace

int vorn_msg_async_api(vorn_msg_t* req, vorn_msg_cb cb, uint32_t flags, void* user)
{
    return guarded(__func__, kRefused, [&] {
        const bool isValid = req != nullptr && cb != nullptr && flags == 0;
        return isValid && library().transport.send(*req, cb, user) ? 0 : kRefused;
    });
}

int vorn_msg_register_ind_api(uint8_t slot_id, uint16_t msg_id, vorn_msg_cb cb, uint32_t /*flags*/,
                              void* user)
{
    return guarded(__func__, kRefused, [&] {
        const bool done = cb != nullptr && library().transport.registerIndication(slot_id, msg_id, cb, user);
        return done ? 0 : kRefused;
    });
}

int vorn_msg_unregister_ind_api(uint8_t slot_id, uint16_t msg_id)
{
    return guarded(__func__, kRefused, [&] {
        library().transport.unregisterIndication(slot_id, msg_id);
        return 0;
    });
}

int vorn_init_debug(const char* name)
{
    return guarded(__func__, kRefused, [&] {
        noticeForks();
        const std::string device = deviceName();
        zorLogD(kTag, "%s opens %s", name != nullptr ? name : "a program without a name", device.c_str());
        const auto makeLink = [&](host::LinkEvents& events) { return host::makeLink(device, events); };
        return library().transport.open(makeLink) ? 0 : kRefused;
    });
}

void vorn_deinit(void)
{
    guarded(__func__, kRefused, [] {
        library().transport.close();
        return 0;
    });
}

void vorn_hashmap_reset(void)
{
    guarded(__func__, kRefused, [] {
        library().transport.unregisterAllIndications();
        return 0;
    });
}

void SETCOM(const char* device)
{
    guarded(__func__, kRefused, [&] {
        const std::lock_guard lock(library().mutex);
        library().device = device != nullptr ? device : "";
        return 0;
    });
}

void vorn_host_observe(void (*observer)(const vorn_msg_t* message, void* user), void* user)
{
    guarded(__func__, kRefused, [&] {
        library().transport.observe({observer, user});
        return 0;
    });
}

int vorn_host_control(const char* command, void (*answer)(const char* json, void* user), void* user)
{
    return guarded(__func__, kRefused, [&] {
        if (command == nullptr || answer == nullptr) {
            return kRefused;
        }
        const std::optional<std::string> text = library().transport.control(command);
        if (!text) {
            return kRefused;
        }
        answer(text->c_str(), user);
        return 0;
    });
}
