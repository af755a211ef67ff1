/// What becomes of callers when the library is closed, or the process ends: nothing that they notice.
#include "radio_apis/radio_apis.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <future>
#include <unistd.h>

namespace {

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;

struct Library {
    void* handle = nullptr;

    Library()
    {
        setenv("RADIO_DEVICE_ROOT", DEVICE_ROOT, 1);
        handle = dlopen(RADIOAPIS, RTLD_NOW);
    }

    template <typename Function>
    Function* find(const char* name) const
    {
        return reinterpret_cast<Function*>(dlsym(handle, name));
    }
};

void onAnswer(void* user, RADIO_APIS_RESULT result, RadioApisResultType*)
{
    static_cast<std::promise<int>*>(user)->set_value(result);
}

/// Runs when everything that the library might destroy at the end has been destroyed.
void callLate()
{
    const Library library;
    std::promise<int> answer;
    const int sent = library.find<decltype(radioGetServiceMode)>("radioGetServiceMode")(&answer, onAnswer);
    _exit(sent == 0 ? answer.get_future().get() : 10 + sent);
}

} // namespace

TEST(Unloading, LeavesRequestsOnTheirWayTheirAnswer)
{
    const Library library;
    ASSERT_NE(library.handle, nullptr) << dlerror();
    ASSERT_EQ(library.find<decltype(radioApisInit)>("radioApisInit")(kModem, 0), 0);
    std::promise<int> answer;
    const auto request = library.find<decltype(radioSetServiceMode)>("radioSetServiceMode");
    ASSERT_EQ(request(1, &answer, onAnswer), 0); // three commands, one after the other
    EXPECT_EQ(dlclose(library.handle), 0);
    EXPECT_EQ(answer.get_future().get(), 0);
    EXPECT_NE(dlopen(RADIOAPIS, RTLD_NOW | RTLD_NOLOAD), nullptr);
}

TEST(Unloading, TakesNothingFromThoseWhoCallWhileTheProcessEnds)
{
    const auto callAtTheEnd = [] {
        std::atexit(callLate); // runs after all that is registered later, by the library for example
        const Library library;
        library.find<decltype(radioApisInit)>("radioApisInit")(kModem, 0);
        std::exit(9);
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(callAtTheEnd(), testing::ExitedWithCode(0), "");
}
