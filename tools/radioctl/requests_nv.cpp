#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioNvItem> =
    std::tuple{member("failure", &RadioNvItem::failure), member("dataLen", &RadioNvItem::dataLen),
               countedMember("data", &RadioNvItem::data, "dataLen", &RadioNvItem::dataLen)};

std::vector<Request> nvRequests()
{
    const std::string group = "NV items";
    const Argument id = number<int>("id", "the item's number");
    const Argument index = number<signed char>("index", "which of its records");
    return {
        {"radioReadNv", group, "Read one item", {id, index}, call(radioReadNv), show(&Rsp::nvItemData)},
        {"radioWriteNv",
         group,
         "Write one item",
         {id, index, bytes("data", "the new contents", 0, kRadioMaxNvBytes)},
         callWithList(radioWriteNv),
         show(&Rsp::nvWrite)},
    };
}

} // namespace radioctl
